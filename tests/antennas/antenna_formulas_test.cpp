#include <gtest/gtest.h>

#include "antennas/beams/yagi.h"
#include "antennas/verticals/loaded_vertical.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::antennas {
namespace {

// 30000 x 0.15 over the frequency is 4.5 cm, which is rounded away from zero.
TEST(Yagi, WholeCentimetres) { EXPECT_EQ(five_element_yagi(1000)[3].spacing_cm, 5); }

// Python's decimal with 50 digits, the coil's height and the wavelength narrowed by its struct.
TEST(LoadedVertical, CoilDegreesAndResistance) {
  const LoadedVertical antenna{12.3456789, Single{1.23456789}, 25, 1.84};
  EXPECT_NEAR(loading_inductance_uh(antenna).value(), 62.65194, 6e-6);
  EXPECT_NEAR(electrical_length_degrees(antenna).value(), 27.25926, 6e-6);
  EXPECT_NEAR(radiation_resistance_ohm(antenna).value(), 3.30252, 6e-6);
}

TEST(LoadedVertical, EqualityAlreadyIsTooLongOrBeyondTheTip) {
  EXPECT_TRUE(reaches_half_wave({10, Single{1}, 10, 7.1}));
  EXPECT_FALSE(reaches_half_wave({9.999, Single{1}, 10, 7.1}));
  EXPECT_FALSE(has_coil_beyond_tip({2.5, Single{2.4999}, 10, 7}));
  // In single precision 1.3 becomes smaller and 1.1 larger.
  EXPECT_TRUE(has_coil_beyond_tip({1.3, Single{1.3}, 10, 7}));
  EXPECT_TRUE(has_coil_beyond_tip({1.1, Single{1.1}, 10, 7}));
}

}  // namespace
}  // namespace eterlab::antennas
