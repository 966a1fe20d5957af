#include "lines/gamma_match.h"

#include <gtest/gtest.h>

namespace eterlab::lines {
namespace {

// Lengths by Python's decimal, the capacitance by its struct (single precision) and round (ties to
// even).
TEST(GammaMatch, IsProportionalToTheWavelength) {
  const GammaMatch match = gamma_match(7.05);
  EXPECT_DOUBLE_EQ(match.wavelength_m.value(), 42.523829787234043);
  EXPECT_DOUBLE_EQ(match.rod_length_cm.value(), 265.77393617021277);
  EXPECT_DOUBLE_EQ(match.spacing_cm.value(), 29.76668085106383);
}

TEST(GammaMatch, CapacitorAndCableAreWholeNumbers) {
  struct Expected {
    double frequency_mhz;
    double capacitance_pf;
    double cable_length_cm;
  };
  const Expected table[] = {
      {7.05, 298, 308},
      {14.2, 148, 154},
      {28.5, 74, 77},
      {50, 42, 44},
      {600, 4, 5},          // 3.5 pF
      {840, 2, 3},          // 2.5 pF
      {839.9999999, 2, 3},  // 2.5 pF in single precision only
      {5000, 0, 1},
      {0.065, 32308, 33308},  // the cable may exceed 16 bits
      {0.0641, 32761, 33775},
  };
  for (const Expected& expected : table) {
    const GammaMatch match = gamma_match(expected.frequency_mhz);
    EXPECT_EQ(match.capacitance_pf, expected.capacitance_pf) << expected.frequency_mhz;
    EXPECT_EQ(match.cable_length_cm, expected.cable_length_cm) << expected.frequency_mhz;
  }
}

TEST(GammaMatch, CapacitanceBeyondSixteenBitsIsAFault) {
  EXPECT_THROW(gamma_match(0.064), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::lines
