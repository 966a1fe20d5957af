#include <QScreen>

#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;

class frmcoordinate : public test::WindowTest {
 protected:
  test::Driven window = choose("mnucoordinate");
};

// Computed apart from this code, in double precision with the latitude packed to four bytes.
TEST_F(frmcoordinate, CentresOfSubsquares) {
  struct Expected {
    const char* locator;
    const char* longitude;
    const char* latitude;
  };
  const Expected table[] = {
      {"AA00AA", "-180°  2'  49\"", "-90°  1'  25\""}, {"jn54aa", "10°  2'  49\"", "44°  1'  24\""},
      {"JN54AA", "10°  2'  49\"", "44°  1'  24\""},    {"IM76AA", "-6°  2'  50\"", "36°  1'  24\""},
      {"RR99XX", "179°  57'  50\"", "89°  58'  74\""},
  };
  for (const Expected& expected : table) {
    window.type("txtwwl", expected.locator);
    window.press(Qt::Key_Enter);
    EXPECT_EQ(window.text("lbllong"), "LONGITUDINE = " + std::string{expected.longitude});
    EXPECT_EQ(window.text("lbllat"), "LATITUDINE    = " + std::string{expected.latitude});
  }
}

TEST_F(frmcoordinate, SixCharactersOrACriticalBox) {
  for (const char* locator : {"", "JN61F", "JN61FVA"}) {
    SCOPED_TRACE(locator);
    window.type("txtwwl", locator);
    window.control("cmdcalcola").setFocus();
    window.click("cmdcalcola");
    EXPECT_EQ(boxes(), (Boxes{{"DATI MANCANTI", "il WWL deve essere di 6 caratteri", true}}));
    EXPECT_EQ(window.focus(), "cmdcalcola");
    EXPECT_EQ(window.text("lbllong"), "");
  }
}

TEST_F(frmcoordinate, StandsOverTheOtherWindowInTheMiddleOfTheScreen) {
  ASSERT_TRUE(is_open("frmwwl"));
  const QRect above = window.window().frameGeometry();
  const QRect below = driven("frmwwl").window().frameGeometry();
  const int middle = window.window().screen()->geometry().center().x();
  EXPECT_NEAR(above.center().x(), middle, 2);
  EXPECT_NEAR(below.center().x(), middle, 2);
  EXPECT_LT(above.bottom(), below.top());
  EXPECT_FALSE(driven("frmwwl").window().isModal());
}

TEST_F(frmcoordinate, ThePairComesForwardTogether) {
  driven("frmwwl").type("txtlongr", "12");
  window.click("cmdesci");
  EXPECT_FALSE(is_open("frmcoordinate"));
  EXPECT_TRUE(is_open("frmwwl"));
  driven("frmwwl").window().showMinimized();
  choose("mnucoordinate");
  EXPECT_TRUE(is_open("frmcoordinate"));
  EXPECT_FALSE(driven("frmwwl").window().isMinimized());
  EXPECT_EQ(driven("frmwwl").text("txtlongr"), "12");

  close("frmwwl");
  choose("mnucoordinate");
  EXPECT_TRUE(is_open("frmwwl"));
  EXPECT_TRUE(driven("frmcoordinate").window().isActiveWindow());
}

}  // namespace
}  // namespace eterlab
