#include "lines/standing_wave.h"

#include <gtest/gtest.h>

namespace eterlab::lines {
namespace {

// Expected values were computed with exact decimals in Python; percentages are rounded as stated,
// the others to the digits given.
TEST(StandingWave, Mismatch) {
  struct Expected {
    double ratio, high_ohm, low_ohm, reflection, reflected_percent, radiated_percent, loss_db;
  };
  for (const Expected& expected : {
           Expected{1.05, 52.5, 47.619047619, 0.024390243902, 0.1, 99.9, 32.255677134395},
           Expected{2, 100, 25, 0.333333333333, 11.1, 88.9, 9.542425094393},  // not 88.89
       }) {
    const Mismatch mismatch = mismatch_of(expected.ratio);
    EXPECT_DOUBLE_EQ(mismatch.high_impedance_ohm.value(), expected.high_ohm);
    EXPECT_NEAR(mismatch.low_impedance_ohm.value(), expected.low_ohm, 1e-9);
    EXPECT_NEAR(mismatch.reflection_coefficient.value(), expected.reflection, 1e-12);
    EXPECT_EQ(mismatch.reflected_percent, expected.reflected_percent);
    EXPECT_NEAR(mismatch.radiated_percent.value(), expected.radiated_percent, 1e-12);
    EXPECT_NEAR(mismatch.return_loss_db.value_or(0).value(), expected.loss_db, 1e-12);
  }
  EXPECT_EQ(mismatch_of(1).return_loss_db, std::nullopt);
  EXPECT_EQ(mismatch_of(1).radiated_percent, 100);
}

}  // namespace
}  // namespace eterlab::lines
