#include "valves/output_transformer.h"

#include <algorithm>
#include <numbers>

#include "common/physics.h"
#include "common/rounding.h"
#include "transformers/gapped_core.h"

namespace eterlab::valves {

using transformers::LaminatedCore;

namespace {

transformers::GappedWinding primary_task(const OutputStage& stage) {
  const Real rad_per_s = 2 * pi * stage.lowest_frequency_hz;
  const Real signal_v = sqrt(stage.power_w * stage.load_ohm);
  return {stage.load_ohm / rad_per_s,
          stage.circuit == OutputCircuit::single ? stage.anode_current_a : 0,
          std::numbers::sqrt2 * signal_v / rad_per_s};
}

/// Not rounded.
Real primary_turns(const OutputStage& stage, const LaminatedCore& core) {
  const transformers::GappedWinding task = primary_task(stage);
  if (stage.circuit == OutputCircuit::single) {
    return least_turns(task, core);
  }
  constexpr double greatest_induction_t = 1;
  const Real for_induction = task.peak_linkage_vs / (greatest_induction_t * core.iron_section_m2());
  const Real for_inductance = sqrt(task.inductance_h / inductance_h(core, 1, 0));
  return std::max(for_induction, for_inductance);
}

OutputWinding winding(Real turns, const LaminatedCore& core) {
  const transformers::WindingWire& wire =
      transformers::thickest_wire_within(core.copper_room_mm2() / 2 / turns);
  return {turns, &wire, wire.resistance_ohm_per_m() * turns * core.mean_turn_m()};
}

}  // namespace

Real copper_loss(const OutputStage& stage, const LaminatedCore& core) {
  const Real turns = primary_turns(stage, core);
  return 4 * transformers::winding_resistivity_ohm_mm2_per_m * turns * turns * core.mean_turn_m() /
         (core.copper_room_mm2() * stage.load_ohm);
}

OutputTransformer output_transformer(const OutputStage& stage, const LaminatedCore& core) {
  const bool is_single = stage.circuit == OutputCircuit::single;
  const Real least = primary_turns(stage, core);
  const Real turns = is_single ? rounded_up(least) : 2 * rounded_up(least / 2);
  const Real wound_load_ohm = stage.load_ohm * (1 - copper_loss(stage, core));
  const OutputWinding primary = winding(turns, core);
  const OutputWinding secondary =
      winding(std::max(Real{1}, round(turns / sqrt(wound_load_ohm / stage.speaker_ohm))), core);
  const Real ratio = primary.turns / secondary.turns;
  const Real load_ohm =
      primary.resistance_ohm + ratio * ratio * (stage.speaker_ohm + secondary.resistance_ohm);
  const Real gap_m = is_single ? total_gap_m(primary_task(stage), turns) : 0;
  return {primary,
          secondary,
          gap_m,
          inductance_h(core, turns, gap_m),
          ratio,
          load_ohm,
          ratio * ratio * stage.speaker_ohm / load_ohm};
}

}  // namespace eterlab::valves
