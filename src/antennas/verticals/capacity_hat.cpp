#include "antennas/verticals/capacity_hat.h"

#include <numbers>

#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

constexpr double mm_in_m = 1000;

/// Average potential of a spoke by the charge on another one at an angle, up to pi.
Real mutual_potential(Real angle) { return asinh(tan(angle / 2)) + asinh(1 / tan(angle)); }

/// Of all other spokes on one of them.
Real mutual_potential_of_all(int number) {
  Real sum = std::numbers::ln2;  // of the one opposite
  for (int i = 1; i < number / 2; ++i) {
    sum += 2 * mutual_potential(2 * pi * i / number);
  }
  return sum;
}

}  // namespace

Real hat_capacitance_pf(const Whip& mast, Real frequency_mhz) {
  const Real theta = electrical_height_rad(mast, frequency_mhz);
  const Real degrees = theta * 180 / pi;
  const Real correction = 1.55 - 0.0157 * degrees + 0.00008 * degrees * degrees;
  const Real impedance_ohm = 60 * (ln(4 * mm_in_m * mast.height_m / mast.diameter_mm) - 1);
  return 1e6 / (2 * pi * frequency_mhz * impedance_ohm * tan(theta) * correction);
}

Real capacitance_of_spokes_pf(const HatSpokes& spokes, Real spoke_length_m, Real height_m) {
  const Real own_potential = ln(4 * mm_in_m * spoke_length_m / spokes.diameter_mm) - 1;
  const Real b = spoke_length_m;
  // Both of a charge of 2 pi epsilon0
  const Real potential =
      (own_potential + mutual_potential_of_all(spokes.number)) / (spokes.number * b);
  const Real image_potential = 1 / (2 * sqrt(4 * height_m * height_m + b * b / 2));
  return 1e12 * 2 * pi * vacuum_permittivity_f_per_m / (potential - image_potential);
}

Real shortest_spoke_m(const HatSpokes& spokes) { return 5 * spokes.diameter_mm / mm_in_m; }

Real spoke_length_m(const HatSpokes& spokes, Real capacitance_pf, Real height_m) {
  return root_between(shortest_spoke_m(spokes), height_m, [&](Real length_m) {
    return capacitance_of_spokes_pf(spokes, length_m, height_m) - capacitance_pf;
  });
}

Real share_with_rim(const HatSpokes& spokes) {
  switch (spokes.number) {
    case 4:
      return 0.60;
    case 6:
      return 0.67;
    default:
      return 0.72;
  }
}

Real hat_radiation_resistance_ohm(Real electrical_height_rad) {
  const Real s = sin(electrical_height_rad) * sin(electrical_height_rad);
  return 40 * s - 3.4 * s * s * s;
}

}  // namespace eterlab::antennas
