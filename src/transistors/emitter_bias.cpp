#include "transistors/emitter_bias.h"

#include <algorithm>

#include "common/complex.h"
#include "common/physics.h"
#include "common/preferred_values.h"

namespace eterlab::transistors {

namespace {

constexpr double thermal_v = boltzmann_constant_j_per_k * 300 / elementary_charge_c;

Real base_emitter_v(Real collector_current_a) {
  return 0.65 + thermal_v * ln(collector_current_a / 1e-3);
}

/// The resistors alone.
CommonEmitterParts bias(const CommonEmitterGoal& goal, Real diode_v) {
  const auto nearest = [](Real ohm) { return nearest_preferred(ohm, Series::e24); };
  const Real collector_a = goal.collector_current_a;
  const Real base_a = collector_a / goal.current_gain;
  const Real wanted_emitter_v = std::max(Real{1}, goal.supply_v / 10);
  CommonEmitterParts parts;
  parts.collector_ohm = nearest((goal.supply_v - wanted_emitter_v) / 2 / collector_a);
  parts.emitter_ohm = nearest(wanted_emitter_v / (collector_a + base_a));
  const Real base_v = (collector_a + base_a) * parts.emitter_ohm + diode_v;
  parts.r2_ohm = nearest(base_v / (10 * base_a));
  parts.r1_ohm = nearest((goal.supply_v - base_v) / (base_v / parts.r2_ohm + base_a));
  return parts;
}

}  // namespace

CommonEmitterStage common_emitter_stage(const CommonEmitterGoal& goal) {
  const Real diode_v = base_emitter_v(goal.collector_current_a);
  CommonEmitterParts parts = bias(goal, diode_v);
  const Real divider_v = goal.supply_v * parts.r2_ohm / (parts.r1_ohm + parts.r2_ohm);
  const Real divider_ohm = parallel(parts.r1_ohm, parts.r2_ohm);
  const auto collector_current_a = [&](Real gain) {
    return gain * (divider_v - diode_v) / (divider_ohm + (gain + 1) * parts.emitter_ohm);
  };
  const Real collector_a = collector_current_a(goal.current_gain);
  const Real emitter_a = collector_a + collector_a / goal.current_gain;
  const Real emitter_v = emitter_a * parts.emitter_ohm;
  const Real collector_drop_v = collector_a * parts.collector_ohm;
  const Real collector_emitter_v = goal.supply_v - collector_drop_v - emitter_v;

  const Real transconductance_s = collector_a / thermal_v;
  const Real input_ohm = parallel(divider_ohm, goal.current_gain / transconductance_s);
  const Real inner_emitter_ohm = thermal_v / emitter_a;
  const Real omega = 2 * pi * goal.lowest_hz;
  const auto standard = [](Real capacitance_f) {
    return next_preferred_up(capacitance_f, Series::e6);
  };
  parts.input_coupling_f = standard(10 / (omega * input_ohm));
  parts.output_coupling_f = parts.input_coupling_f;
  parts.emitter_bypass_f = standard(1 / (omega * parallel(parts.emitter_ohm, inner_emitter_ohm)));

  constexpr double saturation_v = 0.2;
  return {.parts = parts,
          .collector_current_a = collector_a,
          .collector_emitter_v = collector_emitter_v,
          .emitter_v = emitter_v,
          .current_with_half_gain_a = collector_current_a(goal.current_gain / 2),
          .current_with_double_gain_a = collector_current_a(2 * goal.current_gain),
          .voltage_gain = transconductance_s * parts.collector_ohm,
          .voltage_gain_without_bypass = collector_a / emitter_a * parts.collector_ohm /
                                         (inner_emitter_ohm + parts.emitter_ohm),
          .input_ohm = input_ohm,
          .swing_v = 2 * std::min(collector_emitter_v - saturation_v, collector_drop_v),
          .dissipation_w = collector_emitter_v * collector_a};
}

}  // namespace eterlab::transistors
