#pragma once

#include "common/arithmetic.h"
#include "common/physics.h"

namespace eterlab::antennas {

/// In vacuum, of a frequency above zero.
inline Real wavelength_m(Real frequency_mhz) {
  return speed_of_light_m_per_s / (1e6 * frequency_mhz);
}

}  // namespace eterlab::antennas
