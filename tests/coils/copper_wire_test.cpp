#include "coils/copper_wire.h"

#include <gtest/gtest.h>

namespace eterlab::coils {
namespace {

// Expected values: the formulas with 50 decimal digits (Python's decimal), the length rounded half
// up to two decimals before it is used.
TEST(CopperWire, FromDiameterAndWeight) {
  struct Expected {
    double diameter_mm, weight_g;
    double section_mm2, length_m, largest_current_a;
    float resistance_ohm;
  };
  const Expected table[] = {
      {0.5, 100, 0.1963495375, 57.29, 0.49087384375, 5.13525F},
      {1, 100, 0.78539815, 14.32, 1.963495375, 0.320897F},
      {2, 10, 3.1415926, 0.36, 7.8539815, 0.002017F},
      // 0.0562 m are taken as 0.06 m.
      {0.5, 0.0981, 0.1963495375, 0.06, 0.49087384375, 0.005378F},
      {0.05, 5, 0.001963495375, 286.44, 0.0049087384375, 2567.535F},  // 2567.535460
      {-1, -100, 0.78539815, -14.32, 1.963495375, -0.320897F},
  };
  for (const Expected& expected : table) {
    const CopperWire wire = copper_wire(expected.diameter_mm, expected.weight_g);
    EXPECT_NEAR(wire.section_mm2.value(), expected.section_mm2, 1e-12);
    EXPECT_EQ(wire.length_m, expected.length_m);
    EXPECT_NEAR(wire.largest_current_a.value(), expected.largest_current_a, 1e-12);
    EXPECT_EQ(wire.resistance_ohm.value(), expected.resistance_ohm);
  }
}

}  // namespace
}  // namespace eterlab::coils
