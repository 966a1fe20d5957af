#include "support/window_test.h"

namespace eterlab {
namespace {

class frmwwl : public test::WindowTest {
 protected:
  test::Driven other_window = choose("mnucoordinate");
  test::Driven window = driven("frmwwl");
};

TEST_F(frmwwl, LocatorOfCoordinates) {
  struct Expected {
    std::vector<const char*> longitude;
    std::vector<const char*> latitude;
    const char* locator;
  };
  const Expected table[] = {
      {{"", "", ""}, {"", "", ""}, "JJ00AA"},
      {{"10", "0", "0"}, {"44", "0", "0"}, "JN53AX"},
      {{"12", "28", "59"}, {"41", "53", "24"}, "JN61FV"},
      // Minutes are added to the degrees, also to negative ones: 8.5 degrees west.
      {{"-9", "30", ""}, {"45", "", ""}, "IN55RA"},
      {{"-70", "-39", ""}, {"-33", "-27", ""}, "FF46QN"},
  };
  for (const Expected& expected : table) {
    window.type("txtlongr", expected.longitude[0]);
    window.type("txtlonpr", expected.longitude[1]);
    window.type("txtlonse", expected.longitude[2]);
    window.type("txtlatgr", expected.latitude[0]);
    window.type("txtlatpr", expected.latitude[1]);
    window.type("txtlatse", expected.latitude[2]);
    window.press(Qt::Key_Enter);
    EXPECT_EQ(window.text("lblwwl"), "il WORLD WIDE LOCATOR è :  " + std::string{expected.locator});
  }
}

TEST_F(frmwwl, BoxesAreNamedByRowAndColumn) {
  EXPECT_EQ(window.control("txtlongr").accessibleName(), "LONGITUDINE GRADI");
  EXPECT_EQ(window.control("txtlatse").accessibleName(), "LATITUDINE SECONDI");
}

}  // namespace
}  // namespace eterlab
