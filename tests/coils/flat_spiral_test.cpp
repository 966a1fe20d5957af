#include "coils/flat_spiral.h"

#include <gtest/gtest.h>

#include "common/regional_settings.h"

namespace eterlab::coils {
namespace {

// Expected values: the formula with decimal fractions, rounded half up to two decimals.
TEST(FlatSpiral, MeanRadiusWidthAndInductance) {
  struct Expected {
    double turns, inner_mm, outer_mm;
    double mean_mm, width_mm, inductance_uh;
  };
  const Expected table[] = {
      {10, 10, 30, 20, 20, 4.17}, {5, 20, 20, 20, 0, 2.5},     {20, 12.5, 40, 26.25, 27.5, 21.28},
      {8, 10, 15, 12.5, 5, 2.56}, {10, -30, -10, -20, 20, 25},
  };
  for (const Expected& expected : table) {
    const FlatSpiral coil = flat_spiral(expected.turns, expected.inner_mm, expected.outer_mm);
    EXPECT_EQ(coil.mean_radius_mm, expected.mean_mm);
    EXPECT_EQ(coil.width_mm, expected.width_mm);
    EXPECT_EQ(coil.inductance_uh, expected.inductance_uh);
  }
}

TEST(FlatSpiral, RegionalDecimalsDecideTheInductance) {
  set_regional_settings({".", ",", 3, 3, 4});
  EXPECT_EQ(flat_spiral(10, 10, 30).inductance_uh, 4.1667);
  set_regional_settings({});
}

}  // namespace
}  // namespace eterlab::coils
