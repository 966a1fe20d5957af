#include "circuits/waveform.h"

#include <gtest/gtest.h>

namespace eterlab::circuits {
namespace {

void expect(const WaveVoltages& voltages, double rms_v, double peak_v, double peak_to_peak_v) {
  EXPECT_EQ(voltages.rms_v, rms_v);
  EXPECT_EQ(voltages.peak_v, peak_v);
  EXPECT_EQ(voltages.peak_to_peak_v, peak_to_peak_v);
}

TEST(Waveform, EveryPath) {
  // 1.23 V: peak 1.73922 is rounded to 1.74, twice that is 3.48; 2.828 x 1.23 would be 3.47844.
  expect(from_rms(1.23, Waveform::sine), 1.23, 1.74, 3.48);
  expect(from_rms(10, Waveform::triangle), 10, 17.32, 34.64);
  expect(from_rms(10, Waveform::square), 10, 10, 20);
  expect(from_peak(10, Waveform::sine), 7.07, 10, 20);
  expect(from_peak(10, Waveform::triangle), 5.77, 10, 20);
  expect(from_peak_to_peak(10, Waveform::sine), 3.54, 5, 10);
  expect(from_peak_to_peak(10, Waveform::triangle), 2.89, 5, 10);
  expect(from_peak_to_peak(0.01, Waveform::square), 0.01, 0.01, 0.01);  // the peak is rounded up
  EXPECT_EQ(average_v(14.14, Waveform::sine), 9.01);
  EXPECT_EQ(average_v(10, Waveform::triangle), 5);
  EXPECT_EQ(average_v(10, Waveform::square), 10);
}

}  // namespace
}  // namespace eterlab::circuits
