#include "coils/printed_coil.h"

#include "common/physics.h"

namespace eterlab::coils {

namespace {

/// The expression's coefficients c1 to c4, and the circumference over the diameter or side.
struct Shape {
  double c1;
  double c2;
  double c3;
  double c4;
  double circumference;
};
constexpr Shape round_shape{1.00, 2.46, 0.00, 0.20, pi};
constexpr Shape square_shape{1.27, 2.07, 0.18, 0.13, 4};

}  // namespace

PrintedCoil printed_coil(const PrintedSpiral& spiral, Real turns) {
  const Shape& shape = spiral.shape == SpiralShape::round ? round_shape : square_shape;
  const Real width_m = 2 * (turns * spiral.track_m + (turns - 1) * spiral.gap_m);
  const Real outer_m = spiral.inner_m + width_m;
  const Real mean_m = (outer_m + spiral.inner_m) / 2;
  const Real fill = width_m / (2 * mean_m);
  const Real inductance_h = vacuum_permeability_h_per_m * turns * turns * mean_m * shape.c1 / 2 *
                            (ln(shape.c2 / fill) + shape.c3 * fill + shape.c4 * fill * fill);
  return {turns, inductance_h, outer_m, shape.circumference * turns * mean_m};
}

PrintedCoil printed_coil_near(const PrintedSpiral& spiral, Real inductance_h) {
  constexpr double step = 0.25;
  PrintedCoil nearest = printed_coil(spiral, fewest_printed_turns);
  for (double turns = fewest_printed_turns + step; turns <= most_printed_turns; turns += step) {
    const PrintedCoil coil = printed_coil(spiral, turns);
    if (abs(coil.inductance_h - inductance_h) < abs(nearest.inductance_h - inductance_h)) {
      nearest = coil;
    }
  }
  return nearest;
}

}  // namespace eterlab::coils
