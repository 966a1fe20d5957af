#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmvoltwatt : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuvoltwatt");

  Texts compute() {
    EXPECT_EQ(window.text("lbloutput") + window.text("lbldbm"), "");  // gone with every change
    window.press(Qt::Key_Enter);
    return window.texts({"lblinput", "lbloutput", "lbldbm"});
  }
};

TEST_F(frmvoltwatt, EveryUnitAcrossFiftyOhm) {
  window.enter({{"txtinput", "1"}});
  expect_refusal(window, test::error("MANCANO DATI"), "txtohm");
  window.type("txtohm", "50");
  EXPECT_EQ(compute()[1], "");  // without a unit, silently
  EXPECT_TRUE(boxes().empty());
  const Texts table[] = {
      {"WATT", "7.071 VOLT rms", "PARI A  30 dBm"},
      {"milliWATT", "223.608 MILLIVOLT rms", "PARI A  0 dBm"},
      {"microWATT", "7.071 MILLIVOLT rms", "PARI A  -30 dBm"},
      {"nanoWATT", "0.223 MILLIVOLT rms", "PARI A  -60 dBm"},
      {"nanoWatt", "223.608 MICROVOLT rms", "PARI A  -60 dBm"},
      {"picoWATT", "7.071 MICROVOLT rms", "PARI A  -90 dBm"},
      {"femtoWATT", "0.223 MICROVOLT rms", "PARI A  -120 dBm"},
  };
  int unit = 1;
  for (const Texts& expected : table) {
    window.click("Option1_" + std::to_string(unit++));
    EXPECT_EQ(compute(), expected);
  }
  set_regional_settings(test::italian());
  window.click("Option1_1");
  window.type("txtinput", "125000");
  EXPECT_EQ(compute(), (Texts{"WATT", "2.500,000 VOLT rms", "PARI A  81 dBm"}));
  window.type("txtinput", "1.2");
  EXPECT_EQ(compute()[2], "PARI A  30,8 dBm");  // plain, with at most one decimal
}

}  // namespace
}  // namespace eterlab
