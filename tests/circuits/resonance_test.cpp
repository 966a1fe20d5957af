#include "circuits/resonance.h"

#include <gtest/gtest.h>

namespace eterlab::circuits {
namespace {

// Expected values in 40 decimal digits from the rounded constants; the exact ones of physics differ
// from the fourth digit on.
TEST(Resonance, FrequencyWavelengthAndReactance) {
  const Resonance at = resonance(0.5, 30);
  EXPECT_NEAR(at.frequency_khz.value(), 41093.6381533887, 1e-8);
  EXPECT_NEAR(at.wavelength_m.value(), 7.30057360760098, 1e-10);
  EXPECT_FLOAT_EQ(at.reactance_ohm.value(), 129.099363F);
  EXPECT_THROW(resonance(10, -100), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::circuits
