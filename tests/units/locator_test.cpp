#include "units/locator.h"

#include <gtest/gtest.h>

namespace eterlab::units {
namespace {

// Places computed apart from this code, in double precision with the latitude and its field
// fraction packed to four bytes and back.

TEST(Locator, OfPlaces) {
  struct Expected {
    double longitude_deg;
    double latitude_deg;
    const char* locator;
  };
  const Expected table[] = {
      {0, 0, "JJ00AA"},
      // 13.4 in single precision is just below itself: the cell to the south.
      {10, 44, "JN53AX"},
      {12 + (28 * 60 + 59) / 3600.0, 41 + (53 * 60 + 24) / 3600.0, "JN61FV"},
      {-70.65, -33.45, "FF46QN"},
      {-180, -90, "AA00AA"},
      // Off the globe: beyond the letter R, before the letter A, and beyond all characters.
      {190, -100, "S@50AA"},
      {-180 + 190 * 20.0, 0, "ÿJ00AA"},
      {-180 + 191 * 20.0, 0, "?J00AA"},
      {-180 - 66 * 20.0, 0, "?J00AA"},
  };
  for (const Expected& expected : table) {
    EXPECT_EQ(locator_of({expected.longitude_deg, Single{expected.latitude_deg}}),
              expected.locator);
  }
}

TEST(Locator, CentreOfASubsquare) {
  const auto centre = position_of("Jn61fV");
  ASSERT_TRUE(centre);
  EXPECT_DOUBLE_EQ(centre->longitude_deg.value(), 12 + 5.5 / 12);
  EXPECT_EQ(centre->latitude_deg.value(), 41.8958333F);
  // By their codes: é is É, 0xC9 = 201; € is 0x80 = 128; z is Z; a blank is 32.
  const auto nowhere = position_of("é€z z ");
  ASSERT_TRUE(nowhere);
  EXPECT_DOUBLE_EQ(nowhere->longitude_deg.value(), 136 * 20 - 180 + 42 * 2 + 25.5 / 12);
  EXPECT_EQ(nowhere->latitude_deg.value(), static_cast<float>(63 * 10 - 90 - 16 - 32.5 / 24));
  EXPECT_FALSE(position_of("JN61F"));
  EXPECT_FALSE(position_of("JN61FVA"));
}

TEST(Locator, AngleInParts) {
  const DegreesAndMinutes west = degrees_and_minutes(-0.5);
  EXPECT_EQ(west.degrees, -1);
  EXPECT_EQ(west.minutes, 30);
  EXPECT_EQ(west.hundredths_of_minute, 0);
  EXPECT_EQ(degrees_and_minutes(7.0125).hundredths_of_minute, 75);  // 0.75 minutes
}

}  // namespace
}  // namespace eterlab::units
