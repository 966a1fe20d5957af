#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;

class frmlm317 : public test::WindowTest {
 protected:
  test::Driven window = choose("mnu317");
};

TEST_F(frmlm317, TwelveVolt) {
  window.type("txtvu", "12");
  window.press(Qt::Key_Enter);
  EXPECT_EQ(window.text("lblr1"), "220 Ohm");
  EXPECT_EQ(window.text("lblr2"), "1892 Ohm");
  EXPECT_EQ(window.text("lblvout"), "12 Volt Out");
  EXPECT_EQ(window.text("lblvin"), "15.6 Volt Input");
  EXPECT_EQ(window.text("lblvmax"),
            "LA TENSIONE OTTIMALE IN ENTRATA E' 15.6 VOLT   -  LA MASSIMA APPLICABILE E' 42 VOLT");
}

TEST_F(frmlm317, ItalianResults) {
  set_regional_settings(test::italian());
  window.type("txtvu", "5.001");
  window.click("cmdcalcola");
  EXPECT_EQ(window.text("lblr2"), "660,176 Ohm");
  EXPECT_EQ(window.text("lblvout"), "5,001 Volt Out");
  EXPECT_EQ(window.text("lblvin"), "6,5013 Volt Input");
  EXPECT_EQ(
      window.text("lblvmax"),
      "LA TENSIONE OTTIMALE IN ENTRATA E' 6,5013 VOLT   -  LA MASSIMA APPLICABILE E' 35,001 VOLT");
}

TEST_F(frmlm317, OutputOutOfRangeLeavesTheResults) {
  window.type("txtvu", "100");
  window.click("cmdcalcola");
  EXPECT_EQ(boxes(), Boxes{});
  for (const char* voltage : {"1.25", "100.5", ""}) {
    SCOPED_TRACE(voltage);
    window.type("txtvu", voltage);
    window.click("cmdcalcola");
    EXPECT_EQ(boxes(), Boxes{test::error("DATO NON CONGRUO")});
    EXPECT_EQ(window.focus(), "txtvu");
    EXPECT_EQ(window.text("lblvin"), "130 Volt Input");
  }
}

}  // namespace
}  // namespace eterlab
