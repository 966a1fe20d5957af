#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmvolt : public test::WindowTest {
 protected:
  test::Driven window = choose("mnurms");

  [[nodiscard]] Texts results() const { return window.texts({"lblout1", "lblout2", "lblout3"}); }
};

TEST_F(frmvolt, EveryKindAndWave) {
  window.type("txtinput", "10");  // without a kind only the average is written
  EXPECT_EQ(results(), (Texts{"", "", "VOLT VALORE MEDIO : 0.00"}));
  const Texts table[] = {
      {"VOLT di picco : 14.14", "VOLT picco picco : 28.28", "VOLT VALORE MEDIO : 9.01"},
      {"VOLT efficaci : 5.77", "VOLT picco picco : 20.00", "VOLT VALORE MEDIO : 5.00"},
      {"VOLT efficaci : 5.00", "VOLT di picco : 5.00", "VOLT VALORE MEDIO : 5.00"},
  };
  for (const int i : {0, 1, 2}) {
    window.click("Option1_" + std::to_string(i));
    window.click("Option2_" + std::to_string(i));
    window.type("txtinput", "10");
    EXPECT_EQ(results(), table[i]);
  }
  set_regional_settings(test::italian());
  window.type("txtinput", "1000");
  EXPECT_EQ(results()[0], "VOLT efficaci : 500,00");
}

TEST_F(frmvolt, ChoosingEmptiesTheBoxUnderThePreviousKind) {
  window.click("Option1_0");
  window.type("txtinput", "10");
  window.click("Option1_2");
  // Emptying the box was an edit: 0 volt, still of the first kind.
  EXPECT_EQ(results(),
            (Texts{"VOLT di picco : 0.00", "VOLT picco picco : 0.00", "VOLT VALORE MEDIO : 0.00"}));
  EXPECT_EQ(window.texts({"txtinput", "lblinput"}), (Texts{"", "VOLT PICCO PICCO"}));
  EXPECT_EQ(window.colour("Option1_2"), "#0000c0");
  EXPECT_EQ(window.colour("Option1_0"), window.colour("Option1_1"));
  window.click("Option2_1");  // the box is empty already: no edit
  EXPECT_EQ(results(), Texts(3));
}

TEST_F(frmvolt, NegativeIsRefusedAsSoonAsItIsTyped) {
  window.click("Option1_0");
  window.type("txtinput", "-");
  EXPECT_TRUE(boxes().empty());
  window.type("txtinput", "-1");
  expect_refusal(window, test::error("VALORE NEGATIVO"), "txtinput");
}

}  // namespace
}  // namespace eterlab
