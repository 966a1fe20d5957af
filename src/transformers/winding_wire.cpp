#include "transformers/winding_wire.h"

#include <algorithm>

#include "materials/round_wire.h"

namespace eterlab::transformers {

namespace {

constexpr WindingWire wires[] = {
    {0.050, 0.060}, {0.056, 0.067}, {0.063, 0.076}, {0.071, 0.084}, {0.080, 0.094}, {0.090, 0.105},
    {0.100, 0.117}, {0.112, 0.130}, {0.125, 0.144}, {0.140, 0.160}, {0.160, 0.182}, {0.180, 0.204},
    {0.200, 0.226}, {0.224, 0.252}, {0.250, 0.281}, {0.280, 0.312}, {0.315, 0.349}, {0.355, 0.392},
    {0.400, 0.439}, {0.450, 0.491}, {0.500, 0.544}, {0.560, 0.606}, {0.630, 0.679}, {0.710, 0.762},
    {0.800, 0.855}, {0.900, 0.959}, {1.000, 1.062}, {1.120, 1.184}, {1.250, 1.316}, {1.400, 1.468},
    {1.600, 1.670}, {1.800, 1.872}, {2.000, 2.074}, {2.240, 2.316}, {2.500, 2.578}, {2.800, 2.880},
    {3.150, 3.233}, {3.550, 3.635}, {4.000, 4.088}};

}  // namespace

Real WindingWire::section_mm2() const { return materials::round_section_mm2(diameter_mm); }

Real WindingWire::resistance_ohm_per_m() const {
  return winding_resistivity_ohm_mm2_per_m / section_mm2();
}

Real WindingWire::weight_g_per_m() const {
  constexpr double density_g_per_cm3 = 8.89;  // IEC 60028
  return density_g_per_cm3 * section_mm2();
}

Real WindingWire::current_a() const { return current_density_a_per_mm2 * section_mm2(); }

Real WindingWire::turns_per_cm() const {
  constexpr double mm_in_cm = 10;
  return mm_in_cm / greatest_outer_diameter_mm;
}

Real WindingWire::turns_per_cm2() const { return turns_per_cm() * turns_per_cm(); }

std::span<const WindingWire> winding_wires() { return wires; }

const WindingWire* thinnest_wire_for(Real current_a) {
  const auto* wire = std::ranges::find_if(
      wires, [current_a](const WindingWire& each) { return each.current_a() >= current_a; });
  return wire == std::end(wires) ? nullptr : wire;
}

const WindingWire& thickest_wire_within(Real section_mm2) {
  const auto* beyond = std::ranges::find_if(
      wires, [section_mm2](const WindingWire& each) { return each.section_mm2() > section_mm2; });
  return beyond == std::begin(wires) ? wires[0] : *(beyond - 1);
}

}  // namespace eterlab::transformers
