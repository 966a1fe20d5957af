#include "circuits/resonance.h"

#include <gtest/gtest.h>

namespace eterlab::circuits {
namespace {

// Expected values in 40 decimal digits from the rounded constants; the exact ones of physics differ
// from the fourth digit on.
TEST(Resonance, FrequencyWavelengthAndReactance) {
  struct Expected {
    double inductance_uh;
    double capacitance_pf;
    double frequency_khz;
    double wavelength_m;
    float reactance_ohm;
  };
  const Expected table[] = {
      {10, 100, 5032.92225751845, 59.6089338941740, 316.227565F},
      {0.5, 30, 41093.6381533887, 7.30057360760098, 129.099363F},
      {-10, -100, 5032.92225751845, 59.6089338941740, -316.227565F},
  };
  for (const Expected& expected : table) {
    const Resonance at = resonance(expected.inductance_uh, expected.capacitance_pf);
    EXPECT_NEAR(at.frequency_khz.value(), expected.frequency_khz, 1e-8);
    EXPECT_NEAR(at.wavelength_m.value(), expected.wavelength_m, 1e-10);
    EXPECT_FLOAT_EQ(at.reactance_ohm.value(), expected.reactance_ohm);
  }
  EXPECT_THROW(resonance(10, -100), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::circuits
