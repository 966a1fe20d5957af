#include "transformers/gapped_core.h"

#include "common/physics.h"

namespace eterlab::transformers {

namespace {

constexpr double greatest_induction_t = 1.2;

Real total_linkage_vs(const GappedWinding& winding) {
  return winding.inductance_h * winding.direct_current_a + winding.peak_linkage_vs;
}

}  // namespace

Real least_turns(const GappedWinding& winding, const LaminatedCore& core) {
  const Real without_iron =
      total_linkage_vs(winding) / (greatest_induction_t * core.iron_section_m2());
  const Real without_gap = sqrt(winding.inductance_h / inductance_h(core, 1, 0));
  return without_iron / 2 + hypot(without_iron / 2, without_gap);
}

Real total_gap_m(const GappedWinding& winding, Real turns) {
  return vacuum_permeability_h_per_m * turns * total_linkage_vs(winding) /
         (greatest_induction_t * winding.inductance_h);
}

Real inductance_h(const LaminatedCore& core, Real turns, Real gap_m) {
  return vacuum_permeability_h_per_m * turns * turns * core.iron_section_m2() /
         (gap_m + core.iron_path_m() / incremental_permeability);
}

}  // namespace eterlab::transformers
