#include "antennas/wire_antennas.h"

#include <gtest/gtest.h>

namespace eterlab::antennas {
namespace {

// Expected values by exact decimal arithmetic on the nearest single-precision frequency.
TEST(WireAntennas, DipoleArmsComeFromASinglePrecisionFrequency) {
  EXPECT_DOUBLE_EQ(dipole_arm_m(Single{7.1}).value(), 10.0422536560146394);
  EXPECT_DOUBLE_EQ(dipole_arm_m(Single{0.0007}).value(), 101857.146488996922);
  EXPECT_EQ(inverted_v_arm_m(Single{0.0007}).value(), 101428.578125F);
  EXPECT_THROW(inverted_v_arm_m(Single{1e-37}), ArithmeticFault);  // beyond single precision
}

TEST(WireAntennas, HarmonicWire) {
  struct Expected {
    double half_waves;
    double frequency_mhz;
    double length_m;
  };
  const Expected table[] = {
      {1, 7.1, 142.5 / 7.1}, {3, 14.2, 442.5 / 14.2}, {0.5, 10, 6.75}, {-1, -7.5, 21}};
  for (const Expected& expected : table) {
    EXPECT_DOUBLE_EQ(harmonic_wire_m(expected.half_waves, expected.frequency_mhz).value(),
                     expected.length_m);
  }
}

}  // namespace
}  // namespace eterlab::antennas
