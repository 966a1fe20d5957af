#include "antennas/folded_dipole.h"

#include <gtest/gtest.h>

namespace eterlab::antennas {
namespace {

TEST(FoldedDipole, LengthIsRoundedToTheCentimetre) {
  EXPECT_EQ(folded_dipole_length_m(7.1).value(), 20.07F);  // 20.0704
  EXPECT_EQ(folded_dipole_length_m(300).value(), 0.48F);   // 0.475: the half goes up
  EXPECT_EQ(folded_dipole_length_m(0.0007).value(), 203571.43F);
}

// The ratios before rounding, with 30 digits: 4, 4, 5.4145, 7.6949, 9, 4.4114.
TEST(FoldedDipole, ImpedanceComesFromTheRoundedRatio) {
  struct Expected {
    FoldedDipoleTubes tubes;
    double ratio;
    double impedance_ohm;
  };
  const Expected table[] = {
      {{10, 10, 10}, 4, 300},    {{3, 3, 77.7}, 4, 300}, {{6, 12, 50}, 5.4, 405},
      {{2, 10, 40}, 7.7, 577.5}, {{10, 20, 20}, 9, 675}, {{1, 2, 1000}, 4.4, 330},
  };
  for (const Expected& expected : table) {
    const ImpedanceStepUp step_up = impedance_step_up(expected.tubes);
    EXPECT_EQ(step_up.ratio, expected.ratio);
    EXPECT_DOUBLE_EQ(step_up.impedance_ohm.value(), expected.impedance_ohm);
  }
}

}  // namespace
}  // namespace eterlab::antennas
