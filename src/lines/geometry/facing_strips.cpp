#include "lines/geometry/facing_strips.h"

#include <algorithm>
#include <numbers>

#include "common/numerics.h"
#include "common/physics.h"
#include "lines/geometry/geometry_factor.h"

namespace eterlab::lines {

namespace {

/// Effective permittivity of a thin microstrip.
Real effective_permittivity(Real u, Real er) {
  const Real u_over_52 = u / 52;
  const Real u_over_18 = u / 18.1;
  const Real u4 = u * u * u * u;
  const Real a = 1 + ln((u4 + u_over_52 * u_over_52) / (u4 + 0.432)) / 49 +
                 log1p(u_over_18 * u_over_18 * u_over_18) / 18.7;
  const Real b = 0.564 * pow((er - 0.9) / (er + 3), 0.053);
  return (er + 1) / 2 + (er - 1) / 2 * pow(1 + 10 / u, -a * b);
}

/// What the thickness of a microstrip adds to its width, without a dielectric; all over its height.
Real widening(Real u, Real thickness) {
  const Real coth = 1 / tanh(sqrt(6.517 * u));
  return thickness / pi * log1p(4 * std::numbers::e / (thickness * coth * coth));
}

}  // namespace

StripLine strip_line(const FacingStrips& strips) {
  const Real height = strips.distance / 2;
  const Real er = strips.relative_permittivity;
  const Real u = strips.width / height;
  const Real widening_in_air = widening(u, strips.thickness / height);
  const Real in_air = u + widening_in_air;
  const Real in_sheet = u + widening_in_air / 2 * (1 + 1 / cosh(sqrt(er - 1)));
  const Real permittivity = effective_permittivity(in_sheet, er);
  const Real factor = strip_over_ground_factor(in_sheet, 1);
  const Real impedance_ohm = free_space_impedance_ohm / pi * factor / sqrt(permittivity);
  return {impedance_ohm, factor / (sqrt(permittivity) * strip_over_ground_factor(in_air, 1))};
}

Real narrowest_strip(const FacingStrips& strips) {
  return std::max(0.05 * strips.distance, strips.thickness);
}

Real widest_strip(const FacingStrips& strips) { return 50 * strips.distance; }

Real strip_width(const FacingStrips& strips, Real impedance_ohm) {
  return root_between(narrowest_strip(strips), widest_strip(strips), [&](Real width) {
    FacingStrips tried = strips;
    tried.width = width;
    return strip_line(tried).impedance_ohm - impedance_ohm;
  });
}

}  // namespace eterlab::lines
