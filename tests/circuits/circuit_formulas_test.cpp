#include <gtest/gtest.h>

#include "circuits/handbook_resonance.h"
#include "circuits/ohms_law.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::circuits {
namespace {

TEST(OhmsLaw, NoCurrentOfANegativeResistance) {
  EXPECT_THROW(from_resistance_and_power(-4, 36), ArithmeticFault);
}

// 40 decimal digits; the exact constants of physics would give another seventh digit.
TEST(HandbookResonance, Reactance) {
  EXPECT_FLOAT_EQ(handbook_resonance(0.5, 30).reactance_ohm.value(), 129.099363F);
  EXPECT_THROW(handbook_resonance(10, -100), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::circuits
