#include "coils/multilayer_coil.h"

#include "common/number_text.h"

namespace eterlab::coils {

MultilayerCoil multilayer_coil(Real turns, Real width_cm, Real inner_radius_cm, Real wire_cm) {
  constexpr double two_pi = 6.28;
  constexpr double pi = 3.14159;
  constexpr double copper_ohm_mm2_per_m = 0.018;
  constexpr double mm2_in_cm2 = 100;

  MultilayerCoil coil;
  coil.turns_per_layer = width_cm / wire_cm;
  coil.layers = turns / coil.turns_per_layer;
  coil.thickness_cm = coil.layers * wire_cm;
  coil.outer_radius_cm = coil.thickness_cm + inner_radius_cm;
  const Real mean_radius_cm = (coil.outer_radius_cm + inner_radius_cm) / 2;
  coil.wire_length_m = rounded(turns * (mean_radius_cm * two_pi) / 100);
  coil.inductance_uh = rounded(0.315 * (mean_radius_cm * mean_radius_cm) * (turns * turns) /
                                   (6 * mean_radius_cm + 9 * width_cm + 10 * coil.thickness_cm),
                               2);
  const Real wire_radius_cm = wire_cm / 2;
  const Real section_cm2 = pi * (wire_radius_cm * wire_radius_cm);
  coil.resistance_ohm = copper_ohm_mm2_per_m / section_cm2 * coil.wire_length_m / mm2_in_cm2;
  return coil;
}

}  // namespace eterlab::coils
