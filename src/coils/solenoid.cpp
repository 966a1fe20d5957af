#include "coils/solenoid.h"

#include "common/physics.h"

namespace eterlab::coils {

namespace {

// Wheeler's shape factor with the constants for flat coils and for long ones.
Real shape_factor(Real slenderness, double of_flat, double of_long) {
  return log1p(pi / slenderness) + 1 / (of_flat + (1.6 + of_long * slenderness) * slenderness);
}

}  // namespace

Real solenoid_inductance_h(Real radius_m, Real length_m, Real turns) {
  return vacuum_permeability_h_per_m * turns * turns * radius_m *
         shape_factor(length_m / radius_m, 2.3004, 0.4409);
}

Real handbook_solenoid_inductance_h(Real radius_m, Real length_m, Real turns) {
  return vacuum_permeability_h_per_m * turns * turns * radius_m *
         shape_factor(length_m / radius_m, 2.3, 0.44);
}

Real solenoid_self_capacitance_f(Real diameter_m, Real length_m) {
  const Real diameter_cm = 100 * diameter_m;
  const Real length_cm = 100 * length_m;
  return 1e-12 * (0.1126 * length_cm + 0.08 * diameter_cm +
                  0.27 * diameter_cm * sqrt(diameter_cm / length_cm));
}

}  // namespace eterlab::coils
