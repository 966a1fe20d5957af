#include "materials/feed_cable.h"

#include <algorithm>
#include <array>

namespace eterlab::materials {

namespace {

constexpr std::array catalogue{
    CableSection{0.5, 3},  CableSection{0.75, 6}, CableSection{1, 10},   CableSection{1.5, 19.5},
    CableSection{2.5, 27}, CableSection{4, 36},   CableSection{6, 46},   CableSection{10, 63},
    CableSection{16, 85},  CableSection{25, 112}, CableSection{35, 138}, CableSection{50, 168},
    CableSection{70, 213}, CableSection{95, 258},
};

constexpr double resistivity_ohm_mm2_per_m = 0.0195;

}  // namespace

std::span<const CableSection> cable_sections() { return catalogue; }

Real section_for_drop_mm2(Real current_a, Real one_way_m, Real drop_v) {
  return 2 * resistivity_ohm_mm2_per_m * one_way_m * current_a / drop_v;
}

Real cable_drop_v(Real current_a, Real one_way_m, Real section_mm2) {
  return 2 * resistivity_ohm_mm2_per_m * one_way_m * current_a / section_mm2;
}

const CableSection* smallest_cable(Real section_mm2, Real current_a) {
  const Real least_mm2 = section_mm2 * (1 - 1e-9);
  const auto* const found = std::ranges::find_if(catalogue, [&](const CableSection& cable) {
    return cable.section_mm2 >= least_mm2 && cable.ampacity_a >= current_a;
  });
  return found == catalogue.end() ? nullptr : found;
}

}  // namespace eterlab::materials
