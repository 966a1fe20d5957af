#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <sstream>
#include <string>

#include "common/complex.h"
#include "common/numerics.h"
#include "common/physics.h"
#include "transformers/laminated_core.h"
#include "valves/anode_load.h"
#include "valves/lead_colours.h"
#include "valves/output_transformer.h"
#include "valves/output_valves.h"
#include "valves/pi_network.h"

namespace eterlab::valves {
namespace {

// What a class A valve gives into its load swings its current about the mean one: a little more at
// most, as the second harmonic raises the mean.
TEST(OutputValves, SwingWithinTheirCurrent) {
  for (const OutputValve& valve : output_valves()) {
    if (valve.circuit == OutputCircuit::single) {
      const double swing_ma = 1000 * std::sqrt(2 * valve.power_w / valve.load_ohm);
      EXPECT_LT(swing_ma, 1.06 * valve.anode_current_ma) << valve.name;
      EXPECT_GT(swing_ma, 0.8 * valve.anode_current_ma) << valve.name;
    }
  }
}

TEST(OutputTransformers, OfEveryValveKeepInductionResponseAndLoss) {
  constexpr double lowest_hz = 60;
  for (const OutputValve& valve : output_valves()) {
    SCOPED_TRACE(valve.name);
    const OutputStage stage{
        valve.circuit, valve.load_ohm, valve.power_w, valve.anode_current_ma / 1000, 8, lowest_hz};
    const auto core = transformers::smallest_core(
        [&](const transformers::LaminatedCore& each) { return copper_loss(stage, each) <= 0.1; });
    ASSERT_TRUE(core);
    const OutputTransformer made = output_transformer(stage, *core);
    const double turns = made.primary.turns.value();
    const double section_m2 = core->iron_section_m2().value();

    // Peak signal by Faraday's law, direct flux by the gap alone.
    const double signal_t =
        std::sqrt(2 * valve.power_w * valve.load_ohm) / (2 * pi * lowest_hz * turns * section_m2);
    const bool is_single = valve.circuit == OutputCircuit::single;
    const double direct_t =
        is_single
            ? (vacuum_permeability_h_per_m * turns * stage.anode_current_a / made.gap_m).value()
            : 0;
    EXPECT_LE(signal_t + direct_t, is_single ? 1.2 : 1.0);

    // A current source into load and inductance side by side.
    const double reactance_ohm = 2 * pi * lowest_hz * made.inductance_h.value();
    const double response = reactance_ohm / std::hypot(reactance_ohm, made.load_ohm.value());
    EXPECT_GE(20 * std::log10(response), -3.1);

    EXPECT_NEAR(made.load_ohm.value(), valve.load_ohm, 0.03 * valve.load_ohm);
    EXPECT_GT(made.efficiency, 0.86);
    // The copper fills its room, but for what the next thicker wire would take.
    EXPECT_LE(made.primary.turns * made.primary.wire->section_mm2(), core->copper_room_mm2() / 2);
    EXPECT_LE(made.secondary.turns * made.secondary.wire->section_mm2(),
              core->copper_room_mm2() / 2);
  }
}

TEST(AnodeLoads, AgreeWithFourierIntegralsOverACycle) {
  for (const double conduction :
       {class_a_degrees, class_ab_degrees, class_b_degrees, class_c_degrees}) {
    for (const ValvesInUse valves : {ValvesInUse::parallel, ValvesInUse::push_pull}) {
      SCOPED_TRACE(conduction);
      const PowerStage stage{conduction, valves, 600, 0.1, 80};
      const auto mean = [&](const RealFunction& f) {  // by halves, split where the current ends
        return (integral(0, conduction / 2, f) + integral(conduction / 2, 180, f)).value() / 180;
      };
      const AnodeLoad load = anode_load(stage);
      const int sides = valves == ValvesInUse::push_pull ? 2 : 1;
      const auto current = [&](Real x) { return anode_current_a(stage, x); };
      const double mean_a =
          conduction == 360 ? integral(0, 180, current).value() / 180 : mean(current);
      EXPECT_NEAR(sides * mean_a, 0.1, 1e-9);
      const auto heat = [&](Real x) { return current(x) * anode_voltage_v(stage, x); };
      const double heat_w =
          sides * (conduction == 360 ? integral(0, 180, heat).value() / 180 : mean(heat));
      EXPECT_NEAR(heat_w, (load.input_w - load.output_w).value(), 1e-7);
      EXPECT_NEAR(current(0).value(), load.peak_current_a.value(), 1e-12);
      // The power is that of the swing into the load: both anodes in turn of that between them.
      const double swing_v = sides * 520.0;
      EXPECT_NEAR(load.output_w.value(), swing_v * swing_v / (2 * load.load_ohm.value()), 1e-9);
    }
  }
  EXPECT_NEAR(fundamental_over_mean(1).value(), 2, 1e-4);
}

/// Of the ladder from the antenna back to the valve, at some times the frequency, for 1 V at the
/// antenna.
struct Ladder {
  Complex voltage;
  Complex current;
  Complex coil_current;
};

Ladder ladder(const PiNetworkTask& task, double times) {
  const circuits::PiNetwork network = pi_network(task);
  const Real rad_per_s = times * 2 * pi * task.frequency_hz;
  const Complex coil_current{1 / task.antenna_ohm, rad_per_s * network.output_f};
  const Complex voltage = 1 + coil_current * Complex{0, rad_per_s * network.inductance_h};
  return {voltage, coil_current + voltage * Complex{0, rad_per_s * network.input_f}, coil_current};
}

TEST(PiNetworks, MatchAndHoldBackAsTheLadderTells) {
  const PiNetworkTask table[] = {{2846, 50, 7.05e6, 12},
                                 {10, 5000, 1e5, 1},
                                 {50000, 50, 5e8, 100},
                                 {100, 50, 3.6e6, 1.0001},
                                 {1800, 75, 14.2e6, 12}};
  for (const PiNetworkTask& task : table) {
    SCOPED_TRACE(task.anode_ohm.value());
    ASSERT_TRUE(can_match(task));
    const Ladder tuned = ladder(task, 1);
    const Complex input_ohm = tuned.voltage / tuned.current;
    EXPECT_NEAR((input_ohm.real() / task.anode_ohm).value(), 1, 1e-9);
    EXPECT_NEAR((input_ohm.imaginary() / task.anode_ohm).value(), 0, 1e-9);
    EXPECT_NEAR(second_harmonic_attenuation_db(task).value(),
                20 * std::log10((abs(ladder(task, 2).current) / abs(tuned.current)).value()), 1e-9);
    // So much power makes 1 V peak at the antenna.
    const Real power_w = 1 / (2 * task.antenna_ohm);
    const PiNetworkStress stress = pi_network_stress(task, power_w);
    EXPECT_NEAR(stress.antenna_peak_v.value(), 1, 1e-12);
    EXPECT_NEAR((stress.anode_peak_v / abs(tuned.voltage)).value(), 1, 1e-9);
    EXPECT_NEAR((stress.coil_a * std::sqrt(2) / abs(tuned.coil_current)).value(), 1, 1e-9);
  }
  EXPECT_FALSE(can_match({500, 50, 7e6, 3}));
}

TEST(LeadColours, SayTheSameInBothLanguages) {
  const std::map<std::string, std::string> words = {
      {"NERO", "BLACK"}, {"ROSSO", "RED"},     {"GIALLO", "YELLOW"}, {"VERDE", "GREEN"},
      {"BLU", "BLUE"},   {"MARRONE", "BROWN"}, {"GRIGIO", "SLATE"},  {"/", "/"}};
  for (const LeadColours& part : lead_colours()) {
    for (const Lead& lead : part.leads) {
      std::istringstream italian{std::string{lead.colour}};
      std::string english;
      for (std::string word; italian >> word;) {
        english += (english.empty() ? "" : " ") + words.at(word);
      }
      EXPECT_EQ(lead.english, english) << lead.name;
    }
  }
}

}  // namespace
}  // namespace eterlab::valves
