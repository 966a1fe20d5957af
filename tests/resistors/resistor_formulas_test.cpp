#include <gtest/gtest.h>

#include <tuple>

#include "common/physics.h"
#include "resistors/meter_range.h"
#include "resistors/meter_resistance.h"
#include "resistors/series_resistor.h"
#include "resistors/voltage_divider.h"
#include "resistors/voltmeter_probe.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::resistors {
namespace {

// The currents at the output and the powers of the network, whatever the values are.
TEST(VoltageDivider, KeepsCurrentsAndPowers) {
  const double table[][4] = {
      {12, 1000, 2200, 4700}, {1e12, 1e-12, 1e12, 1e-12}, {1e-12, 1e12, 1e-12, 1e12}, {5, 1, 1, 1}};
  for (const auto& [input_v, upper_ohm, lower_ohm, load_ohm] : table) {
    const LoadedDivider divider = loaded_divider(input_v, upper_ohm, lower_ohm, load_ohm);
    const double output_v = divider.output_v.value();
    const double current_a = divider.input_current_a.value();
    EXPECT_NEAR((output_v / lower_ohm + output_v / load_ohm) / current_a, 1, 1e-15);
    const double dissipated_w = divider.upper_power_w.value() + divider.lower_power_w.value();
    EXPECT_NEAR((dissipated_w + output_v * output_v / load_ohm) / (input_v * current_a), 1, 1e-15);
  }
}

// Loaded by what the wanted current takes at the wanted voltage, the design gives that voltage.
TEST(VoltageDivider, DesignAndAnalysisAgree) {
  const double table[][4] = {{13.8, 5, 0.02, 0.005}, {1, 0.999999, 1e-6, 1}, {1000, 1e-3, 5, 1e-9}};
  for (const auto& [input_v, output_v, load_a, lower_a] : table) {
    const DividerDesign design = design_divider(input_v, output_v, load_a, lower_a);
    const LoadedDivider divider =
        loaded_divider(input_v, design.upper_ohm, design.lower_ohm, output_v / load_a);
    EXPECT_NEAR(divider.output_v.value() / output_v, 1, 1e-12);
    EXPECT_NEAR((divider.input_current_a / design.input_current_a).value(), 1, 1e-12);
    EXPECT_NEAR((divider.upper_power_w / design.upper_power_w).value(), 1, 1e-12);
    EXPECT_NEAR((divider.lower_power_w / design.lower_power_w).value(), 1, 1e-12);
  }
}

// A known meter is read with and without its shunt, node by node.
TEST(MeterResistance, IsFoundFromTheReadingsOfAKnownMeter) {
  const double table[][3] = {{47000, 1000, 1022}, {10, 1e6, 5000}, {1e9, 1e-3, 1e-3}, {1, 1, 1e3}};
  for (const auto& [series_ohm, shunt_ohm, meter_ohm] : table) {
    constexpr double battery_v = 1.5;
    const double first_a = battery_v / (series_ohm + meter_ohm);
    const double node_v = battery_v / series_ohm / (1 / series_ohm + 1 / shunt_ohm + 1 / meter_ohm);
    const auto found_ohm = meter_resistance_ohm(series_ohm, shunt_ohm, first_a, node_v / meter_ohm);
    ASSERT_TRUE(found_ohm.has_value());
    // Where the shunt hardly changes the reading, its digits are few.
    EXPECT_NEAR(found_ohm->value() / meter_ohm, 1, 1e-8);
  }
  EXPECT_EQ(meter_resistance_ohm(1000, 1000, 2, 1), std::nullopt);
}

TEST(VoltmeterProbe, NoResistorHasMoreThanItBears) {
  for (const double highest_v : {1.0, 350.0, 388.8, 389.0, 3000.0, 1e6, 1e12}) {
    const VoltmeterProbe probe = voltmeter_probe(1e7, 10, highest_v);
    const Real each_v = probe.current_a * probe.resistor_ohm;
    EXPECT_LE(each_v.value(), 350 * (1 + 1e-9));
    // One less would not do.
    EXPECT_TRUE(probe.resistors == 1 ||
                each_v * probe.resistors / (probe.resistors - 1) > 350 * (1 - 1e-15));
    EXPECT_NEAR((probe.meter_v + each_v * probe.resistors).value() / highest_v, 1, 1e-15);
  }
}

TEST(ZenerResistor, WholeOhmWithinSixteenBits) {
  // Exact in binary: 2.5 ohm and 3.5 ohm go to the even neighbour.
  EXPECT_EQ(zener_series_resistor(1.25, 1, 100, 0).resistance_ohm, 2);
  EXPECT_EQ(zener_series_resistor(8, 1, 2000, 0).resistance_ohm, 4);
  EXPECT_EQ(zener_series_resistor(33.767, 1, 1, 0).resistance_ohm, 32767);
  EXPECT_THROW(zener_series_resistor(33.768, 1, 1, 0), ArithmeticFault);
}

TEST(LedResistor, RoundingAndRange) {
  EXPECT_EQ(led_series_resistor_ohm(3.00125, 3).value(), 0.13F);     // 0.125, away from zero
  EXPECT_THROW(led_series_resistor_ohm(-1e40, 3), ArithmeticFault);  // beyond single precision
}

// The current divides as the conductances do; the wire is no hotter than it may be and one step
// thinner would be, unless it is the thinnest.
TEST(MeterRange, ShuntTakesTheRest) {
  for (const auto& [meter_ohm, full_scale_ma, range_a] :
       {std::tuple{100.0, 1.0, 10.0}, {1500.0, 0.05, 0.001}, {0.5, 1000.0, 1e6}}) {
    SCOPED_TRACE(range_a);
    const MeterShunt shunt = meter_shunt(meter_ohm, full_scale_ma, range_a);
    const Real meter_a = range_a * shunt.resistance_ohm / (shunt.resistance_ohm + Real{meter_ohm});
    EXPECT_NEAR(meter_a.value(), full_scale_ma / 1000, full_scale_ma * 1e-12);
    const double density_a_per_mm2 =
        (shunt.current_a / (pi / 4 * shunt.wire_diameter_mm * shunt.wire_diameter_mm)).value();
    EXPECT_LE(density_a_per_mm2, 3 + 1e-9);
    const double thinner = shunt.wire_diameter_mm.value() - 0.1;
    EXPECT_TRUE(thinner < 0.05 || shunt.current_a.value() / (pi / 4 * thinner * thinner) > 3);
  }
  // 0.75 pi ampere want 1 mm, not 1.1.
  EXPECT_EQ(meter_shunt(1, 1, 0.001 + 0.75 * pi).wire_diameter_mm, 1);
}

TEST(MeterRange, MultiplierTakesTheRest) {
  const MeterMultiplier multiplier = meter_multiplier(1500, 100, 0.15 * (1 + 1e-6));
  EXPECT_NEAR(multiplier.resistance_ohm.value(), 1.5e-3, 1e-11);  // what is left of 1500 ohm
  EXPECT_NEAR(multiplier.power_w.value(), 1.5e-11, 1e-19);
  EXPECT_EQ(multiplier.preferred_resistance_ohm, 1.5e-3);
}

}  // namespace
}  // namespace eterlab::resistors
