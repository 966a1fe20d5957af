#include "antennas/dipoles/linear_loading.h"

#include "common/physics.h"
#include "materials/skin_effect.h"

namespace eterlab::antennas {

LinearLoad linear_load(const LinearLoadedArm& arm) {
  constexpr double copper_ohm_m = 1.72e-8;
  const Real wavelength_m = arm.conductor.wavelength_m();
  const Real spacing_m = arm.spacing_mm / 1000;
  const Complex arm_ohm = dipole_impedance_ohm(arm.arm_m, arm.conductor) / 2;

  const Real radiator = arm.conductor.diameter_mm / arm.spacing_mm;
  const Real line_impedance_ohm = 120 * ln(2 * arm.spacing_mm / arm.load_wire_mm * (1 - radiator) *
                                           (1 + radiator) / (1 + radiator * radiator));
  const Real reactance_ohm = -arm_ohm.imaginary();
  const Real angle = atan(reactance_ohm / line_impedance_ohm);
  const Real line_m = angle * wavelength_m / (2 * pi);
  const Real length_m = line_m - spacing_m;

  const Real wire_ohm_per_m =
      materials::surface_resistance_ohm(copper_ohm_m, arm.conductor.frequency_mhz * 1e6) /
      (pi * arm.load_wire_mm / 1000);
  const Real loss_ohm = 2 * wire_ohm_per_m * line_m * (0.5 + sin(2 * angle) / (4 * angle)) /
                        (cos(angle) * cos(angle));
  const Real resistance_ohm = arm_ohm.real() + loss_ohm;
  return {.reactance_ohm = reactance_ohm,
          .line_impedance_ohm = line_impedance_ohm,
          .length_m = length_m,
          .wire_m = 2 * (length_m + spacing_m),
          .resistance_ohm = resistance_ohm,
          .efficiency = arm_ohm.real() / resistance_ohm};
}

}  // namespace eterlab::antennas
