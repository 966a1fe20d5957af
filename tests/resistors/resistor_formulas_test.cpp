#include <gtest/gtest.h>

#include "resistors/series_resistor.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::resistors {
namespace {

TEST(ZenerResistor, WholeOhmWithinSixteenBits) {
  // Exact in binary: 2.5 ohm and 3.5 ohm go to the even neighbour.
  EXPECT_EQ(zener_series_resistor(1.25, 1, 100, 0).resistance_ohm, 2);
  EXPECT_EQ(zener_series_resistor(8, 1, 2000, 0).resistance_ohm, 4);
  EXPECT_EQ(zener_series_resistor(33.767, 1, 1, 0).resistance_ohm, 32767);
  EXPECT_THROW(zener_series_resistor(33.768, 1, 1, 0), ArithmeticFault);
}

TEST(LedResistor, RoundingAndRange) {
  EXPECT_EQ(led_series_resistor_ohm(3.00125, 3).value(), 0.13F);     // 0.125, away from zero
  EXPECT_THROW(led_series_resistor_ohm(-1e40, 3), ArithmeticFault);  // beyond single precision
}

}  // namespace
}  // namespace eterlab::resistors
