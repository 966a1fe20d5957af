#include "coils/winding_inductance.h"

#include "common/physics.h"

namespace eterlab::coils {

Real current_sheet_inductance_h(Real radius_m, Real length_m, Real turns) {
  const auto f1 = [](Real x) { return (1 + 0.383901 * x + 0.017108 * x * x) / (1 + 0.258952 * x); };
  const auto f2 = [](Real x) { return 0.093842 * x + 0.002029 * x * x - 0.000801 * x * x * x; };
  const Real shape = length_m / (2 * radius_m);
  const Real permeance_h = vacuum_permeability_h_per_m * radius_m * turns * turns;
  if (shape <= 1) {
    const Real x = shape * shape;
    return permeance_h * ((ln(4 / shape) - 0.5) * f1(x) + f2(x));
  }
  return permeance_h * pi / (2 * shape) * (f1(1 / (shape * shape)) - 4 / (3 * pi * shape));
}

Real ring_inductance_h(Real radius_m, Real wire_radius_m) {
  return vacuum_permeability_h_per_m * radius_m * (ln(8 * radius_m / wire_radius_m) - 1.75);
}

// In (2/k - k) K - (2/k) E what is nearly equal cancels before it is computed: with the farthest
// and the nearest points of the circles as the first two means, mu0 pi / (2 mean) times the sum of
// 2^(n-1) c^2 is left, c being half the difference of the means before.
Real coaxial_circles_mutual_h(Real radius_m, Real other_radius_m, Real distance_m) {
  constexpr double negligible = 1e-17;
  const Real farthest = hypot(radius_m + other_radius_m, distance_m);
  const Real nearest = hypot(radius_m - other_radius_m, distance_m);
  Real arithmetic_mean = (farthest + nearest) / 2;
  Real geometric_mean = sqrt(farthest * nearest);
  Real half_difference = radius_m * other_radius_m / arithmetic_mean;
  Real weight = 1;
  Real sum = 0;
  for (Real term = half_difference * half_difference; term > negligible * sum;
       term = weight * half_difference * half_difference) {
    sum += term;
    weight *= 2;
    const Real next = (arithmetic_mean + geometric_mean) / 2;
    geometric_mean = sqrt(arithmetic_mean * geometric_mean);
    arithmetic_mean = next;
    half_difference = half_difference * half_difference / (4 * arithmetic_mean);
  }
  return vacuum_permeability_h_per_m * pi / (2 * arithmetic_mean) * sum;
}

Real facing_segments_mutual_h(Real length_m, Real other_length_m, Real distance_m) {
  const Real outer = (length_m + other_length_m) / 2;
  const Real inner = (length_m - other_length_m) / 2;
  // The difference of two roots, as a quotient.
  const Real roots =
      length_m * other_length_m / (hypot(outer, distance_m) + hypot(inner, distance_m));
  return vacuum_permeability_h_per_m / (2 * pi) *
         (outer * asinh(outer / distance_m) - inner * asinh(inner / distance_m) - roots);
}

}  // namespace eterlab::coils
