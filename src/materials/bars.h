#pragma once

#include <span>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::materials {

/// What bars and tubes are made of.
struct BarMaterial {
  std::string_view name;      ///< as lists show it, in Italian
  double density_kg_per_dm3;  ///< at room temperature
};

/// The catalogue, in the order of lists: metals after the CRC Handbook of Chemistry and Physics,
/// typical values of alloys, plastics and woods.
std::span<const BarMaterial> bar_materials();

/// Section of the wall of a tube, which is thinner than the radius.
Real tube_section_mm2(Real outer_diameter_mm, Real wall_mm);

/// Weight, in gram, of a bar of constant section.
Real bar_weight_g(const BarMaterial& material, Real section_mm2, Real length_m);

}  // namespace eterlab::materials
