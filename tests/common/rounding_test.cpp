#include "common/rounding.h"

#include <gtest/gtest.h>

#include "common/regional_settings.h"

namespace eterlab {
namespace {

TEST(Rounding, GoesToOneSideButForNoise) {
  EXPECT_EQ(rounded_up(2.1), 3);
  EXPECT_EQ(rounded_up(0.1 * 3 * 10), 3);  // a little above 3
  EXPECT_EQ(rounded_up(-2.9), -2);
  EXPECT_EQ(rounded_down(2.9), 2);
  EXPECT_EQ(rounded_down(2.3 / 0.1), 23);  // a little below 23
  EXPECT_EQ(rounded_down(-2.1), -3);
}

TEST(Rounding, LimitsStayOnTheSideThatIsAccepted) {
  set_regional_settings({",", ".", 3, 3, 2});
  EXPECT_EQ(fixed_up(1.201, 2), "1,21");
  EXPECT_EQ(fixed_up(1.2, 2), "1,20");
  EXPECT_EQ(fixed_down(1.209, 2), "1,20");
  EXPECT_EQ(fixed_down(0.3 - 0.1, 1), "0,2");
  EXPECT_EQ(fixed_up(1e300, 1).substr(0, 5), "1.000");
  set_regional_settings({});
}

TEST(Rounding, DecimalsReachTheirLimits) {
  EXPECT_TRUE(reaches(0.3, 1.5 * 0.2));  // 0.30000000000000004
  EXPECT_FALSE(reaches(0.2999999, 1.5 * 0.2));
}

}  // namespace
}  // namespace eterlab
