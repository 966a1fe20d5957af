#include "circuits/coupled_inductors.h"

namespace eterlab::circuits {

CoupledInductors coupled_inductors(Real l1_h, Real l2_h, Real coupling_coefficient) {
  const Real geometric_mean_h = sqrt(l1_h * l2_h);
  const Real mutual_h = coupling_coefficient * geometric_mean_h;
  const Real sum_h = l1_h + l2_h;
  const Real aiding_h = sum_h + 2 * mutual_h;
  // L1 + L2 - 2 M and 1 - k^2 as they lose no digits where little is left.
  const Real root_difference = (l1_h - l2_h) / (sqrt(l1_h) + sqrt(l2_h));
  const Real opposing_h =
      root_difference * root_difference + 2 * (1 - coupling_coefficient) * geometric_mean_h;
  const Real determinant = l1_h * l2_h * (1 - coupling_coefficient) * (1 + coupling_coefficient);

  CoupledInductors coupled{mutual_h, aiding_h, 0, l1_h, determinant / aiding_h};
  if (opposing_h > 1e-12 * sum_h) {
    coupled.series_opposing_h = opposing_h;
    coupled.parallel_aiding_h = determinant / opposing_h;
  }
  return coupled;
}

}  // namespace eterlab::circuits
