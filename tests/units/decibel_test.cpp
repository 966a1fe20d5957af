#include "units/decibel.h"

#include <gtest/gtest.h>

namespace eterlab::units {
namespace {

// Expected values: logarithms and powers of ten with 40 decimal digits.

TEST(Decibel, FromMeasuredValues) {
  struct Expected {
    SignalChange change;
    double decibels;
    bool is_gain;
  };
  const Expected table[] = {
      {from_voltages(1, 10), 20, true},
      {from_voltages(10, 1), 20, false},
      {from_voltages(3, 3), 0, true},
      {from_voltages(2, 7), 10.88136088700551, true},
      {from_voltages(7, 2), 10.88136088700551, false},
      {from_powers(1, 10), 10, true},
      {from_powers(50, 0.3), 22.21848749616356, false},
  };
  for (const Expected& expected : table) {
    EXPECT_DOUBLE_EQ(expected.change.decibels.value(), expected.decibels);
    EXPECT_EQ(expected.change.is_gain, expected.is_gain);
  }
}

TEST(Decibel, OnlyTheVoltageRatioIsRounded) {
  struct Expected {
    double decibels;
    double voltage_ratio;
    double power_ratio;
  };
  const Expected table[] = {
      {0, 1, 1},
      {3, 1.413, 1.995262314968880},
      {6, 1.995, 3.981071705534972},
      {37.5, 74.989, 5623.413251903491},
      {70, 3162.278, 1e7},
  };
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.decibels);
    const SignalRatios ratios = ratios_from_decibels(expected.decibels);
    EXPECT_EQ(ratios.voltage, expected.voltage_ratio);
    EXPECT_NEAR(ratios.power.value(), expected.power_ratio, expected.power_ratio * 1e-14);
  }
}

}  // namespace
}  // namespace eterlab::units
