#include "antennas/verticals/loaded_vertical.h"

namespace eterlab::antennas {

namespace {

constexpr double metres_per_foot = 0.3048;
constexpr double millimetres_per_inch = 25.4;
constexpr double quarter_wave_ft_mhz = 234;

Real square(Real x) { return x * x; }

}  // namespace

bool reaches_half_wave(const LoadedVertical& antenna) {
  return 2 * antenna.length_m >= 142 / antenna.frequency_mhz;
}

bool has_coil_beyond_tip(const LoadedVertical& antenna) {
  return Real{antenna.coil_height_m} >= Single{antenna.length_m};
}

Real loading_inductance_uh(const LoadedVertical& antenna) {
  const Real f = antenna.frequency_mhz;
  const Real diameter_in = antenna.diameter_mm / millimetres_per_inch;
  const Real length_ft = 2 * antenna.length_m / metres_per_foot / 2;
  const Real height_ft = antenna.coil_height_m / metres_per_foot;
  // What stands above the coil, and what would stand there of a full quarter wave.
  const Real top_ft = length_ft - height_ft;
  const Real full_top_ft = quarter_wave_ft_mhz / f - height_ft;

  const Real k = 1e6 / (68 * square(3.14) * square(f));
  const Real a1 = ln(24 * full_top_ft / diameter_in) - 1;
  const Real a2 = ln(24 * top_ft / diameter_in) - 1;
  const Real b1 = a1 * (square(1 - f * height_ft / quarter_wave_ft_mhz) - 1) / full_top_ft;
  const Real b2 = a2 * (square((f * length_ft - f * height_ft) / quarter_wave_ft_mhz) - 1) / top_ft;
  return k * (b1 - b2);
}

Real electrical_length_degrees(const LoadedVertical& antenna) {
  return 1.2 * antenna.length_m * antenna.frequency_mhz;
}

Real radiation_resistance_ohm(const LoadedVertical& antenna) {
  const Single wavelength_m{300 / antenna.frequency_mhz};
  return square(24 * antenna.length_m / wavelength_m);
}

Real radial_length_m(Real frequency_mhz) { return 75 / frequency_mhz; }

}  // namespace eterlab::antennas
