#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmreattanza : public test::WindowTest {
 protected:
  test::Driven window = choose("mnureattanza");

  std::string compute(const char* frequency, const char* second) const {
    window.enter({{"txtinput_0", frequency}, {"txtinput_1", second}});
    return window.text("lblinput_3");
  }
  void expect_kind(int kind, const Texts& names) const {
    EXPECT_EQ(window.texts({"lblfantasma", "lblinput_0", "lblinput_1", "lblinput_2"}), names);
    for (const int i : {0, 1}) {
      EXPECT_EQ(window.colour("Option1_" + std::to_string(i)), i == kind ? "#ff0000" : "#000000");
    }
  }
};

// 6.28 x 7 x 10 = 439.6; 159000 / 700 = 227.14286 and 159000 / 100 = 1590.
TEST_F(frmreattanza, EachKindNamesComputesAndIsRed) {
  EXPECT_EQ(compute("7", "100"), "227.143");  // without a kind it is a capacitor
  expect_kind(-1, {"", "", "", ""});
  window.click("Option1_0");
  expect_kind(0, {"XL in Ohm = 6,28 x (Mhz x induttanza in µH)", "Mhz", "microH", "XL Ohm"});
  EXPECT_EQ(compute("7", "10"), "439.600");
  window.click("Option1_1");
  expect_kind(1, {"XC in Ohm = 159.000 : (Mhz x pF)", "Mhz", "picoF", "XC Ohm"});
  set_regional_settings(test::italian());
  EXPECT_EQ(compute("0.1", "1000"), "1.590,000");
}

TEST_F(frmreattanza, OnlyTheProductIsChecked) {
  window.click("Option1_0");
  EXPECT_EQ(compute("-7", "-10"), "439.600");
  EXPECT_EQ(compute("-7", "10"), "");
  expect_refusal(window, test::error("MANCANO DATI"), "txtinput_0");
}

TEST_F(frmreattanza, CoilWindowStandsBeside) {
  window.click("cmdchiamabobine");
  EXPECT_EQ(window.window().pos(), QPoint(12, 12));
  expect_companion("frmbobine", QPoint(273, 187));
}

}  // namespace
}  // namespace eterlab
