#include "materials/round_wire.h"

#include "common/physics.h"

namespace eterlab::materials {

Real round_section_mm2(Real diameter_mm) { return pi / 4 * diameter_mm * diameter_mm; }

Real temperature_factor(const Metal& metal, Real temperature_c) {
  constexpr double reference_c = 20;
  return 1 + metal.temperature_coefficient_per_k * (temperature_c - reference_c);
}

Real resistance_ohm(const Metal& metal, Real section_mm2, Real length_m) {
  return metal.resistivity_ohm_mm2_per_m * length_m / section_mm2;
}

}  // namespace eterlab::materials
