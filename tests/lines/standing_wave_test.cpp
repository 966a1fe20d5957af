#include "lines/standing_wave.h"

#include <gtest/gtest.h>

namespace eterlab::lines {
namespace {

// Expected values were computed with exact decimals in Python; percentages are rounded as stated,
// the others to the digits given.
TEST(StandingWave, Mismatch) {
  struct Expected {
    double ratio;
    double high_ohm;
    double low_ohm;
    double reflection_coefficient;
    double reflected_percent;
    double radiated_percent;
    double return_loss_db;
  };
  const Expected table[] = {
      {1.05, 52.5, 47.619047619, 0.024390243902, 0.1, 99.9, 32.255677134395},
      {1.5, 75, 33.333333333, 0.2, 4, 96, 13.979400086720},
      {2, 100, 25, 0.333333333333, 11.1, 88.9, 9.542425094393},  // not 88.89
      {3, 150, 16.666666667, 0.5, 25, 75, 6.020599913280},
      {1000, 50000, 0.05, 0.998001998002, 99.6, 0.4, 0.017371785067},
  };
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.ratio);
    const Mismatch mismatch = mismatch_of(expected.ratio);
    EXPECT_DOUBLE_EQ(mismatch.high_impedance_ohm.value(), expected.high_ohm);
    EXPECT_NEAR(mismatch.low_impedance_ohm.value(), expected.low_ohm, 1e-9);
    EXPECT_NEAR(mismatch.reflection_coefficient.value(), expected.reflection_coefficient, 1e-12);
    EXPECT_EQ(mismatch.reflected_percent, expected.reflected_percent);
    EXPECT_NEAR(mismatch.radiated_percent.value(), expected.radiated_percent, 1e-12);
    ASSERT_TRUE(mismatch.return_loss_db.has_value());
    EXPECT_NEAR(mismatch.return_loss_db.value_or(0).value(), expected.return_loss_db, 1e-12);
  }
}

TEST(StandingWave, APerfectMatchHasNoReturnLoss) {
  const Mismatch mismatch = mismatch_of(1);
  EXPECT_EQ(mismatch.return_loss_db, std::nullopt);
  EXPECT_EQ(mismatch.reflected_percent, 0);
  EXPECT_EQ(mismatch.radiated_percent, 100);
}

}  // namespace
}  // namespace eterlab::lines
