#include <gtest/gtest.h>

#include "units/decibel.h"
#include "units/decibel_microvolt.h"
#include "units/mils.h"
#include "units/temperature.h"
#include "units/wire_gauge.h"

namespace eterlab::units {
namespace {

// Levels: logarithms and powers of ten with 40 decimal digits.

TEST(Conversions, DecibelsFromMeasuredValues) {
  const std::tuple<SignalChange, double, bool> table[] = {
      {from_voltages(2, 7), 10.88136088700551, true},
      {from_voltages(7, 2), 10.88136088700551, false},
      {from_voltages(3, 3), 0, true},
      {from_powers(50, 0.3), 22.21848749616356, false},
  };
  for (const auto& [change, decibels, is_gain] : table) {
    EXPECT_DOUBLE_EQ(change.decibels.value(), decibels);
    EXPECT_EQ(change.is_gain, is_gain);
  }
}

TEST(Conversions, OnlyTheVoltageRatioOfDecibelsIsRounded) {
  const SignalRatios ratios = ratios_from_decibels(37.5);
  EXPECT_EQ(ratios.voltage, 74.989);
  EXPECT_DOUBLE_EQ(ratios.power.value(), 5623.413251903491);
}

TEST(Conversions, DecibelMicrovolt) {
  EXPECT_EQ(level_dbuv(0.5).value(), -6.02F);
  EXPECT_EQ(level_dbuv(123.4).value(), 41.83F);
  EXPECT_THROW(level_dbuv(0), ArithmeticFault);
  EXPECT_EQ(voltage_uv(0.1).value(), 1.01F);
  EXPECT_EQ(voltage_uv(119.99).value(), 998849.37F);
}

TEST(Conversions, FactorsOfMilsAreNotQuiteReciprocal) {
  EXPECT_EQ(mils_from_mm(1), 39.3700787);
  EXPECT_DOUBLE_EQ(metric_from_mils(39.3700787).mm.value(), 0.99999999898);
  EXPECT_DOUBLE_EQ(metric_from_mils(62.5).micrometres.value(), 1587.5);
}

// Worked out by hand.
TEST(Conversions, Temperature) {
  EXPECT_DOUBLE_EQ(fahrenheit_from_celsius(-273).value(), -459.4);
  EXPECT_DOUBLE_EQ(reaumur_from_celsius(-273).value(), -218.4);
  EXPECT_EQ(kelvin_from_celsius(-300).value(), -27);
  EXPECT_EQ(kelvin_from_celsius(0.126).value(), 273.13F);
  // Seven digits are all that single precision holds.
  EXPECT_EQ(kelvin_from_celsius(1234567.89).value(), 1234841.0F);
}

// Computed with fifty decimals in Python.
TEST(Conversions, WireGauge) {
  EXPECT_DOUBLE_EQ(awg_diameter_mm(-3).value(), 11.684);
  EXPECT_DOUBLE_EQ(awg_diameter_mm(24.5).value(), 0.48180284745751981);
  EXPECT_DOUBLE_EQ(awg_diameter_mm(80).value(), 0.00077312234123378836);
}

}  // namespace
}  // namespace eterlab::units
