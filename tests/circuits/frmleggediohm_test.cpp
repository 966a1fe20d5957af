#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmleggediohm : public WindowTest {
 protected:
  test::Driven window = choose("mnuohm");

  void compute(int mode, const char* first, const char* second) const {
    window.click("Option1_" + std::to_string(mode));
    window.type("txtinput1", first);
    window.type("txtinput2", second);
    window.click("cmdcalcola");
  }
};

TEST_F(frmleggediohm, EachModeNamesAndComputes) {
  struct Expected {
    const char* names[4];
    const char* first;
    const char* second;
    const char* results[2];
  };
  // One resistor at 12 V and 0.5 A: 24 ohm, 6 W; then mode 5 with a result that is rounded.
  const Expected modes[] = {
      {{"VOLT :", "AMPER :", "OHM :", "WATT :"}, "12", "0.5", {"24.", "6."}},
      {{"VOLT :", "OHM :", "AMPER :", "WATT :"}, "12", "24", {"0.5", "6."}},
      {{"VOLT :", "WATT :", "AMPER :", "OHM :"}, "12", "6", {"0.5", "24."}},
      {{"AMPER :", "OHM :", "VOLT :", "WATT :"}, "0.5", "24", {"12.", "6."}},
      {{"AMPER :", "WATT :", "VOLT :", "OHM :"}, "0.5", "6", {"12.", "24."}},
      {{"OHM :", "WATT :", "VOLT :", "AMPER :"}, "50", "100", {"70.711", "1.414"}},
  };
  int mode = 0;
  for (const Expected& expected : modes) {
    SCOPED_TRACE(mode);
    compute(mode, expected.first, expected.second);
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(window.text("lblinput_" + std::to_string(i)), expected.names[i]);
    }
    EXPECT_EQ(window.text("lblinput_4"), expected.results[0]);
    EXPECT_EQ(window.text("lblinput_5"), expected.results[1]);
    ++mode;
  }
  EXPECT_EQ(window.text("lblformule"), "V = radice(R x W)   I = radice( W : R)");
}

TEST_F(frmleggediohm, ItalianResultsAreGroupedAndKeepTheSeparator) {
  set_regional_settings(test::italian());
  compute(0, "2469", "2");
  EXPECT_EQ(window.text("lblinput_4"), "1.234,5");
  EXPECT_EQ(window.text("lblinput_5"), "4.938,");
}

TEST_F(frmleggediohm, OnlyTheProductIsChecked) {
  compute(0, "-2", "-3");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(window.text("lblinput_4"), "0.667");
  EXPECT_EQ(window.text("lblinput_5"), "6.");

  compute(0, "-2", "3");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtinput1");
}

TEST_F(frmleggediohm, ResultsGoWhenAnInputOrTheModeChanges) {
  compute(0, "12", "0.5");
  window.type("txtinput2", "1");
  EXPECT_EQ(window.text("lblinput_4"), "");
  EXPECT_TRUE(window.shows("lblinput_2"));  // the names stay once shown
  window.click("cmdcalcola");
  window.click("Option1_3");
  EXPECT_EQ(window.text("lblinput_5"), "");
  EXPECT_EQ(window.text("txtinput1"), "12");
}

TEST_F(frmleggediohm, WithoutAModeOnlyTheEmptyNamesAppear) {
  EXPECT_FALSE(window.shows("lblinput_2"));
  window.type("txtinput1", "1");
  window.type("txtinput2", "2");
  window.press(Qt::Key_Return);
  EXPECT_TRUE(window.shows("lblinput_2"));
  EXPECT_TRUE(window.shows("lblinput_3"));
  EXPECT_EQ(window.text("lblinput_2"), "");
  EXPECT_EQ(window.text("lblinput_4"), "");
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(frmleggediohm, Texts) {
  EXPECT_EQ(window.text("Frame1"), "dati conosciuti");
  EXPECT_EQ(window.tooltip("Frame1"), "effettuare una scelta");
  EXPECT_EQ(window.text("Option1_0"), "VOLT  e  AMPERE");
  EXPECT_EQ(window.text("Option1_3"), "AMPERE e OHM");
  EXPECT_EQ(window.text("cdmesci"), "CHIUDI");
  EXPECT_EQ(window.tooltip("cdmesci"), "esce dall'applicazione");
  window.click("cdmesci");
  EXPECT_FALSE(is_open("frmleggediohm"));
}

}  // namespace
}  // namespace eterlab
