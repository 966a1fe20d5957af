#include "transformers/mains_transformer.h"

#include <numbers>

#include "common/physics.h"
#include "materials/metals.h"
#include "materials/round_wire.h"

namespace eterlab::transformers {

namespace {

constexpr double mains_hz = 50;
constexpr double working_temperature_c = 75;
constexpr double rectified_form_factor = 1.15;  // r.m.s. of each half over the direct current

constexpr Lamination sheets[] = {{"COMUNI (1,0 T)", 1.0, 2.6},
                                 {"AL SILICIO (1,2 T)", 1.2, 1.3},
                                 {"GRANI ORIENTATI (1,5 T)", 1.5, 0.5}};

Real winding_current_a(const Secondary& secondary) {
  return secondary.is_centre_tapped ? rectified_form_factor * secondary.current_a
                                    : secondary.current_a;
}

/// Through the core: the halves of a centre-tapped winding work alternately.
Real core_va(const Secondary& secondary) {
  const Real half_va = secondary.voltage_v * winding_current_a(secondary);
  return secondary.is_centre_tapped ? std::numbers::sqrt2 * half_va : half_va;
}

/// What heats the copper, over the drop.
Real copper_va(const Secondary& secondary) {
  return (secondary.is_centre_tapped ? 2 : 1) * secondary.voltage_v * winding_current_a(secondary);
}

MainsWinding winding(Real turns, Real current_a, int halves, const LaminatedCore& core) {
  const WindingWire* wire = thinnest_wire_for(current_a);
  const Real length_m = halves * turns * core.mean_turn_m();
  return {turns, current_a, halves, wire, wire == nullptr ? 0 : length_m * wire->weight_g_per_m()};
}

bool fit(const std::vector<MainsWinding>& secondaries, const MainsWinding& primary,
         const LaminatedCore& core) {
  Real copper_mm2 = 0;
  const auto add = [&](const MainsWinding& winding) {
    if (winding.wire != nullptr) {
      copper_mm2 += winding.halves * winding.turns * winding.wire->section_mm2();
    }
    return winding.wire != nullptr;
  };
  bool has_wires = add(primary);
  for (const MainsWinding& secondary : secondaries) {
    has_wires = add(secondary) && has_wires;
  }
  return has_wires && copper_mm2 <= core.copper_room_mm2();
}

}  // namespace

std::span<const Lamination> laminations() { return sheets; }

MainsTransformer mains_transformer(const MainsTransformerTask& task, const LaminatedCore& core) {
  const Real turns_per_volt = 1 / (std::numbers::sqrt2 * pi * mains_hz *
                                   task.lamination.induction_t * core.iron_section_m2());
  const Real hot_resistivity_ohm_mm2_per_m =
      winding_resistivity_ohm_mm2_per_m *
      materials::temperature_factor(materials::copper, working_temperature_c);
  // The same of all windings, as the current density is.
  const Real drop = hot_resistivity_ohm_mm2_per_m * current_density_a_per_mm2 * core.mean_turn_m() *
                    turns_per_volt;

  Real output_va = 0;
  Real secondary_copper_va = 0;
  std::vector<MainsWinding> secondaries;
  for (const Secondary& secondary : task.secondaries) {
    output_va += core_va(secondary);
    secondary_copper_va += copper_va(secondary);
    secondaries.push_back(winding(round(secondary.voltage_v * turns_per_volt * (1 + drop)),
                                  winding_current_a(secondary), secondary.is_centre_tapped ? 2 : 1,
                                  core));
  }
  const Real iron_w = task.lamination.loss_w_per_kg * task.lamination.induction_t *
                      task.lamination.induction_t * core.iron_mass_kg();
  const Real primary_copper_va = output_va * (1 + drop) / (1 - drop);
  const Real copper_w = drop * (secondary_copper_va + primary_copper_va);
  const MainsWinding primary = winding(round(task.mains_v * turns_per_volt * (1 - drop)),
                                       (primary_copper_va + iron_w) / task.mains_v, 1, core);
  const bool fits = fit(secondaries, primary, core);
  return {turns_per_volt, output_va,   output_va / (output_va + copper_w + iron_w),
          primary,        secondaries, fits};
}

}  // namespace eterlab::transformers
