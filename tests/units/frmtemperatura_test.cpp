#include "support/window_test.h"

namespace eterlab {
namespace {

class frmtemperatura : public test::WindowTest {
 protected:
  test::Driven window = choose("mnutemperatura");

  using Results = std::vector<std::string>;
  [[nodiscard]] Results results() const {
    return {window.text("lblfahr"), window.text("lblreau"), window.text("lblkelv")};
  }
};

TEST_F(frmtemperatura, ComputesAtEveryKey) {
  EXPECT_EQ(results(), (Results{"", "", ""}));
  window.type("txtcentigradi", "-");
  EXPECT_EQ(results(), (Results{"32.", "0.", "273"}));
  window.type("txtcentigradi", "10");
  EXPECT_EQ(results(), (Results{"50.", "8.", "283"}));
  window.type("txtcentigradi", "100");
  EXPECT_EQ(results(), (Results{"212.", "80.", "373"}));
  window.clear("txtcentigradi");
  EXPECT_EQ(results(), (Results{"32.", "0.", "273"}));
}

TEST_F(frmtemperatura, OnlyKelvinLosesTheTrailingSeparator) {
  set_regional_settings(test::italian());
  window.type("txtcentigradi", "36.6");
  EXPECT_EQ(results(), (Results{"97,88", "29,28", "309,6"}));
  window.type("txtcentigradi", "2000");
  EXPECT_EQ(results(), (Results{"3632,", "1600,", "2273"}));
  window.type("txtcentigradi", "-300");
  EXPECT_EQ(results(), (Results{"-508,", "-240,", "-27"}));
  EXPECT_TRUE(boxes().empty());
}

TEST_F(frmtemperatura, Texts) {
  EXPECT_EQ(window.window().windowTitle(), "COMPARAZIONI TERMOMETRICHE");
  EXPECT_EQ(window.text("Label1"),
            "COMPARAZIONE TRA GRADI CENTIGRADI ED ALTRI SISTEMI DI MISURAZIONE");
  EXPECT_EQ(window.text("lblreaumur"), "GRADI REAUMUR");
  EXPECT_EQ(window.text("cmdesci"), "CHIUDI");
  window.click("cmdesci");
  EXPECT_FALSE(is_open("frmtemperatura"));
}

}  // namespace
}  // namespace eterlab
