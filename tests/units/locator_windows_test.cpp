#include <QScreen>

#include "support/window_test.h"

// frmcoordinate and frmwwl, which open together, one over the other.

namespace eterlab {
namespace {

using test::Texts;

class LocatorWindows : public test::WindowTest {
 protected:
  test::Driven to_coordinates = choose("mnucoordinate");
  test::Driven to_locator = driven("frmwwl");
};

// Computed apart from this code, in double precision with the latitude packed to four bytes.
TEST_F(LocatorWindows, CentresOfSubsquares) {
  const std::pair<const char*, Texts> table[] = {
      {"AA00AA", {"LONGITUDINE = -180°  2'  49\"", "LATITUDINE    = -90°  1'  25\""}},
      {"jn54aa", {"LONGITUDINE = 10°  2'  49\"", "LATITUDINE    = 44°  1'  24\""}},
      {"RR99XX", {"LONGITUDINE = 179°  57'  50\"", "LATITUDINE    = 89°  58'  74\""}},
  };
  for (const auto& [locator, place] : table) {
    to_coordinates.type("txtwwl", locator);
    to_coordinates.press(Qt::Key_Enter);
    EXPECT_EQ(to_coordinates.texts({"lbllong", "lbllat"}), place);
  }
}

TEST_F(LocatorWindows, SixCharactersOrACriticalBox) {
  for (const char* locator : {"", "JN61F", "JN61FVA"}) {
    to_coordinates.type("txtwwl", locator);
    to_coordinates.click("cmdcalcola");
    expect_refusal(to_coordinates, {"DATI MANCANTI", "il WWL deve essere di 6 caratteri", true},
                   "cmdcalcola");
    EXPECT_EQ(to_coordinates.text("lbllong"), "");
  }
}

TEST_F(LocatorWindows, LocatorOfCoordinates) {
  const std::pair<Texts, std::string> table[] = {
      {{"", "", "", "", "", ""}, "JJ00AA"},
      {{"12", "28", "59", "41", "53", "24"}, "JN61FV"},
      // Minutes are added to the degrees, also to negative ones: 8.5 degrees west.
      {{"-9", "30", "", "45", "", ""}, "IN55RA"},
  };
  for (const auto& [parts, locator] : table) {
    auto part = parts.begin();
    for (const char* box :
         {"txtlongr", "txtlonpr", "txtlonse", "txtlatgr", "txtlatpr", "txtlatse"}) {
      to_locator.type(box, *part++);
    }
    to_locator.press(Qt::Key_Enter);
    EXPECT_EQ(to_locator.text("lblwwl"), "il WORLD WIDE LOCATOR è :  " + locator);
  }
}

TEST_F(LocatorWindows, StandInTheMiddleOfTheScreenAndComeForwardTogether) {
  const QRect above = to_coordinates.window().frameGeometry();
  const QRect below = to_locator.window().frameGeometry();
  const int middle = to_locator.window().screen()->geometry().center().x();
  EXPECT_NEAR(above.center().x(), middle, 2);
  EXPECT_NEAR(below.center().x(), middle, 2);
  EXPECT_LT(above.bottom(), below.top());

  to_locator.type("txtlongr", "12");
  close("frmcoordinate");
  to_locator.window().showMinimized();
  choose("mnucoordinate");
  EXPECT_FALSE(to_locator.window().isMinimized());
  EXPECT_EQ(to_locator.text("txtlongr"), "12");
  close("frmwwl");
  choose("mnucoordinate");
  EXPECT_TRUE(is_open("frmwwl"));
  EXPECT_TRUE(driven("frmcoordinate").window().isActiveWindow());
}

}  // namespace
}  // namespace eterlab
