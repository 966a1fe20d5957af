#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmreattanza : public WindowTest {
 protected:
  test::Driven window = choose("mnureattanza");

  void compute(const char* frequency, const char* second) const {
    window.type("txtinput_0", frequency);
    window.type("txtinput_1", second);
    window.click("cmdcalcola");
  }
};

TEST_F(frmreattanza, EachKindNamesAndComputes) {
  struct Expected {
    const char* kind;
    std::vector<std::string> texts;
    const char* second;
    const char* result;
  };
  // 6.28 x 7 x 10 = 439.6 and 159000 / 700 = 227.14286.
  const Expected kinds[] = {
      {"Option1_0",
       {"XL in Ohm = 6,28 x (Mhz x induttanza in \u00b5H)", "Mhz", "microH", "XL Ohm"},
       "10",
       "439.600"},
      {"Option1_1",
       {"XC in Ohm = 159.000 : (Mhz x pF)", "Mhz", "picoF", "XC Ohm"},
       "100",
       "227.143"},
  };
  for (const Expected& expected : kinds) {
    window.click(expected.kind);
    EXPECT_EQ((std::vector{window.text("lblfantasma"), window.text("lblinput_0"),
                           window.text("lblinput_1"), window.text("lblinput_2")}),
              expected.texts);
    compute("7", expected.second);
    EXPECT_EQ(window.text("lblinput_3"), expected.result);
  }
}

TEST_F(frmreattanza, ChosenKindIsRed) {
  window.click("Option1_0");
  EXPECT_EQ(window.colour("Option1_0"), "#ff0000");
  EXPECT_EQ(window.colour("Option1_1"), "#000000");
  window.click("Option1_1");
  EXPECT_EQ(window.colour("Option1_0"), "#000000");
  EXPECT_EQ(window.colour("Option1_1"), "#ff0000");
}

TEST_F(frmreattanza, ItalianResultIsGrouped) {
  set_regional_settings(test::italian());
  window.click("Option1_1");
  compute("0.1", "1000");
  EXPECT_EQ(window.text("lblinput_3"), "1.590,000");
}

TEST_F(frmreattanza, WithoutAKindItIsACapacitor) {
  EXPECT_EQ(window.text("lblinput_0") + window.text("lblinput_2") + window.text("lblfantasma"), "");
  compute("7", "100");
  EXPECT_EQ(window.text("lblinput_3"), "227.143");
  EXPECT_EQ(window.text("lblinput_2"), "");
}

TEST_F(frmreattanza, OnlyTheProductIsChecked) {
  window.click("Option1_0");
  compute("-7", "-10");
  EXPECT_EQ(window.text("lblinput_3"), "439.600");
  EXPECT_EQ(boxes(), Boxes{});
  for (const char* second : {"10", ""}) {
    compute("-7", second);
    EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
    EXPECT_EQ(window.focus(), "txtinput_0");
    EXPECT_EQ(window.text("lblinput_3"), "");
  }
}

TEST_F(frmreattanza, CoilWindowStandsBeside) {
  window.click("cmdchiamabobine");
  EXPECT_EQ(window.window().pos(), QPoint(12, 12));
  expect_companion("frmbobine", QPoint(273, 187));
  window.click("cmnesci");
  EXPECT_FALSE(is_open("frmreattanza"));
}

}  // namespace
}  // namespace eterlab
