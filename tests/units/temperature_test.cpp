#include "units/temperature.h"

#include <gtest/gtest.h>

namespace eterlab::units {
namespace {

// The fixed points of the scales, and values worked out by hand.
TEST(Temperature, FixedPointsAndBelow) {
  struct Expected {
    double celsius;
    double fahrenheit;
    double reaumur;
    double kelvin;
  };
  const Expected table[] = {
      {0, 32, 0, 273},           {100, 212, 80, 373},     {-40, -40, -32, 233},
      {-273, -459.4, -218.4, 0}, {-300, -508, -240, -27},
  };
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.celsius);
    EXPECT_DOUBLE_EQ(fahrenheit_from_celsius(expected.celsius).value(), expected.fahrenheit);
    EXPECT_DOUBLE_EQ(reaumur_from_celsius(expected.celsius).value(), expected.reaumur);
    EXPECT_EQ(kelvin_from_celsius(expected.celsius).value(), static_cast<float>(expected.kelvin));
  }
}

TEST(Temperature, KelvinIsRoundedInSinglePrecision) {
  EXPECT_EQ(kelvin_from_celsius(36.6).value(), 309.6F);
  EXPECT_EQ(kelvin_from_celsius(0.126).value(), 273.13F);
  // Seven digits are all that single precision holds.
  EXPECT_EQ(kelvin_from_celsius(1234567.89).value(), 1234841.0F);
}

}  // namespace
}  // namespace eterlab::units
