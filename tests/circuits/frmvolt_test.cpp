#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmvolt : public WindowTest {
 protected:
  test::Driven window = choose("mnurms");

  [[nodiscard]] std::vector<std::string> results() const {
    return {window.text("lblout1"), window.text("lblout2"), window.text("lblout3")};
  }
};

TEST_F(frmvolt, EveryKindAndWave) {
  struct Expected {
    const char* kind;
    const char* wave;
    std::vector<std::string> results;
  };
  const Expected table[] = {
      {"Option1_0",
       "Option2_0",
       {"VOLT di picco : 14.14", "VOLT picco picco : 28.28", "VOLT VALORE MEDIO : 9.01"}},
      {"Option1_1",
       "Option2_1",
       {"VOLT efficaci : 5.77", "VOLT picco picco : 20.00", "VOLT VALORE MEDIO : 5.00"}},
      {"Option1_2",
       "Option2_2",
       {"VOLT efficaci : 5.00", "VOLT di picco : 5.00", "VOLT VALORE MEDIO : 5.00"}},
  };
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.kind);
    window.click(expected.kind);
    window.click(expected.wave);
    window.type("txtinput", "10");
    EXPECT_EQ(results(), expected.results);
  }
}

TEST_F(frmvolt, ItalianResults) {
  set_regional_settings(test::italian());
  window.click("Option1_0");
  window.type("txtinput", "1000");
  EXPECT_EQ(results()[0], "VOLT di picco : 1.414,00");
}

TEST_F(frmvolt, ChoosingEmptiesTheBoxUnderThePreviousKind) {
  window.click("Option1_0");
  window.type("txtinput", "10");
  window.click("Option1_2");
  // Emptying the box was an edit: 0 volt, still of the first kind.
  EXPECT_EQ(results(), (std::vector<std::string>{"VOLT di picco : 0.00", "VOLT picco picco : 0.00",
                                                 "VOLT VALORE MEDIO : 0.00"}));
  EXPECT_EQ(window.text("txtinput"), "");
  EXPECT_EQ(window.text("lblinput"), "VOLT PICCO PICCO");
  window.click("Option2_1");  // the box is empty already: no edit
  EXPECT_EQ(results(), (std::vector<std::string>{"", "", ""}));
}

TEST_F(frmvolt, ChosenKindIsBlue) {
  window.click("Option1_1");
  EXPECT_EQ(window.colour("Option1_1"), "#0000c0");
  window.click("Option1_2");
  EXPECT_EQ(window.colour("Option1_2"), "#0000c0");
  EXPECT_EQ(window.colour("Option1_1"), window.colour("Option1_0"));
}

TEST_F(frmvolt, WithoutAKindOnlyTheAverageIsWritten) {
  window.type("txtinput", "10");
  EXPECT_EQ(results(), (std::vector<std::string>{"", "", "VOLT VALORE MEDIO : 0.00"}));
}

TEST_F(frmvolt, NegativeIsRefusedAsSoonAsItIsTyped) {
  window.click("Option1_0");
  window.type("txtinput", "-");
  EXPECT_EQ(boxes(), Boxes{});
  window.type("txtinput", "-1");
  EXPECT_EQ(boxes(), Boxes{test::error("VALORE NEGATIVO")});
  EXPECT_EQ(window.focus(), "txtinput");
}

}  // namespace
}  // namespace eterlab
