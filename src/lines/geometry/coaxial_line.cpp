#include "lines/geometry/coaxial_line.h"

#include "common/physics.h"

namespace eterlab::lines {

Real coaxial_inner_diameter(Real screen_diameter, Real geometry_factor) {
  return screen_diameter * exp(-geometry_factor);
}

Real coaxial_screen_diameter(Real diameter, Real geometry_factor) {
  return diameter * exp(geometry_factor);
}

Real coaxial_highest_frequency_hz(Real diameter_m, Real screen_diameter_m,
                                  Real relative_permittivity) {
  constexpr double margin = 0.9;
  return margin * 2 * speed_of_light_m_per_s /
         (pi * sqrt(relative_permittivity) * (screen_diameter_m + diameter_m));
}

}  // namespace eterlab::lines
