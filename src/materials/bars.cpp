#include "materials/bars.h"

#include <array>

#include "common/physics.h"

namespace eterlab::materials {

namespace {

constexpr std::array catalogue{
    BarMaterial{"ALLUMINIO", 2.70},
    BarMaterial{"ACCIAIO", 7.85},
    BarMaterial{"ACCIAIO INOX", 7.95},
    BarMaterial{"RAME", 8.96},
    BarMaterial{"OTTONE", 8.50},
    BarMaterial{"BRONZO", 8.80},
    BarMaterial{"FERRO", 7.87},
    BarMaterial{"GHISA", 7.20},
    BarMaterial{"PIOMBO", 11.34},
    BarMaterial{"STAGNO", 7.29},
    BarMaterial{"ZINCO", 7.14},
    BarMaterial{"NICHEL", 8.91},
    BarMaterial{"ARGENTO", 10.49},
    BarMaterial{"ORO", 19.30},
    BarMaterial{"TITANIO", 4.51},
    BarMaterial{"MAGNESIO", 1.74},
    BarMaterial{"VETRORESINA", 1.90},
    BarMaterial{"NYLON", 1.14},
    BarMaterial{"TEFLON (PTFE)", 2.18},
    BarMaterial{"POLIETILENE", 0.94},
    BarMaterial{"PVC", 1.40},
    BarMaterial{"PLEXIGLAS", 1.19},
    BarMaterial{"VETRO", 2.50},
    BarMaterial{"PORCELLANA", 2.40},
    BarMaterial{"LEGNO DI ABETE", 0.45},
    BarMaterial{"LEGNO DI FAGGIO", 0.72},
    BarMaterial{"BAMBU'", 0.70},
    BarMaterial{"ACQUA", 1.00},
};

}  // namespace

std::span<const BarMaterial> bar_materials() { return catalogue; }

Real tube_section_mm2(Real outer_diameter_mm, Real wall_mm) {
  return pi * (outer_diameter_mm - wall_mm) * wall_mm;
}

Real bar_weight_g(const BarMaterial& material, Real section_mm2, Real length_m) {
  return section_mm2 * length_m * material.density_kg_per_dm3;
}

}  // namespace eterlab::materials
