#include "power/regulator_circuits.h"

#include <algorithm>

#include "common/number_text.h"
#include "common/preferred_values.h"
#include "common/rounding.h"

namespace eterlab::power {

namespace {

constexpr double ground_pin_a = 0.005;
constexpr double diode_v = 0.7;
constexpr double boost_base_emitter_v = 0.8;
constexpr double regulator_share_a = 0.5;

}  // namespace

Real LiftedRegulator::output_v() const { return nominal_v + lift_v; }

Real LiftedRegulator::dissipation_w(Real input_v, Real load_a) const {
  return (input_v - output_v()) * load_a + (input_v - lift_v) * ground_pin_a;
}

Real LiftedRegulator::part_dissipation_w() const {
  return (diodes > 0 ? Real{diode_v} : lift_v) * ground_pin_a;
}

LiftedRegulator lifted_regulator(Real nominal_v, Real output_v) {
  constexpr int most_diodes = 3;
  constexpr double lowest_zener_v = 2.4;
  constexpr double highest_zener_v = 30;
  constexpr double to_the_next = 1.01;  // less than from a value of E24 to the next one
  const auto distance = [&](Real lift_v) { return rounded(abs(nominal_v + lift_v - output_v), 9); };
  LiftedRegulator best{nominal_v, diode_v, 1};
  const auto consider = [&](Real lift_v, int diodes) {
    if (distance(lift_v) < distance(best.lift_v)) {
      best = {nominal_v, lift_v, diodes};
    }
  };
  for (int diodes = 2; diodes <= most_diodes; ++diodes) {
    consider(diodes * diode_v, diodes);
  }
  for (Real zener_v = lowest_zener_v; zener_v <= highest_zener_v;
       zener_v = next_preferred_up(zener_v * to_the_next, Series::e24)) {
    consider(zener_v, 0);
  }
  return best;
}

Real RegulatedCurrent::highest_load_v(Real input_v) const { return input_v - 2.5 - nominal_v; }

Real RegulatedCurrent::dissipation_w(Real input_v) const {
  return (input_v - nominal_v) * nominal_v / resistance_ohm + input_v * ground_pin_a;
}

Real RegulatedCurrent::resistor_dissipation_w() const {
  return nominal_v * nominal_v / resistance_ohm;
}

RegulatedCurrent regulated_current(Real nominal_v, Real current_a) {
  const Real resistance_ohm =
      nearest_preferred(nominal_v / (current_a - ground_pin_a), Series::e24);
  return {nominal_v, resistance_ohm, nominal_v / resistance_ohm + ground_pin_a};
}

Real BoostedRegulator::dissipation_w(Real input_v) const {
  return (input_v - boost_base_emitter_v) * regulator_a - nominal_v * (regulator_a - ground_pin_a);
}

Real BoostedRegulator::transistor_dissipation_w(Real input_v) const {
  return (input_v - nominal_v) * transistor_a + boost_base_emitter_v * transistor_a / current_gain;
}

Real BoostedRegulator::resistor_dissipation_w() const {
  return boost_base_emitter_v * boost_base_emitter_v / resistance_ohm;
}

Real least_boost_gain(Real load_a) {
  constexpr double highest_base_a = 0.4;
  return rounded_up((load_a - regulator_share_a) / highest_base_a);
}

BoostedRegulator boosted_regulator(Real nominal_v, Real load_a, Real current_gain) {
  const Real base_a = (load_a - regulator_share_a) / current_gain;
  const Real resistance_ohm =
      nearest_preferred(boost_base_emitter_v / (regulator_share_a - base_a), Series::e12);
  const Real regulator_a =
      (boost_base_emitter_v / resistance_ohm + (load_a + ground_pin_a) / current_gain) /
      (1 + 1 / current_gain);
  return {nominal_v, current_gain, resistance_ohm, regulator_a,
          load_a + ground_pin_a - regulator_a};
}

std::optional<Real> heat_sink_k_per_w(Real dissipation_w) {
  constexpr double rise_k = 85;
  constexpr double bare_k_per_w = 65;
  constexpr double junction_to_sink_k_per_w = 6;
  if (dissipation_w <= rise_k / bare_k_per_w) {
    return std::nullopt;
  }
  return rise_k / dissipation_w - junction_to_sink_k_per_w;
}

VariableSupply variable_supply(const VariableSupplyGoal& goal) {
  constexpr double reference_v = 1.25;
  constexpr double adjusting_pin_a = 50e-6;
  constexpr double least_output_a = 0.01;
  constexpr double noise_v = 1e-9;
  constexpr double to_the_next = 0.99;  // less than from a value of E24 to the next one
  const auto standard_below = [](Real ohm) { return next_preferred_down(ohm, Series::e24); };
  const Real potentiometer_ohm = goal.potentiometer_ohm;
  const auto with = [&](Real r1_ohm) {
    const Real divider_a = reference_v / r1_ohm + adjusting_pin_a;
    const Real wanted_r2_ohm = (goal.lowest_v - reference_v) / divider_a;
    std::optional<Real> r2_ohm;
    if (wanted_r2_ohm >= 1) {
      r2_ohm = standard_below(wanted_r2_ohm);
    }
    const Real lowest_v = reference_v + divider_a * r2_ohm.value_or(0);
    return VariableSupply{.r1_ohm = r1_ohm,
                          .r2_ohm = r2_ohm,
                          .lowest_v = lowest_v,
                          .highest_v = lowest_v + divider_a * potentiometer_ohm,
                          .potentiometer_w = divider_a * divider_a * potentiometer_ohm,
                          .least_load_a = std::max(Real{0}, least_output_a - reference_v / r1_ohm)};
  };
  const Real range_a = (goal.highest_v - goal.lowest_v) / potentiometer_ohm;
  VariableSupply supply = with(standard_below(reference_v / (range_a - adjusting_pin_a)));
  while (supply.highest_v < goal.highest_v - noise_v) {
    supply = with(standard_below(supply.r1_ohm * to_the_next));
  }
  return supply;
}

Real variable_supply_input_v(Real highest_v) { return highest_v + 3; }

Real always_available_a(Real input_v, Real lowest_v, Real wanted_a) {
  return std::min(wanted_a, highest_dissipation_w / (input_v - lowest_v));
}

}  // namespace eterlab::power
