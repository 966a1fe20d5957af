#include <gtest/gtest.h>

#include "units/locator.h"
#include "units/temperature.h"

// What the windows leave open: digits that they do not show, limits and faults.

namespace eterlab::units {
namespace {

TEST(Temperature, KelvinInSinglePrecision) {
  EXPECT_EQ(kelvin_from_celsius(0.126).value(), 273.13F);
  EXPECT_EQ(kelvin_from_celsius(1234567.89).value(), 1234841.0F);  // all the digits that it holds
}

// Places computed apart from this code, in double precision with the latitude and its field
// fraction packed to four bytes and back.
TEST(Locator, OfPlaces) {
  const std::tuple<double, double, const char*> table[] = {
      {10, 44, "JN53AX"},  // 13.4 in single precision is just below itself: the cell to the south
      {0, -83, "JA07AA"},  // 0.7 likewise, but its tenfold is 7 in single precision
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
