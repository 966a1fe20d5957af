#include "coils/straight_wire.h"

#include <gtest/gtest.h>

namespace eterlab::coils {
namespace {

// Expected values: the formula with 50 decimal digits (Python's decimal).
TEST(StraightWire, Inductance) {
  struct Expected {
    double diameter_mm;
    double length_m;
    double inductance_uh;
  };
  const Expected table[] = {
      {1, 1, 1.508809928020406},    {1, 0.05, 0.0454831736654805},      {2, 100, 229.1214529106035},
      {-1, -1, -1.508809928020406}, {100, 0.05, -5.685281944005469e-4},  // as long as its radius
  };
  for (const Expected& expected : table) {
    EXPECT_NEAR(straight_wire_inductance_uh(expected.diameter_mm, expected.length_m).value(),
                expected.inductance_uh, 1e-12);
  }
}

}  // namespace
}  // namespace eterlab::coils
