#include "units/decibel_microvolt.h"

#include <gtest/gtest.h>

namespace eterlab::units {
namespace {

// Expected values: 20 lg and powers of ten with 40 decimal digits, rounded to two decimals.
TEST(DecibelMicrovolt, Level) {
  EXPECT_EQ(level_dbuv(1).value(), 0);
  EXPECT_EQ(level_dbuv(2).value(), 6.02F);
  EXPECT_EQ(level_dbuv(1000).value(), 60);
  EXPECT_EQ(level_dbuv(0.5).value(), -6.02F);
  EXPECT_EQ(level_dbuv(123.4).value(), 41.83F);
  EXPECT_THROW(level_dbuv(0), ArithmeticFault);
}

TEST(DecibelMicrovolt, Voltage) {
  EXPECT_EQ(voltage_uv(0).value(), 1);
  EXPECT_EQ(voltage_uv(0.1).value(), 1.01F);
  EXPECT_EQ(voltage_uv(37.5).value(), 74.99F);
  EXPECT_EQ(voltage_uv(119.99).value(), 998849.37F);
  EXPECT_EQ(voltage_uv(120).value(), 1e6F);
}

}  // namespace
}  // namespace eterlab::units
