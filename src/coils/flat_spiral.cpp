#include "coils/flat_spiral.h"

#include "common/number_text.h"

namespace eterlab::coils {

FlatSpiral flat_spiral(Real turns, Real inner_radius_mm, Real outer_radius_mm) {
  const Real mean_radius_mm = (outer_radius_mm + inner_radius_mm) / 2;
  const Real width_mm = outer_radius_mm - inner_radius_mm;
  const Real radius_turns = mean_radius_mm * turns;
  return {mean_radius_mm, width_mm,
          rounded(radius_turns * radius_turns / (100 * (2 * mean_radius_mm + 2.8 * width_mm)))};
}

}  // namespace eterlab::coils
