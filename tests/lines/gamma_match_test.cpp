#include "lines/gamma_match.h"

#include <gtest/gtest.h>

namespace eterlab::lines {
namespace {

// Lengths by Python's decimal, the capacitance by its struct (single precision) and round (ties to
// even).
TEST(GammaMatch, LengthsAndWholeNumbers) {
  const GammaMatch match = gamma_match(7.05);
  EXPECT_DOUBLE_EQ(match.wavelength_m.value(), 42.523829787234043);
  EXPECT_DOUBLE_EQ(match.rod_length_cm.value(), 265.77393617021277);
  EXPECT_DOUBLE_EQ(match.spacing_cm.value(), 29.76668085106383);
  EXPECT_EQ(match.cable_length_cm, 308);
  EXPECT_EQ(gamma_match(600).capacitance_pf, 4);          // 3.5
  EXPECT_EQ(gamma_match(839.9999999).capacitance_pf, 2);  // 2.5, in single precision only
  EXPECT_EQ(gamma_match(0.0641).capacitance_pf, 32761);
  EXPECT_EQ(gamma_match(0.0641).cable_length_cm, 33775);  // may exceed 16 bits
  EXPECT_THROW(gamma_match(0.064), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::lines
