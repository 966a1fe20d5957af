#include "materials/strand.h"

#include <algorithm>
#include <cmath>

#include "common/physics.h"
#include "materials/round_wire.h"

namespace eterlab::materials {

namespace {

double distance(const WirePlace& place) { return std::hypot(place.x, place.y); }

/// The places nearest to the middle in a hexagonal pattern with a wire there, from the inside out.
std::vector<WirePlace> around(WirePlace wire, int wires) {
  const double row_distance = std::sqrt(0.75);
  const int reach = static_cast<int>(std::sqrt(wires)) + 2;  // a circle of all would be narrower
  std::vector<WirePlace> places;
  for (int row = -reach; row <= reach; ++row) {
    for (int column = -2 * reach; column <= 2 * reach; ++column) {
      places.push_back({wire.x + column + 0.5 * row, wire.y + row * row_distance});
    }
  }
  const auto last = places.begin() + wires;
  std::ranges::partial_sort(places, last, {}, distance);
  places.erase(last, places.end());
  return places;
}

}  // namespace

Strand strand_of_wires(Real wires, Real wire_diameter_mm) {
  return {wires * round_section_mm2(wire_diameter_mm), wire_diameter_mm,
          wire_diameter_mm * sqrt(wires)};
}

Strand strand_of_section(Real wires, Real section_mm2) {
  const Real equivalent_diameter_mm = sqrt(4 / pi * section_mm2);
  return {section_mm2, equivalent_diameter_mm / sqrt(wires), equivalent_diameter_mm};
}

std::vector<WirePlace> wires_in_strand(int wires) {
  const std::vector<WirePlace> candidates[] = {
      around({0, 0}, wires),                     // one wire in the middle
      around({0.5, 0}, wires),                   // two
      around({0.5, std::sqrt(1.0 / 12)}, wires)  // three
  };
  return *std::ranges::min_element(
      candidates, {}, [](const std::vector<WirePlace>& places) { return distance(places.back()); });
}

}  // namespace eterlab::materials
