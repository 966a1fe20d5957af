#include "antennas/radiation_resistance.h"

#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

Real square(Real x) { return x * x; }

/// Half the length of a dipole as an angle.
Real half_length(Real length_wavelengths) { return pi * length_wavelengths; }

}  // namespace

Real dipole_loop_resistance_ohm(Real length_wavelengths) {
  // The pattern (cos(b cos theta) - cos b)^2 / sin theta over theta, the difference as a product
  // and s = sin^2(theta / 2): no digits are lost, however short the dipole.
  const Real b = half_length(length_wavelengths);
  const Real half_sphere = integral(0, 0.5, [b](Real s) {
    return s == 0 ? 0 : square(sin(b * s) * sin(b * (1 - s))) / (s * (1 - s));
  });
  return 2 * free_space_impedance_ohm / pi * half_sphere;
}

DipoleRadiation dipole_radiation(Real length_wavelengths) {
  constexpr double least_share = 0.01;  // of the power, at the feed point
  const Real b = half_length(length_wavelengths);
  const Real loop_ohm = dipole_loop_resistance_ohm(length_wavelengths);
  const Real share = square(sin(b));
  const bool is_short = length_wavelengths < 0.5;
  return {.loop_resistance_ohm = loop_ohm,
          .centre_resistance_ohm =
              is_short || share >= least_share ? std::optional{loop_ohm / share} : std::nullopt,
          // 1 - cos b = 2 sin^2(b / 2)
          .gain_dbi = 10 * log10(free_space_impedance_ohm / pi * square(2 * square(sin(b / 2))) /
                                 loop_ohm)};
}

std::optional<Real> vertical_base_resistance_ohm(Real height_wavelengths) {
  // Half of the space, half of the voltage.
  const auto centre_ohm = dipole_radiation(2 * height_wavelengths).centre_resistance_ohm;
  return centre_ohm ? std::optional{*centre_ohm / 2} : std::nullopt;
}

}  // namespace eterlab::antennas
