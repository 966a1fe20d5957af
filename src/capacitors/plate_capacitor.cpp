#include "capacitors/plate_capacitor.h"

#include "common/physics.h"

namespace eterlab::capacitors {

namespace {

/// Capacitance in pF of as many gaps of 1 cm2 at 1 mm as there are between the plates.
Real unit_capacitance_pf(Real relative_permittivity, Real plates) {
  constexpr double pf_of_one_gap = vacuum_permittivity_f_per_m * 1e12 * 1e-4 / 1e-3;
  return pf_of_one_gap * relative_permittivity * (plates - 1);
}

}  // namespace

Real plate_capacitance_pf(Real relative_permittivity, Real plates, Real area_cm2,
                          Real distance_mm) {
  return unit_capacitance_pf(relative_permittivity, plates) * area_cm2 / distance_mm;
}

Real plate_area_cm2(Real relative_permittivity, Real plates, Real capacitance_pf,
                    Real distance_mm) {
  return capacitance_pf * distance_mm / unit_capacitance_pf(relative_permittivity, plates);
}

Real plate_distance_mm(Real relative_permittivity, Real plates, Real capacitance_pf,
                       Real area_cm2) {
  return unit_capacitance_pf(relative_permittivity, plates) * area_cm2 / capacitance_pf;
}

Real air_gap_voltage_v(Real distance_mm) { return 1500 * distance_mm; }

}  // namespace eterlab::capacitors
