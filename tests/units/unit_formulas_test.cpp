#include <gtest/gtest.h>

#include "units/decibel.h"
#include "units/decibel_microvolt.h"
#include "units/locator.h"
#include "units/mils.h"
#include "units/temperature.h"
#include "units/wire_gauge.h"

// What the windows leave open: digits that they do not show, limits and faults.

namespace eterlab::units {
namespace {

// Logarithms and powers of ten with 40 decimal digits.
TEST(Decibels, BothWays) {
  EXPECT_DOUBLE_EQ(from_voltages(7, 2).decibels.value(), 10.88136088700551);
  EXPECT_FALSE(from_voltages(7, 2).is_gain);
  EXPECT_DOUBLE_EQ(from_powers(50, 0.3).decibels.value(), 22.21848749616356);
  const SignalRatios ratios = ratios_from_decibels(37.5);
  EXPECT_EQ(ratios.voltage, 74.989);  // it alone is rounded
  EXPECT_DOUBLE_EQ(ratios.power.value(), 5623.413251903491);
  EXPECT_EQ(level_dbuv(123.4).value(), 41.83F);
  EXPECT_THROW(level_dbuv(0), ArithmeticFault);
  EXPECT_EQ(voltage_uv(0.1).value(), 1.01F);
  EXPECT_EQ(voltage_uv(119.99).value(), 998849.37F);
}

TEST(Mils, FactorsAreNotQuiteReciprocal) {
  EXPECT_EQ(mils_from_mm(1), 39.3700787);
  EXPECT_DOUBLE_EQ(metric_from_mils(39.3700787).mm.value(), 0.99999999898);
}

TEST(Temperature, KelvinInSinglePrecision) {
  EXPECT_EQ(kelvin_from_celsius(0.126).value(), 273.13F);
  EXPECT_EQ(kelvin_from_celsius(1234567.89).value(), 1234841.0F);  // all the digits that it holds
}

// Computed with fifty decimals in Python.
TEST(WireGauge, Diameter) {
  EXPECT_DOUBLE_EQ(awg_diameter_mm(-3).value(), 11.684);
  EXPECT_DOUBLE_EQ(awg_diameter_mm(80).value(), 0.00077312234123378836);
}

// Places computed apart from this code, in double precision with the latitude and its field
// fraction packed to four bytes and back.
TEST(Locator, OfPlaces) {
  const std::tuple<double, double, const char*> table[] = {
      {10, 44, "JN53AX"},  // 13.4 in single precision is just below itself: the cell to the south
      {-70.65, -33.45, "FF46QN"},
      {-180, -90, "AA00AA"},
      // Off the globe: beyond the letter R, before the letter A, and beyond all characters.
      {190, -100, "S@50AA"},
      {-180 + 190 * 20.0, 0, "ÿJ00AA"},
      {-180 + 191 * 20.0, 0, "?J00AA"},
      {-180 - 66 * 20.0, 0, "?J00AA"},
  };
  for (const auto& [longitude_deg, latitude_deg, locator] : table) {
    EXPECT_EQ(locator_of({longitude_deg, Single{latitude_deg}}), locator);
  }
}

TEST(Locator, CentreOfASubsquare) {
  const Position centre = position_of("Jn61fV").value();
  EXPECT_DOUBLE_EQ(centre.longitude_deg.value(), 12 + 5.5 / 12);
  EXPECT_EQ(centre.latitude_deg.value(), 41.8958333F);
  // By their codes: é is É, 0xC9 = 201; € is 0x80 = 128; z is Z; a blank is 32.
  const Position nowhere = position_of("é€z z ").value();
  EXPECT_DOUBLE_EQ(nowhere.longitude_deg.value(), 136 * 20 - 180 + 42 * 2 + 25.5 / 12);
  EXPECT_EQ(nowhere.latitude_deg.value(), static_cast<float>(63 * 10 - 90 - 16 - 32.5 / 24));
}

}  // namespace
}  // namespace eterlab::units
