#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;
const test::Box refused_negative = test::error("NON ESISTONO VALORI NEGATIVI");

class frmdBmicrovolt : public test::WindowTest {
 protected:
  test::Driven window = choose("mnudbmicrovolt");

  std::string result_of(const char* input) const {
    window.type("txtin", input);
    return window.text("lblout");
  }
};

TEST_F(frmdBmicrovolt, MicrovoltToLevel) {
  EXPECT_FALSE(window.shows("lbloutput"));
  EXPECT_EQ(result_of("1000"), "60");
  EXPECT_TRUE(window.shows("lbloutput"));
  EXPECT_EQ(result_of("2"), "6.02");
  EXPECT_EQ(result_of("0.5"), "-6.02");
  EXPECT_EQ(result_of("1"), "0");
  EXPECT_EQ(result_of("10"), "20");
  EXPECT_EQ(result_of("0"), "0");
  EXPECT_EQ(result_of("10"), "20");
  EXPECT_EQ(result_of(""), "0");
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(frmdBmicrovolt, LevelToMicrovolt) {
  set_regional_settings(test::italian());
  window.click("Option1_1");
  EXPECT_EQ(result_of("60"), "1000");
  EXPECT_EQ(result_of("6"), "2");
  EXPECT_EQ(result_of("37.5"), "74,99");
  EXPECT_EQ(result_of("119.99"), "998849,4");  // seven digits of 998849,37
  EXPECT_EQ(result_of("120"), "1000000");
  EXPECT_EQ(result_of(""), "1");
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(frmdBmicrovolt, NegativeMicrovoltCountAsOne) {
  window.type("txtin", "10");
  window.type("txtin", "-5");
  EXPECT_EQ(boxes(), Boxes{refused_negative});
  EXPECT_EQ(window.text("lblout"), "0");
  EXPECT_EQ(window.focus(), "txtin");
}

TEST_F(frmdBmicrovolt, LevelsOutOfRangeKeepTheResult) {
  window.click("Option1_1");
  window.type("txtin", "120.5");  // refused at "120.5", not at "120."
  EXPECT_EQ(boxes(), Boxes{test::error("dBmicroV max = 120")});
  EXPECT_EQ(window.text("lblout"), "1000000");
  EXPECT_EQ(window.focus(), "txtin");
  window.type("txtin", "-5");
  EXPECT_EQ(boxes(), Boxes{refused_negative});
  EXPECT_EQ(window.text("lblout"), "1");  // of the minus sign alone
  window.type("txtin", "125");
  EXPECT_EQ(boxes(), Boxes{test::error("dBmicroV max = 120")});
}

TEST_F(frmdBmicrovolt, AnOptionChangesOnlyTheCaptions) {
  EXPECT_EQ(window.text("lblinput"), "DIGITARE I microvolt");
  EXPECT_EQ(window.text("lbloutput"), "CORRISPONDE A dBmicrovolt : ");
  window.type("txtin", "100");
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblinput"), "DIGITARE I dBmicrovolt");
  EXPECT_EQ(window.text("lbloutput"), "CORRISPONDE A microvolt");
  EXPECT_EQ(window.text("txtin"), "100");
  EXPECT_EQ(window.text("lblout"), "40");
}

TEST_F(frmdBmicrovolt, Texts) {
  EXPECT_EQ(window.window().windowTitle(), "dBmicrovolt RIFERITO AD IMPEDENZE DI 75 Ohm");
  EXPECT_EQ(window.text("Frame1"), " Opzioni di calcolo  ");
  EXPECT_EQ(window.text("Option1_0"), "da microvolt a dBmicrovolt");
  EXPECT_EQ(window.text("Option1_1"), "da dBmicroV a microvolt");
  EXPECT_EQ(window.text("Label2"), "usare il punto del tastierino numerico per i decimali");
}

}  // namespace
}  // namespace eterlab
