#include <gtest/gtest.h>

#include <vector>

#include "signals/decibel_microvolt.h"
#include "signals/free_space.h"
#include "signals/power_level.h"
#include "signals/radio_horizon.h"
#include "signals/waveform.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::signals {
namespace {

// Heights whose distance is exactly 2.5 and 3.5 km, found by searching the doubles around
// (2.5 / 4.124)^2 and (3.5 / 4.124)^2.
TEST(RadioHorizon, TiesGoToEvenKilometres) {
  EXPECT_EQ(radio_horizon_km(0.36748761243357003), 2);
  EXPECT_EQ(radio_horizon_km(0.7202757203697973), 4);
}

TEST(PowerLevel, InTenths) {
  EXPECT_EQ(level_dbm(2, watt_to_volt), 33);  // 33.0103
  EXPECT_EQ(level_dbm(0.9, milliwatt_to_millivolt), -0.5);
  EXPECT_THROW(level_dbm(-1, watt_to_volt), ArithmeticFault);
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

// 20 (log10(1000 d) + 1.099 - log10(300 / f)) with forty decimal digits.
TEST(FreeSpace, ToTheMoonAndBelowZero) {
  EXPECT_EQ(free_space_path(10000, 384400).attenuation_db, 224.13);
  EXPECT_EQ(free_space_path(0.001, 0.001).attenuation_db, -87.56);  // -87.56243
}

TEST(DecibelMicrovolt, InHundredths) {
  EXPECT_EQ(voltage_uv(0.1).value(), 1.01F);
  EXPECT_THROW(level_dbuv(0), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::signals
