#include <gtest/gtest.h>

#include <vector>

#include "circuits/ohms_law.h"
#include "circuits/power_level.h"
#include "circuits/resistive_pads.h"
#include "circuits/resonance.h"
#include "circuits/waveform.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::circuits {
namespace {

TEST(OhmsLaw, NoCurrentOfANegativeResistance) {
  EXPECT_THROW(from_resistance_and_power(-4, 36), ArithmeticFault);
}

TEST(PowerLevel, InTenths) {
  EXPECT_EQ(level_dbm(2, watt_to_volt), 33);  // 33.0103
  EXPECT_EQ(level_dbm(0.9, milliwatt_to_millivolt), -0.5);
  EXPECT_THROW(level_dbm(-1, watt_to_volt), ArithmeticFault);
}

// 40 decimal digits; the exact constants of physics would give another seventh digit.
TEST(Resonance, Reactance) {
  EXPECT_FLOAT_EQ(resonance(0.5, 30).reactance_ohm.value(), 129.099363F);
  EXPECT_THROW(resonance(10, -100), ArithmeticFault);
}

// The window's test goes three of the nine ways.
TEST(Waveform, TheOtherWays) {
  using Volts = std::vector<double>;
  const auto volts = [](const WaveVoltages& v) {
    return Volts{v.rms_v.value(), v.peak_v.value(), v.peak_to_peak_v.value()};
  };
  // 1.24 V: peak 1.75336 is rounded to 1.75, twice that is 3.50; 2.828 x 1.24 would be 3.51.
  EXPECT_EQ(volts(from_rms(1.24, Waveform::sine)), (Volts{1.24, 1.75, 3.5}));
  EXPECT_EQ(volts(from_rms(10, Waveform::triangle)), (Volts{10, 17.32, 34.64}));
  EXPECT_EQ(volts(from_rms(10, Waveform::square)), (Volts{10, 10, 20}));
  EXPECT_EQ(volts(from_peak(10, Waveform::sine)), (Volts{7.07, 10, 20}));
  EXPECT_EQ(volts(from_peak_to_peak(10, Waveform::sine)), (Volts{3.54, 5, 10}));
  EXPECT_EQ(volts(from_peak_to_peak(10, Waveform::triangle)), (Volts{2.89, 5, 10}));
  // The peak is rounded up.
  EXPECT_EQ(volts(from_peak_to_peak(0.01, Waveform::square)), (Volts{0.01, 0.01, 0.01}));
}

TEST(ResistivePads, LeastLossAndTies) {
  EXPECT_EQ(told_in_whole_db(least_loss_db(1518, 1000)), 7);  // a two-hundredth carries 6.9961 over
  EXPECT_EQ(told_in_whole_db(least_loss_db(1517, 1000)), 6);  // 6.9895
  // 2999999.97 between the two nearest single-precision numbers, a quarter apart.
  EXPECT_EQ(pi_pad(600, 600, 80).series_ohm.value(), 3000000.0F);
  EXPECT_EQ(minimum_loss_pad(12345, 50).loss_db.value(), 29.94F);
}

}  // namespace
}  // namespace eterlab::circuits
