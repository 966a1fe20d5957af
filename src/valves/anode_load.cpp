#include "valves/anode_load.h"

#include <algorithm>

#include "common/physics.h"

namespace eterlab::valves {

namespace {

Real radians(Real degrees) { return degrees * pi / 180; }

Real swing_v(const PowerStage& stage) { return stage.supply_v - stage.least_anode_v; }

/// Peak over direct current of a clipped cosine.
Real peak_over_mean(Real conduction_degrees) {
  const Real half_angle = radians(conduction_degrees) / 2;
  const Real mean = (sin(half_angle) - half_angle * cos(half_angle)) / pi;
  return (1 - cos(half_angle)) / mean;
}

Real peak_current_a(const PowerStage& stage) {
  const int turns = stage.valves == ValvesInUse::push_pull ? 2 : 1;
  return stage.direct_current_a / turns * peak_over_mean(stage.conduction_degrees);
}

}  // namespace

Real fundamental_over_mean(Real conduction_degrees) {
  const Real angle = radians(conduction_degrees);
  return (angle - sin(angle)) / (2 * sin(angle / 2) - angle * cos(angle / 2));
}

AnodeLoad anode_load(const PowerStage& stage) {
  const Real fundamental_a =
      fundamental_over_mean(stage.conduction_degrees) * stage.direct_current_a;
  const Real each_ohm = swing_v(stage) / fundamental_a;
  const Real input_w = stage.supply_v * stage.direct_current_a;
  const Real output_w = swing_v(stage) * fundamental_a / 2;
  const bool is_class_a = stage.conduction_degrees >= class_a_degrees;
  return {stage.valves == ValvesInUse::push_pull ? 4 * each_ohm : each_ohm,
          input_w,
          output_w,
          is_class_a ? input_w : input_w - output_w,
          stage.supply_v + swing_v(stage),
          peak_current_a(stage)};
}

Real anode_voltage_v(const PowerStage& stage, Real degrees) {
  return stage.supply_v - swing_v(stage) * cos(radians(degrees));
}

Real anode_current_a(const PowerStage& stage, Real degrees) {
  const Real clipped = cos(radians(stage.conduction_degrees) / 2);
  return peak_current_a(stage) * std::max(Real{0}, cos(radians(degrees)) - clipped) / (1 - clipped);
}

}  // namespace eterlab::valves
