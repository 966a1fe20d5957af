#include "transformers/smoothing_choke.h"

#include <numbers>

#include "common/physics.h"
#include "common/rounding.h"
#include "transformers/gapped_core.h"

namespace eterlab::transformers {

SmoothingChoke smoothing_choke(const ChokeTask& task, const LaminatedCore& core) {
  constexpr double ripple_rad_per_s = 2 * pi * 100;
  const GappedWinding winding{task.inductance_h, task.direct_current_a,
                              std::numbers::sqrt2 * task.ripple_v / ripple_rad_per_s};
  const Real turns = rounded_up(least_turns(winding, core));
  const Real gap_m = total_gap_m(winding, turns);
  const Real current_a =
      hypot(task.direct_current_a, task.ripple_v / (ripple_rad_per_s * task.inductance_h));
  const WindingWire* wire = thinnest_wire_for(current_a);
  if (wire == nullptr) {
    return {turns, wire, gap_m, 0, 0, false};
  }
  const Real length_m = turns * core.mean_turn_m();
  return {turns,
          wire,
          gap_m,
          length_m * wire->resistance_ohm_per_m(),
          length_m * wire->weight_g_per_m(),
          turns * wire->section_mm2() <= core.copper_room_mm2()};
}

}  // namespace eterlab::transformers
