#include "materials/copper_wire.h"

#include "common/number_text.h"

namespace eterlab::materials {

CopperWire copper_wire(Real diameter_mm, Real weight_g) {
  constexpr double pi = 3.1415926;
  constexpr double density_g_per_cm3 = 8.89;
  constexpr double largest_a_per_mm2 = 2.5;
  constexpr double resistivity_ohm_mm2_per_m = 0.0176;

  const Real radius_mm = diameter_mm / 2;
  const Real section_mm2 = pi * (radius_mm * radius_mm);
  const Real length_m = rounded(weight_g / (density_g_per_cm3 * section_mm2), 2);
  const Single resistance_ohm{length_m * (resistivity_ohm_mm2_per_m / section_mm2)};
  return {section_mm2, length_m, largest_a_per_mm2 * section_mm2,
          Single{rounded(resistance_ohm, 6)}};
}

}  // namespace eterlab::materials
