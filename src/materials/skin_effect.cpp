#include "materials/skin_effect.h"

#include "common/physics.h"

namespace eterlab::materials {

namespace {

/// The series in falling powers of the radius, from a = (1 + j) radius / depth on.
Complex asymptotic_ratio(Real radius_in_skin_depths) {
  const Complex a = Complex{1, 1} * radius_in_skin_depths;
  return a / 2 + 0.25 + 3 / (16 * a) + 3 / (16 * a * a);
}

/// From the recurrence of Bessel functions: with r(n) = z J(n-1) / J(n) it is
/// r(n) = 2 n - z^2 / r(n+1), a continued fraction whose terms all have a positive real part here.
Complex continued_fraction_ratio(Real radius_in_skin_depths) {
  constexpr int terms = 60;
  const Complex minus_z2{0, 2 * radius_in_skin_depths * radius_in_skin_depths};
  Complex r = terms + sqrt(terms * terms + minus_z2);  // as if all further terms were like this one
  for (int n = terms - 1; n > 0; --n) {
    r = 2 * n + minus_z2 / r;
  }
  return r / 2;
}

}  // namespace

Real skin_depth_m(Real resistivity_ohm_m, Real frequency_hz) {
  return sqrt(resistivity_ohm_m / (pi * vacuum_permeability_h_per_m * frequency_hz));
}

Real surface_resistance_ohm(Real resistivity_ohm_m, Real frequency_hz) {
  return resistivity_ohm_m / skin_depth_m(resistivity_ohm_m, frequency_hz);
}

Complex round_wire_impedance_ratio(Real radius_in_skin_depths) {
  constexpr double far = 30;
  return radius_in_skin_depths > far ? asymptotic_ratio(radius_in_skin_depths)
                                     : continued_fraction_ratio(radius_in_skin_depths);
}

}  // namespace eterlab::materials
