#include "coils/solenoid.h"

#include "common/physics.h"

namespace eterlab::coils {

Real solenoid_inductance_h(Real radius_m, Real length_m, Real turns) {
  const Real slenderness = length_m / radius_m;
  return vacuum_permeability_h_per_m * turns * turns * radius_m *
         (log1p(pi / slenderness) + 1 / (2.3 + (1.6 + 0.44 * slenderness) * slenderness));
}

Real solenoid_self_capacitance_f(Real diameter_m, Real length_m) {
  const Real diameter_cm = 100 * diameter_m;
  const Real length_cm = 100 * length_m;
  return 1e-12 * (0.1126 * length_cm + 0.08 * diameter_cm +
                  0.27 * diameter_cm * sqrt(diameter_cm / length_cm));
}

}  // namespace eterlab::coils
