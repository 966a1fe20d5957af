#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmleggediohm : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuohm");

  Texts compute(int mode, const char* first, const char* second) const {
    window.click("Option1_" + std::to_string(mode));
    window.enter({{"txtinput1", first}, {"txtinput2", second}});
    return texts();
  }
  [[nodiscard]] Texts texts() const {
    return window.texts(
        {"lblinput_0", "lblinput_1", "lblinput_2", "lblinput_3", "lblinput_4", "lblinput_5"});
  }
};

// One resistor at 12 V and 0.5 A: 24 ohm, 6 W; then mode 5 with a result that is rounded.
TEST_F(frmleggediohm, EachModeNamesAndComputes) {
  EXPECT_EQ(compute(0, "12", "0.5"), (Texts{"VOLT :", "AMPER :", "OHM :", "WATT :", "24.", "6."}));
  EXPECT_EQ(compute(1, "12", "24"), (Texts{"VOLT :", "OHM :", "AMPER :", "WATT :", "0.5", "6."}));
  EXPECT_EQ(compute(2, "12", "6"), (Texts{"VOLT :", "WATT :", "AMPER :", "OHM :", "0.5", "24."}));
  EXPECT_EQ(compute(3, "0.5", "24"), (Texts{"AMPER :", "OHM :", "VOLT :", "WATT :", "12.", "6."}));
  EXPECT_EQ(compute(4, "0.5", "6"), (Texts{"AMPER :", "WATT :", "VOLT :", "OHM :", "12.", "24."}));
  EXPECT_EQ(compute(5, "50", "100"),
            (Texts{"OHM :", "WATT :", "VOLT :", "AMPER :", "70.711", "1.414"}));
  EXPECT_EQ(window.text("lblformule"), "V = radice(R x W)   I = radice( W : R)");
  set_regional_settings(test::italian());
  EXPECT_EQ(compute(0, "2469", "2"),
            (Texts{"VOLT :", "AMPER :", "OHM :", "WATT :", "1.234,5", "4.938,"}));
}

TEST_F(frmleggediohm, OnlyTheProductIsChecked) {
  EXPECT_EQ(compute(0, "-2", "-3")[4], "0.667");
  compute(0, "-2", "3");
  expect_refusal(window, test::error("MANCANO DATI"), "txtinput1");
}

TEST_F(frmleggediohm, NamesStayOnceShownAndResultsGoWithEveryChange) {
  EXPECT_FALSE(window.shows("lblinput_2"));
  window.enter({{"txtinput1", "1"}, {"txtinput2", "2"}});
  EXPECT_TRUE(window.shows("lblinput_2"));
  EXPECT_EQ(texts()[2] + texts()[4], "");  // without a mode
  EXPECT_TRUE(boxes().empty());
  compute(0, "12", "0.5");
  window.type("txtinput2", "1");
  EXPECT_EQ(texts()[4] + texts()[5], "");
  window.click("cmdcalcola");
  window.click("Option1_3");
  EXPECT_EQ(texts()[4] + texts()[5], "");
  EXPECT_TRUE(window.shows("lblinput_2"));
  EXPECT_EQ(window.text("txtinput1"), "12");
}

}  // namespace
}  // namespace eterlab
