#include <gtest/gtest.h>

#include "power/three_terminal_regulator.h"

// What the windows leave open: ties and limits.

namespace eterlab::power {
namespace {

// R2 = U / 25 mA by hand.
TEST(Regulators, RoundingAndRange) {
  EXPECT_EQ(raised_fixed_regulator(5, 5.0625)->r2_ohm, 3);  // 2.5, away from zero
  EXPECT_TRUE(raised_fixed_regulator(12, 12.001));
  EXPECT_FALSE(raised_fixed_regulator(12, 35.001));
  EXPECT_TRUE(adjustable_regulator(1.251));
}

}  // namespace
}  // namespace eterlab::power
