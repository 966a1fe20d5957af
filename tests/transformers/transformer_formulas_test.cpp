#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "common/physics.h"
#include "transformers/gapped_core.h"
#include "transformers/laminated_core.h"
#include "transformers/mains_transformer.h"
#include "transformers/smoothing_choke.h"
#include "transformers/universal_autotransformer.h"
#include "transformers/winding_wire.h"

namespace eterlab::transformers {
namespace {

TEST(WindingWires, AreTheSeriesOfTheStandard) {
  const auto wires = winding_wires();
  ASSERT_EQ(wires.size(), 39U);
  for (std::size_t i = 1; i < wires.size(); ++i) {
    SCOPED_TRACE(wires[i].diameter_mm);
    EXPECT_NEAR(wires[i].diameter_mm / wires[i - 1].diameter_mm, std::pow(10, 0.05), 0.022);
    const double enamel = wires[i].greatest_outer_diameter_mm - wires[i].diameter_mm;
    const double enamel_before = wires[i - 1].greatest_outer_diameter_mm - wires[i - 1].diameter_mm;
    EXPECT_GT(enamel, enamel_before - 1e-9);
    EXPECT_LT(enamel, enamel_before + 0.0045);
  }
}

// Nominal resistances of IEC 60317-0-1 in ohm/m, and copper of 0.511 mm, AWG 24, after a handbook
// of radio: 1.82 kg/km.
TEST(WindingWires, HaveTheResistancesAndWeightsOfTheStandard) {
  const std::pair<double, double> table[] = {
      {0.050, 8.706}, {0.100, 2.176}, {0.200, 0.5441}, {0.500, 0.08706}, {1.000, 0.02176}};
  for (const auto& [diameter_mm, ohm_per_m] : table) {
    const auto wires = winding_wires();
    const auto wire = std::ranges::find(wires, diameter_mm, &WindingWire::diameter_mm);
    ASSERT_NE(wire, wires.end());
    EXPECT_NEAR(wire->resistance_ohm_per_m().value(), ohm_per_m, 4e-4 * ohm_per_m);
  }
  EXPECT_NEAR(WindingWire(0.511, 0.56).weight_g_per_m().value(), 1.82, 0.01);
}

TEST(WindingWires, AreFoundOnBothSides) {
  for (const WindingWire& wire : winding_wires()) {
    const Real section = wire.section_mm2();
    EXPECT_EQ(thinnest_wire_for(0.999 * wire.current_a()), &wire);
    EXPECT_EQ(&thickest_wire_within(1.001 * section), &wire);
  }
  EXPECT_EQ(thinnest_wire_for(31.416), nullptr);
  EXPECT_EQ(thickest_wire_within(1e-9).diameter_mm, 0.05);
}

// The laminations EI 84 of the trade: tongue 28 mm, iron path 168 mm, mean turn of its bobbin 156
// mm.
TEST(LaminatedCores, HaveTheSizesOfTheTrade) {
  const LaminatedCore core{7.84};
  EXPECT_NEAR(core.tongue_m().value(), 0.028, 1e-12);
  EXPECT_NEAR(core.iron_path_m().value(), 0.168, 1e-12);
  EXPECT_NEAR(core.mean_turn_m().value(), 0.156, 0.001);
  EXPECT_NEAR(core.copper_room_mm2().value(), 0.3 * 14 * 42, 1e-9);
  EXPECT_EQ(core.tongue_to_buy_mm(), 28);
  EXPECT_EQ(LaminatedCore{7.9}.tongue_to_buy_mm(), 29);
}

/// Peak induction: the direct current's, as if the gap alone held it back, and what alternates.
double induction_t(const GappedWinding& winding, const LaminatedCore& core, Real turns,
                   Real gap_m) {
  return (vacuum_permeability_h_per_m * turns * winding.direct_current_a / gap_m +
          winding.peak_linkage_vs / (turns * core.iron_section_m2()))
      .value();
}

TEST(GappedCores, MeetBothConditions) {
  const std::pair<GappedWinding, double> table[] = {{{10, 0.06, 0}, 3.1},
                                                    {{5, 0.15, 0.0225}, 6.2},
                                                    {{11.82, 0.048, 0.55}, 5.6},
                                                    {{0.1, 1, 1.1}, 30},
                                                    {{100, 0.001, 0}, 1}};
  for (const auto& [winding, section_cm2] : table) {
    SCOPED_TRACE(winding.inductance_h.value());
    const LaminatedCore core{section_cm2};
    const Real turns = least_turns(winding, core);
    const Real gap_m = total_gap_m(winding, turns);
    EXPECT_LE(induction_t(winding, core, turns, gap_m), 1.2 + 1e-9);
    EXPECT_NEAR((inductance_h(core, turns, gap_m) / winding.inductance_h).value(), 1, 1e-9);
    if (winding.peak_linkage_vs == 0) {
      // Of gaps that keep the induction, the smallest leaves the largest inductance.
      const Real fewer = turns - 1;
      const Real smallest_gap_m =
          vacuum_permeability_h_per_m * fewer * winding.direct_current_a / 1.2;
      EXPECT_LT(inductance_h(core, fewer, smallest_gap_m), winding.inductance_h);
    }
  }
}

/// Voltages of the secondaries at full load, by an equivalent circuit of winding resistances, a
/// resistor for the iron and loads.
std::vector<double> loaded_v(const MainsTransformerTask& task, const MainsTransformer& made,
                             const LaminatedCore& core) {
  const auto ohm = [&core](const MainsWinding& winding) {
    constexpr double hot = 1 + 0.00393 * 55;
    return (hot * winding.turns * core.mean_turn_m() * winding.wire->resistance_ohm_per_m())
        .value();
  };
  // Current of the primary for a volt per turn; then what a turn has.
  double ampere_turns = 0;
  std::vector<double> conductances;
  for (std::size_t i = 0; i < made.secondaries.size(); ++i) {
    const double load_ohm = (task.secondaries[i].voltage_v / task.secondaries[i].current_a).value();
    const double turns = made.secondaries[i].turns.value();
    conductances.push_back(turns / (load_ohm + ohm(made.secondaries[i])));
    ampere_turns += turns * conductances.back();
  }
  const double turns = made.primary.turns.value();
  const double volt_per_turn =
      task.mains_v.value() / (turns + ohm(made.primary) * ampere_turns / turns);
  std::vector<double> voltages;
  for (std::size_t i = 0; i < conductances.size(); ++i) {
    voltages.push_back(volt_per_turn * conductances[i] *
                       (task.secondaries[i].voltage_v / task.secondaries[i].current_a).value());
  }
  return voltages;
}

TEST(MainsTransformers, GiveTheirVoltagesAtFullLoadOnTheSmallestCoreThatHoldsTheCopper) {
  const MainsTransformerTask table[] = {{230, laminations()[1], {{250, 0.06}, {24, 2}}},
                                        {110, laminations()[0], {{300, 0.15}}},
                                        {400, laminations()[2], {{48, 10}, {110, 1}, {60, 0.001}}}};
  for (const MainsTransformerTask& task : table) {
    SCOPED_TRACE(task.mains_v.value());
    const auto suits = [&task](const LaminatedCore& core) {
      return mains_transformer(task, core).fits;
    };
    const std::optional<LaminatedCore> core = smallest_core(suits);
    ASSERT_TRUE(core);
    EXPECT_FALSE(suits({core->gross_section_cm2 - 0.1}));
    const MainsTransformer made = mains_transformer(task, *core);
    const std::vector<double> voltages = loaded_v(task, made, *core);
    for (std::size_t i = 0; i < voltages.size(); ++i) {
      const double asked_v = task.secondaries[i].voltage_v.value();
      EXPECT_NEAR(voltages[i], asked_v, 0.015 * asked_v);
    }
    // The e.m.f. of a turn is the change of the flux that the induction allows.
    EXPECT_NEAR(1 / made.turns_per_volt.value(),
                2 * pi * 50 * (task.lamination.induction_t * core->iron_section_m2()).value() /
                    std::sqrt(2),
                1e-12);
  }
}

TEST(MainsTransformers, HaveNoWireForTooMuchCurrent) {
  const MainsTransformerTask task{230, laminations()[1], {{5, 28, true}}};
  const MainsTransformer made = mains_transformer(task, {50});
  EXPECT_EQ(made.secondaries.front().wire, nullptr);
  EXPECT_FALSE(made.fits);
}

TEST(SmoothingChokes, CarryTheRippleBesideTheDirectCurrent) {
  // 10 V across 2 pi 100 times 0.1 H are 159 mA.
  EXPECT_EQ(smoothing_choke({0.1, 0.1, 0}, {5}).wire, thinnest_wire_for(0.1));
  EXPECT_EQ(smoothing_choke({0.1, 0.1, 10}, {5}).wire, thinnest_wire_for(std::hypot(0.1, 0.159)));
}

TEST(UniversalAutotransformer, BalancesPowerAndAmpereTurns) {
  for (const double mains_v : {110.0, 125.0, 230.0}) {
    for (const double radio_v : {110.0, 160.0, 220.0}) {
      const std::optional<TapPair> taps = nearest_taps(mains_v, radio_v);
      ASSERT_TRUE(taps);
      const AutotransformerLoad load = autotransformer_load(*taps, mains_v, 60);
      const double low_v = std::min(mains_v, load.radio_v.value());
      const double high_v = std::max(mains_v, load.radio_v.value());
      EXPECT_NEAR((load.common_current_a * low_v).value(),
                  (load.series_current_a * (high_v - low_v)).value(), 1e-9);
      EXPECT_NEAR((load.series_current_a * high_v).value(), 60, 1e-9);
      EXPECT_NEAR((load.common_current_a * low_v).value(), load.core_va.value(), 1e-9);
    }
  }
}

TEST(UniversalAutotransformer, PrefersTheHighestTapForTheMains) {
  const std::tuple<double, double, int, int> table[] = {
      {110, 110, 4, 4}, {110, 220, 0, 4}, {242, 121, 4, 0}, {125, 137.5, 1, 2}};
  for (const auto& [mains_v, radio_v, mains, radio] : table) {
    const std::optional<TapPair> taps = nearest_taps(mains_v, radio_v);
    ASSERT_TRUE(taps) << mains_v;
    EXPECT_EQ(taps->mains, mains) << mains_v;
    EXPECT_EQ(taps->radio, radio) << mains_v;
  }
  EXPECT_FALSE(nearest_taps(242.001, 110));
}

}  // namespace
}  // namespace eterlab::transformers
