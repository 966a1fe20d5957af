#include "antennas/dipoles/wire_antennas.h"

namespace eterlab::antennas {

Real dipole_arm_m(Single frequency_mhz) { return 71.3 / frequency_mhz; }

Single inverted_v_arm_m(Single frequency_mhz) { return Single{71.0 / frequency_mhz}; }

Real harmonic_wire_m(Real half_waves, Real frequency_mhz) {
  return 150 * (half_waves - 0.05) / frequency_mhz;
}

}  // namespace eterlab::antennas
