#include "antennas/loops/quad_loop.h"

#include <numbers>

namespace eterlab::antennas {

Real quad_loop_perimeter_m(const AntennaWire& wire) {
  const Real lengthening = 1 / (-6.05 * log10(diameter_wavelengths(wire)) - 5.8);
  return shortening_by_cover(wire) * wire.wavelength_m * (1 + lengthening);
}

Real spreader_arm_m(Real perimeter_m) { return perimeter_m / (4 * std::numbers::sqrt2); }

Real quarter_wave_cable_m(Real wavelength_m) {
  constexpr double velocity_factor = 0.66;
  return velocity_factor * wavelength_m / 4;
}

}  // namespace eterlab::antennas
