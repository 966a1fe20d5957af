#include "coils/toroid_tuning.h"

#include <gtest/gtest.h>

namespace eterlab::coils {
namespace {

// Round numbers, worked out by hand.
TEST(ToroidTuning, ThirdQuantityFromTheOtherTwo) {
  EXPECT_EQ(from_inductance_and_capacitance(4, 25).frequency_mhz, 15.9);  // 159 / 10
  EXPECT_EQ(from_frequency_and_inductance(5, 4).capacitance_pf, 253);     // 25300 / 100
  EXPECT_EQ(from_frequency_and_capacitance(-5, 253).inductance_uh, 4);    // 25300 / 6325
  EXPECT_EQ(from_frequency_and_capacitance(5, -253).inductance_uh, -4);
  EXPECT_EQ(from_inductance_and_capacitance(-4, -25).frequency_mhz, 15.9);
}

TEST(ToroidTuning, OneNegativeReactanceHasNoFrequency) {
  EXPECT_THROW(from_inductance_and_capacitance(-4, 25), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::coils
