#include "antennas/dipoles/off_centre_dipole.h"

#include <algorithm>
#include <array>

#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

/// The first resonance of a wire that is cut at this share of its half.
std::optional<OffCentreDipole> resonant(Real tap_share, const Conductor& conductor) {
  constexpr int steps = 8;  // of 0.005 wavelengths
  const Real wavelength_m = conductor.wavelength_m();
  const auto reactance_ohm = [&](Real half_m) {
    return OffCentreDipole{half_m, tap_share * half_m}.impedance_ohm(conductor).imaginary();
  };
  Real last_m = 0.22 * wavelength_m;
  bool was_below_zero = reactance_ohm(last_m) < 0;
  for (int step = 1; step <= steps; ++step) {
    const Real half_m = (0.22 + 0.005 * step) * wavelength_m;
    const bool is_below_zero = reactance_ohm(half_m) < 0;
    if (was_below_zero && !is_below_zero) {
      const Real root_m = root_between(last_m, half_m, reactance_ohm);
      return OffCentreDipole{root_m, tap_share * root_m};
    }
    was_below_zero = is_below_zero;
    last_m = half_m;
  }
  return std::nullopt;
}

}  // namespace

Complex OffCentreDipole::impedance_ohm(const Conductor& conductor) const {
  return wire_ports(std::array<Real, 3>{-half_m, tap_m, half_m}, 1, conductor).feed_impedance_ohm();
}

std::optional<OffCentreDipole> single_wire_tap(Real feeder_ohm, const Conductor& conductor) {
  const Real half_m = half_wave_arm_m(conductor);
  const Real resistance_ohm = dipole_impedance_ohm(half_m, conductor).real();
  const Real arm_ohm = 60 * (ln(4 * half_m / (conductor.diameter_mm / 1000)) - 1);
  const Real sine = sqrt(feeder_ohm * resistance_ohm) / arm_ohm;
  if (sine > sin(0.45 * pi)) {
    return std::nullopt;
  }
  return OffCentreDipole{half_m, 2 * half_m / pi * asin(sine)};
}

std::optional<OffCentreDipole> cut_wire_tap(Real resistance_ohm, const Conductor& conductor) {
  constexpr int steps = 17;
  constexpr double step = 0.05;  // of the share of an arm
  const auto excess_ohm = [&](Real tap_share) {
    const std::optional<OffCentreDipole> dipole = resonant(tap_share, conductor);
    if (!dipole) {
      throw ArithmeticFault{ArithmeticFault::Kind::invalid_argument};
    }
    return dipole->impedance_ohm(conductor).real() - resistance_ohm;
  };
  for (int place = 0; place <= steps; ++place) {
    const std::optional<OffCentreDipole> dipole = resonant(place * step, conductor);
    if (!dipole) {
      return std::nullopt;
    }
    if (dipole->impedance_ohm(conductor).real() >= resistance_ohm) {
      return resonant(root_between(std::max(place - 1, 0) * step, place * step, excess_ohm),
                      conductor);
    }
  }
  return std::nullopt;
}

}  // namespace eterlab::antennas
