#include "antennas/folded_dipole.h"
#include "antennas/loaded_vertical.h"
#include "antennas/radio_horizon.h"
#include "antennas/wire_antennas.h"
#include "antennas/yagi.h"
#include "support/agree.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::antennas {
namespace {

using test::agree;

// Exact decimal arithmetic on the nearest single-precision frequency.
TEST(WireAntennas, ArmsComeFromASinglePrecisionFrequency) {
  EXPECT_DOUBLE_EQ(dipole_arm_m(Single{7.1}).value(), 10.0422536560146394);
  EXPECT_EQ(inverted_v_arm_m(Single{0.0007}).value(), 101428.578125F);
  EXPECT_THROW(inverted_v_arm_m(Single{1e-37}), ArithmeticFault);  // beyond single precision
}

TEST(RadioHorizon, IsRoundedToWholeKilometres) {
  EXPECT_EQ(radio_horizon_km(1234.5), 145);  // 144.899
  // Ties to even: heights whose distance is exactly 2.5 and 3.5 km, found by searching the doubles
  // around (2.5 / 4.124)^2 and (3.5 / 4.124)^2.
  EXPECT_EQ(radio_horizon_km(0.36748761243357003), 2);
  EXPECT_EQ(radio_horizon_km(0.7202757203697973), 4);
}

// 30000 x 0.15 over the frequency is 4.5 cm, which is rounded away from zero.
TEST(Yagi, WholeCentimetres) {
  EXPECT_EQ(five_element_yagi(1000)[3].spacing_cm, 5);
  EXPECT_EQ(three_element_yagi(28.5)[0].length_cm, 521);  // 521.05
}

// Python's decimal with 50 digits, the coil's height and the wavelength narrowed by its struct.
TEST(LoadedVertical, CoilDegreesAndResistance) {
  const auto computed = [](const LoadedVertical& antenna) {
    return std::vector{loading_inductance_uh(antenna), electrical_length_degrees(antenna),
                       radiation_resistance_ohm(antenna)};
  };
  EXPECT_TRUE(agree(computed({2.5, Single{1}, 10, 7.05}), {26.82534, 21.15, 1.98810}, 6e-6));
  EXPECT_TRUE(agree(computed({12.3456789, Single{1.23456789}, 25, 1.84}),
                    {62.65194, 27.25926, 3.30252}, 6e-6));
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
