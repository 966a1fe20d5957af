#include "antennas/verticals/whip.h"

#include "antennas/wavelength.h"
#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

constexpr double quarter_wave_reactance_ohm = 21.25;
constexpr double mm_in_m = 1000;

/// ln(2 h / d) - 1.
Real slenderness(const Whip& whip) {
  return ln(2 * mm_in_m * whip.height_m / whip.diameter_mm) - 1;
}

/// What the reactance has more than that of an open line.
Real end_reactance_ohm(Real electrical_height_rad) {
  const Real quarter_waves = 2 * electrical_height_rad / pi;
  return quarter_wave_reactance_ohm * quarter_waves * quarter_waves;
}

Real capacitive_reactance_at_ohm(const Whip& whip, Real electrical_height_rad) {
  return characteristic_impedance_ohm(whip) / tan(electrical_height_rad) -
         end_reactance_ohm(electrical_height_rad);
}

}  // namespace

bool is_slender(const Whip& whip) {
  constexpr double rounding = 1e-12;
  return mm_in_m * whip.height_m >= 20 * whip.diameter_mm * (1 - rounding);
}

Real electrical_height_rad(const Whip& whip, Real frequency_mhz) {
  return 2 * pi * whip.height_m / wavelength_m(frequency_mhz);
}

Real static_capacitance_pf(const Whip& whip) {
  return 1e12 * 2 * pi * vacuum_permittivity_f_per_m * whip.height_m / slenderness(whip);
}

Real characteristic_impedance_ohm(const Whip& whip) { return 60 * slenderness(whip); }

Real capacitive_reactance_ohm(const Whip& whip, Real frequency_mhz) {
  return capacitive_reactance_at_ohm(whip, electrical_height_rad(whip, frequency_mhz));
}

Real reactance_slope_ohm(const Whip& whip, Real frequency_mhz) {
  const Real theta = electrical_height_rad(whip, frequency_mhz);
  return characteristic_impedance_ohm(whip) * theta / (sin(theta) * sin(theta)) +
         2 * end_reactance_ohm(theta);
}

bool is_capacitive(const Whip& whip, Real frequency_mhz) {
  const Real theta = electrical_height_rad(whip, frequency_mhz);
  return theta < pi / 2 && capacitive_reactance_at_ohm(whip, theta) > 0;
}

Real self_resonance_mhz(const Whip& whip) {
  const Real theta = root_between(
      0.1, pi / 2, [&](Real angle) { return capacitive_reactance_at_ohm(whip, angle); });
  return theta * wavelength_m(1) / (2 * pi * whip.height_m);
}

Real whip_radiation_resistance_ohm(Real electrical_height_rad) {
  const Real theta = electrical_height_rad;
  const auto power = [theta](Real elevation_from_axis) {
    const Real half = sin(elevation_from_axis / 2);
    // cos(theta cos psi) - cos(theta), without cancellation for low whips.
    const Real field = 2 * sin(theta * (1 - half * half)) * sin(theta * half * half);
    return field * field / sin(elevation_from_axis);
  };
  const Real base = sin(theta);
  return 60 / (base * base) * integral(0, pi / 2, power);
}

}  // namespace eterlab::antennas
