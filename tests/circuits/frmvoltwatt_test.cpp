#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmvoltwatt : public WindowTest {
 protected:
  test::Driven window = choose("mnuvoltwatt");
};

TEST_F(frmvoltwatt, EveryUnitAcrossFiftyOhm) {
  struct Expected {
    const char* unit;
    const char* voltage;
    const char* level;
  };
  const Expected table[] = {
      {"WATT", "7.071 VOLT rms", "PARI A  30 dBm"},
      {"milliWATT", "223.608 MILLIVOLT rms", "PARI A  0 dBm"},
      {"microWATT", "7.071 MILLIVOLT rms", "PARI A  -30 dBm"},
      {"nanoWATT", "0.223 MILLIVOLT rms", "PARI A  -60 dBm"},
      {"nanoWatt", "223.608 MICROVOLT rms", "PARI A  -60 dBm"},
      {"picoWATT", "7.071 MICROVOLT rms", "PARI A  -90 dBm"},
      {"femtoWATT", "0.223 MICROVOLT rms", "PARI A  -120 dBm"},
  };
  window.type("txtinput", "1");
  window.type("txtohm", "50");
  int index = 1;
  for (const Expected& expected : table) {
    window.click("Option1_" + std::to_string(index++));
    EXPECT_EQ(window.text("lblinput"), expected.unit);
    EXPECT_EQ(window.text("lbloutput"), "");
    window.click("cmdcalcola");
    EXPECT_EQ(window.text("lbloutput"), expected.voltage);
    EXPECT_EQ(window.text("lbldbm"), expected.level);
  }
}

TEST_F(frmvoltwatt, LevelIsPlainWithAtMostOneDecimal) {
  set_regional_settings(test::italian());
  window.click("Option1_1");
  window.type("txtohm", "50");
  window.type("txtinput", "125000");
  window.press(Qt::Key_Enter);
  EXPECT_EQ(window.text("lbloutput"), "2.500,000 VOLT rms");
  EXPECT_EQ(window.text("lbldbm"), "PARI A  81 dBm");
  window.type("txtinput", "1.2");
  EXPECT_EQ(window.text("lbldbm"), "");
  window.press(Qt::Key_Enter);
  EXPECT_EQ(window.text("lbldbm"), "PARI A  30,8 dBm");
}

TEST_F(frmvoltwatt, MissingDataAndNoUnit) {
  window.type("txtinput", "1");
  window.click("cmdcalcola");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtohm");
  window.type("txtohm", "50");
  window.click("cmdcalcola");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(window.text("lbloutput"), "");
}

}  // namespace
}  // namespace eterlab
