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
  const std::tuple<LoadedVertical, double, double, double> table[] = {
      {antenna(2.5, 1, 10, 7.05), 26.82534, 21.15, 1.98810},
      {antenna(12.3456789, 1.23456789, 25, 1.84), 62.65194, 27.25926, 3.30252},
      {antenna(-2.5, -3, 10, 7.05), 69.05390, -21.15, 1.98810},
  };
  for (const auto& [antenna, inductance_uh, degrees, resistance_ohm] : table) {
    EXPECT_NEAR(loading_inductance_uh(antenna).value(), inductance_uh, 6e-6);
    EXPECT_NEAR(electrical_length_degrees(antenna).value(), degrees, 6e-6);
    EXPECT_NEAR(radiation_resistance_ohm(antenna).value(), resistance_ohm, 6e-6);
  }
  EXPECT_DOUBLE_EQ(radial_length_m(3.6).value(), 20.833333333333332);
  EXPECT_THROW(loading_inductance_uh(antenna(2.5, -1, -10, 7.05)), ArithmeticFault);
}

TEST(LoadedVertical, EqualityAlreadyIsTooLongOrBeyondTheTip) {
  EXPECT_TRUE(reaches_half_wave(antenna(10, 1, 10, 7.1)));
  EXPECT_FALSE(reaches_half_wave(antenna(9.999, 1, 10, 7.1)));
  EXPECT_TRUE(reaches_half_wave(antenna(-2.5, 1, 10, -7.1)));  // -5 is not below -20
  EXPECT_FALSE(has_coil_beyond_tip(antenna(2.5, 2.4999, 10, 7)));
  // In single precision 1.3 becomes smaller and 1.1 larger.
  EXPECT_TRUE(has_coil_beyond_tip(antenna(1.3, 1.3, 10, 7)));
  EXPECT_TRUE(has_coil_beyond_tip(antenna(1.1, 1.1, 10, 7)));
}

}  // namespace
}  // namespace eterlab::antennas
