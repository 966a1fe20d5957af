#include "antennas/loaded_vertical.h"

#include <gtest/gtest.h>

namespace eterlab::antennas {
namespace {

LoadedVertical antenna(double length_m, double coil_height_m, double diameter_mm,
                       double frequency_mhz) {
  return {length_m, Single{coil_height_m}, diameter_mm, frequency_mhz};
}

// All expected numbers by Python's decimal with 50 digits, the coil's height and the wavelength
// narrowed by its struct.
TEST(LoadedVertical, CoilDegreesAndResistance) {
  struct Expected {
    LoadedVertical antenna;
    double inductance_uh;
    double degrees;
    double resistance_ohm;
  };
  const Expected table[] = {
      {antenna(2.5, 1, 10, 7.05), 26.82534, 21.15, 1.98810},
      {antenna(5, 0.5, 20, 3.6), 37.17868, 21.6, 2.07360},
      {antenna(12.3456789, 1.23456789, 25, 1.84), 62.65194, 27.25926, 3.30252},
      {antenna(-2.5, -3, 10, 7.05), 69.05390, -21.15, 1.98810},
  };
  for (const Expected& expected : table) {
    EXPECT_NEAR(loading_inductance_uh(expected.antenna).value(), expected.inductance_uh, 6e-6);
    EXPECT_NEAR(electrical_length_degrees(expected.antenna).value(), expected.degrees, 6e-6);
    EXPECT_NEAR(radiation_resistance_ohm(expected.antenna).value(), expected.resistance_ohm, 6e-6);
  }
  EXPECT_DOUBLE_EQ(radial_length_m(3.6).value(), 20.833333333333332);
}

TEST(LoadedVertical, EqualityAlreadyIsTooLong) {
  EXPECT_TRUE(reaches_half_wave(antenna(10, 1, 10, 7.1)));
  EXPECT_FALSE(reaches_half_wave(antenna(9.999, 1, 10, 7.1)));
  EXPECT_TRUE(reaches_half_wave(antenna(-2.5, 1, 10, -7.1)));  // -5 is not below -20
}

TEST(LoadedVertical, EqualityAlreadyIsBeyondTheTip) {
  EXPECT_TRUE(has_coil_beyond_tip(antenna(2.5, 2.5, 10, 7)));
  EXPECT_FALSE(has_coil_beyond_tip(antenna(2.5, 2.4999, 10, 7)));
  // In single precision 1.3 becomes smaller and 1.1 larger.
  EXPECT_TRUE(has_coil_beyond_tip(antenna(1.3, 1.3, 10, 7)));
  EXPECT_TRUE(has_coil_beyond_tip(antenna(1.1, 1.1, 10, 7)));
}

TEST(LoadedVertical, NegativeDiameterIsAFault) {
  EXPECT_THROW(loading_inductance_uh(antenna(2.5, -1, -10, 7.05)), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::antennas
