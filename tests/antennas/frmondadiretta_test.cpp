#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmondadiretta : public WindowTest {
 protected:
  test::Driven window = choose("mnuondadiretta");
};

TEST_F(frmondadiretta, ComputesUpToFiveThousandMetres) {
  window.type("txtaltezza", "100");
  EXPECT_EQ(window.text("lbldistanza"), "LA POSSIBILE DISTANZA E' DI KM: 41");
  window.type("txtaltezza", "5000");
  EXPECT_EQ(window.text("lbldistanza"), "LA POSSIBILE DISTANZA E' DI KM: 292");
  window.type("txtaltezza", "5000.1");
  EXPECT_EQ(boxes(), Boxes{test::error("ALTEZZA ECCESSIVA")});
  EXPECT_EQ(window.focus(), "txtaltezza");
  EXPECT_EQ(window.text("lbldistanza"), "LA POSSIBILE DISTANZA E' DI KM: 292");
}

TEST_F(frmondadiretta, NoHeightKeepsTheLastDistance) {
  window.type("txtaltezza", "9");
  for (const char* text : {"", "0", "-", "abc"}) {
    window.type("txtaltezza", text);
    EXPECT_EQ(window.text("lbldistanza"), "LA POSSIBILE DISTANZA E' DI KM: 12");
  }
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(frmondadiretta, RefusesEveryNegativeHeight) {
  window.type("txtaltezza", "-25");  // "-2" and "-25"
  EXPECT_EQ(boxes(), (Boxes{test::error("MANCA DATO"), test::error("MANCA DATO")}));
  EXPECT_EQ(window.focus(), "txtaltezza");
  EXPECT_EQ(window.text("lbldistanza"), "");
}

TEST_F(frmondadiretta, Closes) {
  EXPECT_EQ(window.text("cmdesci"), "C H I U D I");
  window.click("cmdesci");
  EXPECT_FALSE(is_open("frmondadiretta"));
}

}  // namespace
}  // namespace eterlab
