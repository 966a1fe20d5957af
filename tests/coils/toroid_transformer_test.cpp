#include "coils/toroid_transformer.h"

#include <gtest/gtest.h>

namespace eterlab::coils {
namespace {

// 31.4 ohm at 1 MHz want 25 uH, which are 100 turns on a core of index 25.
TEST(ToroidTransformer, TurnsAreInTheRatioOfTheRootsOfTheImpedances) {
  struct Expected {
    double antenna_ohm;
    double cable_ohm;
    double antenna_turns;
    double cable_turns;
  };
  const Expected table[] = {
      {31.4, 31.4, 100, 100},
      {31.4, 7.85, 100, 50},
      {125.6, 31.4, 200, 100},
      {31.4, 125.6, 100, 200},
  };
  for (const Expected& expected : table) {
    const MatchingWindings windings =
        matching_windings(1, expected.antenna_ohm, expected.cable_ohm, 25);
    EXPECT_NEAR(windings.antenna_turns.value(), expected.antenna_turns, 1e-9);
    EXPECT_NEAR(windings.cable_turns.value(), expected.cable_turns, 1e-9);
  }
  EXPECT_NEAR(matching_windings(4, 31.4, 31.4, 25).antenna_turns.value(), 50, 1e-9);
}

TEST(ToroidTransformer, QuotientsOfDifferentSignsAreFaults) {
  EXPECT_THROW(matching_windings(7, -200, -50, 49), ArithmeticFault);
  EXPECT_THROW(matching_windings(-7, -200, 50, 49), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::coils
