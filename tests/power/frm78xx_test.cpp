#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;

class frm78xx : public test::WindowTest {
 protected:
  test::Driven window = choose("mnu78xx");
};

TEST_F(frm78xx, EveryType) {
  struct Expected {
    const char* type;
    const char* r1;
    const char* r2;
  };
  const Expected table[] = {{"7805", "200 Ohm", "800 Ohm"}, {"7808", "320 Ohm", "680 Ohm"},
                            {"7812", "480 Ohm", "520 Ohm"}, {"7815", "600 Ohm", "400 Ohm"},
                            {"7818", "720 Ohm", "280 Ohm"}, {"7824", "960 Ohm", "40 Ohm"}};
  int index = 0;
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.type);
    window.click("Option1_" + std::to_string(index++));
    EXPECT_EQ(window.text("lbl78xx"), expected.type);
    EXPECT_EQ(window.text("lblr1"), "R1");
    EXPECT_EQ(window.text("lblr2"), "R2");
    EXPECT_EQ(window.text("txtvu"), "");
    window.type("txtvu", "25");
    window.press(Qt::Key_Enter);
    EXPECT_EQ(window.text("lblr1"), expected.r1);
    EXPECT_EQ(window.text("lblr2"), expected.r2);
    EXPECT_EQ(window.text("lblvout"), "25 Volt Out");
    EXPECT_EQ(window.text("lblvin"), "35 Volt Input");
  }
}

TEST_F(frm78xx, ItalianResultsAndNote) {
  set_regional_settings(test::italian());
  EXPECT_FALSE(window.shows("Label7"));
  window.click("Option1_0");
  window.type("txtvu", "9");
  window.click("cmdcalcola");
  EXPECT_EQ(window.text("lblvin"), "12,6 Volt Input");
  EXPECT_TRUE(window.shows("Label7"));
  window.type("txtvu", "35");  // R2 without grouping: 1200
  window.click("cmdcalcola");
  EXPECT_EQ(window.text("lblr2"), "1200 Ohm");
}

TEST_F(frm78xx, OutputOutOfRange) {
  window.click("Option1_2");
  for (const char* voltage : {"12", "36", ""}) {
    SCOPED_TRACE(voltage);
    window.type("txtvu", voltage);
    window.click("cmdcalcola");
    EXPECT_EQ(boxes(), Boxes{test::error("DATO NON CONGRUO")});
    EXPECT_EQ(window.focus(), "txtvu");
    EXPECT_EQ(window.text("lblr1"), "R1");
    EXPECT_FALSE(window.shows("Label7"));
  }
}

TEST_F(frm78xx, WithoutATypeTheNominalVoltageIsZero) {
  window.type("txtvu", "9");
  window.click("cmdcalcola");
  EXPECT_EQ(window.text("lblr1"), "0 Ohm");
  EXPECT_EQ(window.text("lblr2"), "360 Ohm");
}

}  // namespace
}  // namespace eterlab
