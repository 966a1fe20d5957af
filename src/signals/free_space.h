#pragma once

#include "common/arithmetic.h"

namespace eterlab::signals {

/// A radio path through free space.
struct FreeSpacePath {
  Real distance_km;     ///< that was computed with
  Real attenuation_db;  ///< between isotropic antennas
};

/// Attenuation between isotropic antennas, A = 20 log10(4 pi d / lambda), with 1.099 for
/// log10(4 pi) and 300000 km/s for the speed of light; rounded to two decimals. Frequency and
/// distance must be positive; no distance at all is taken as one metre. Source: Friis' formula.
FreeSpacePath free_space_path(Real frequency_mhz, Real distance_km);

}  // namespace eterlab::signals
