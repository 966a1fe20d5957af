#include "lines/geometry/geometry_factor.h"

#include <algorithm>

#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::lines {

namespace {

/// Inverse hyperbolic cosine of 1 + x, without cancellation where x is small.
Real arcosh_of_one_and(Real x) { return log1p(x + sqrt(x * (x + 2))); }

/// From one wire of a pair to the image of the other.
Real diagonal(const PairOverGround& pair) { return hypot(pair.spacing, 2 * pair.height); }

}  // namespace

Real proximity_correction(Real t) { return ln((1 + sqrt(1 - t * t)) / 2); }

Real wire_pair_factor(Real diameter, Real spacing) {
  return arcosh_of_one_and((spacing - diameter) / diameter);
}

Real wire_pair_spacing(Real diameter, Real factor) { return diameter * cosh(factor); }

Real wire_over_ground_factor(Real diameter, Real height) {
  return wire_pair_factor(diameter, 2 * height);
}

Real strip_over_ground_factor(Real width, Real height) {
  const Real u = width / height;
  const Real f = 6 + (2 * pi - 6) * exp(-pow(30.666 / u, 0.7528));
  return ln(f / u + hypot(1, 2 / u));
}

Real push_pull_factor(const PairOverGround& pair) {
  const auto& [diameter, spacing, height] = pair;
  const Real to_image = 2 * height;
  const Real to_other_image = diagonal(pair);
  const Real from_the_side = to_image / spacing * to_image / (to_other_image * to_other_image);
  const Real from_below = spacing / to_image * spacing / (to_other_image * to_other_image);
  return ln(2 * to_image * (spacing / (diameter * to_other_image))) +
         proximity_correction(diameter * hypot(from_the_side, from_below));
}

Real joined_factor(const PairOverGround& pair) {
  const auto& [diameter, spacing, height] = pair;
  const Real to_image = 2 * height;
  const Real to_other_image = diagonal(pair);
  const Real from_the_side = to_image / spacing * to_image / (to_other_image * to_other_image);
  const Real from_below = 1 / to_image + to_image / (to_other_image * to_other_image);
  const Real factor_of_each = ln(2 * to_image * (to_other_image / (diameter * spacing))) +
                              proximity_correction(diameter * hypot(from_the_side, from_below));
  return factor_of_each / 2;
}

Real pair_between_plates_factor(Real diameter, Real spacing, Real plate_distance) {
  constexpr double out_of_reach = 50;  // of each other: their coupling is below any digit
  const Real p = std::min<Real>(pi * spacing / plate_distance, out_of_reach);
  return rod_between_plates_factor(diameter, plate_distance) + ln(tanh(p / 2)) +
         proximity_correction(pi * diameter / (plate_distance * sinh(p)));
}

Real shielded_pair_factor(Real diameter, Real spacing, Real screen_diameter) {
  const Real share = spacing / screen_diameter;
  const Real q = share * share;
  const Real rest = (screen_diameter - spacing) / screen_diameter * (1 + share);  // 1 - q
  const Real t = diameter / spacing * abs(1 - 4 * q / (rest * (1 + q)));
  return ln(2 * spacing / diameter * rest / (1 + q)) + proximity_correction(t);
}

Real rod_between_plates_factor(Real diameter, Real plate_distance) {
  const Real r = pi * diameter / (4 * plate_distance);
  const Real r4 = r * r * r * r;
  // cosh 2r - cos 2r, without cancellation where r is small
  const Real difference = 2 * (sinh(r) * sinh(r) + sin(r) * sin(r));
  return ln((sqrt(cosh(2 * r)) + sqrt(cos(2 * r))) / sqrt(difference)) - r4 / 30 + 0.014 * r4 * r4;
}

Real rod_in_square_factor(Real diameter, Real side) {
  // 8 sqrt(pi) / Gamma(1/4)^2: the conformal radius of a square of side 1 is half of it.
  constexpr double square = 1.0787052023767587;
  const Real ratio = side / diameter;
  const Real q = pow(ratio, -8);
  return ln(square * ratio) - 0.0218 * q / (1 - 0.525 * q);
}

Real coaxial_factor(Real diameter, Real screen_diameter) {
  return log1p((screen_diameter - diameter) / diameter);
}

Real enclosed_rod_diameter(EnclosedRodFactor factor_of, Real size, Real factor) {
  const Real ratio = root_between(
      thickest_rod_ratio, thinnest_rod_ratio,
      [&](Real size_over_diameter) { return factor_of(1, size_over_diameter) - factor; });
  return size / ratio;
}

}  // namespace eterlab::lines
