#include "lines/geometry/wire_over_ground.h"

#include "common/physics.h"
#include "lines/geometry/geometry_factor.h"

namespace eterlab::lines {

namespace {

/// Mean of 1 / distance between the points of two lines of equal length side by side, times half of
/// that length.
Real mean_nearness(Real length, Real apart) {
  const Real diagonal = hypot(length, apart);
  return asinh(length / apart) - length / (diagonal + apart);
}

/// The same of a line and its continuation behind a gap, which may be 0.
Real mean_nearness_in_line(Real length, Real gap) {
  const Real middle = gap + length;
  const Real share = length / middle;
  // The second difference of x ln x, without cancellation where the gap is wide.
  const Real near_part = gap == 0 ? 0 : gap / middle * log1p(-share);
  return ((1 + share) * log1p(share) + near_part) / (2 * share);
}

}  // namespace

WireConstants horizontal_wire(Real diameter_m, Real height_m, Real length_m) {
  const Real factor = mean_nearness(length_m, diameter_m / 2) -
                      mean_nearness(length_m, 2 * height_m) +
                      proximity_correction(diameter_m / (2 * height_m));
  return {vacuum_permeability_h_per_m * length_m * factor / (2 * pi),
          2 * pi * vacuum_permittivity_f_per_m * length_m / factor};
}

Real vertical_wire_capacitance_f(Real diameter_m, Real length_m, Real base_height_m) {
  const Real factor =
      mean_nearness(length_m, diameter_m / 2) - mean_nearness_in_line(length_m, 2 * base_height_m);
  return 2 * pi * vacuum_permittivity_f_per_m * length_m / factor;
}

}  // namespace eterlab::lines
