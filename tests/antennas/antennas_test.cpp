#include <gtest/gtest.h>

#include "antennas/folded_dipole.h"
#include "antennas/radio_horizon.h"
#include "antennas/wire_antennas.h"
#include "antennas/yagi.h"

namespace eterlab::antennas {
namespace {

// Expected values by exact decimal arithmetic on the nearest single-precision frequency.
TEST(WireAntennas, DipoleArmsComeFromASinglePrecisionFrequency) {
  EXPECT_DOUBLE_EQ(dipole_arm_m(Single{7.1}).value(), 10.0422536560146394);
  EXPECT_EQ(inverted_v_arm_m(Single{0.0007}).value(), 101428.578125F);
  EXPECT_THROW(inverted_v_arm_m(Single{1e-37}), ArithmeticFault);  // beyond single precision
}

TEST(WireAntennas, HarmonicWire) {
  EXPECT_DOUBLE_EQ(harmonic_wire_m(3, 14.2).value(), 442.5 / 14.2);
  EXPECT_DOUBLE_EQ(harmonic_wire_m(-1, -7.5).value(), 21);
}

TEST(FoldedDipole, LengthIsRoundedToTheCentimetre) {
  EXPECT_EQ(folded_dipole_length_m(7.1).value(), 20.07F);  // 20.0704
  EXPECT_EQ(folded_dipole_length_m(300).value(), 0.48F);   // 0.475: the half goes up
}

// The ratios before rounding, with 30 digits: 4, 5.4145, 7.6949, 9.
TEST(FoldedDipole, ImpedanceComesFromTheRoundedRatio) {
  const std::tuple<FoldedDipoleTubes, double, double> table[] = {
      {{3, 3, 77.7}, 4, 300},
      {{6, 12, 50}, 5.4, 405},
      {{2, 10, 40}, 7.7, 577.5},
      {{10, 20, 20}, 9, 675},
  };
  for (const auto& [tubes, ratio, impedance_ohm] : table) {
    EXPECT_EQ(impedance_step_up(tubes).ratio, ratio);
    EXPECT_DOUBLE_EQ(impedance_step_up(tubes).impedance_ohm.value(), impedance_ohm);
  }
}

TEST(RadioHorizon, IsRoundedToWholeKilometres) {
  EXPECT_EQ(radio_horizon_km(100), 41);
  EXPECT_EQ(radio_horizon_km(1234.5), 145);  // 144.899
  // Ties to even: heights whose distance is exactly 2.5 and 3.5 km, found by searching the doubles
  // around (2.5 / 4.124)^2 and (3.5 / 4.124)^2.
  EXPECT_EQ(radio_horizon_km(0.36748761243357003), 2);
  EXPECT_EQ(radio_horizon_km(0.7202757203697973), 4);
}

template <std::size_t N>
void expect(const std::array<YagiElement, N>& elements, const std::pair<double, double> (&cm)[N]) {
  for (std::size_t i = 0; i < N; ++i) {
    EXPECT_EQ(elements[i].length_cm, cm[i].first) << i;
    EXPECT_EQ(elements[i].spacing_cm, cm[i].second) << i;
  }
}

// Length constants and fractions of 30000 over the frequency, rounded by hand.
TEST(Yagi, LengthsAndSpacings) {
  expect(three_element_yagi(28.5), {{521, 0}, {495, 211}, {470, 105}});
  expect(five_element_yagi(28.5), {{526, 0}, {498, 211}, {467, 105}, {460, 158}, {453, 211}});
  // 4.5 cm of spacing are rounded away from zero.
  expect(five_element_yagi(1000), {{15, 0}, {14, 6}, {13, 3}, {13, 5}, {13, 6}});
}

}  // namespace
}  // namespace eterlab::antennas
