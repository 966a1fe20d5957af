#include "power/three_terminal_regulator.h"

#include <gtest/gtest.h>

namespace eterlab::power {
namespace {

// What the windows' tests leave open. R2 = U / 25 mA by hand.
TEST(FixedRegulator, SecondResistorIsRoundedToTheOhm) {
  EXPECT_EQ(raised_fixed_regulator(5, 9.26)->r2_ohm, 170);  // 170.4
  EXPECT_EQ(raised_fixed_regulator(5, 5.0625)->r2_ohm, 3);  // 2.5, away from zero
  EXPECT_EQ(raised_fixed_regulator(5, 5.01)->r2_ohm, 0);    // 0.4
}

TEST(FixedRegulator, RangeIsExact) {
  EXPECT_TRUE(raised_fixed_regulator(12, 12.001));
  EXPECT_FALSE(raised_fixed_regulator(12, 35.001));
  EXPECT_TRUE(adjustable_regulator(1.251));
  EXPECT_FALSE(adjustable_regulator(100.001));
  EXPECT_FALSE(constant_current_resistor_ohm(1000.01));
}

}  // namespace
}  // namespace eterlab::power
