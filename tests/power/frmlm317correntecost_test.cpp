#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;

class frmlm317correntecost : public test::WindowTest {
 protected:
  test::Driven window = choose("mnu317cc");
};

TEST_F(frmlm317correntecost, ResistorForACurrent) {
  window.type("txtcorrente", "100");
  window.press(Qt::Key_Enter);
  EXPECT_EQ(window.text("lblr1"), "12.5 Ohm");
  EXPECT_EQ(window.text("lblrisultato"), "PER OTTENERE 100 mA LA RESISTENZA DEVE ESSERE  12.5 OHM");
}

TEST_F(frmlm317correntecost, ItalianResults) {
  set_regional_settings(test::italian());
  window.type("txtcorrente", "0.5");
  window.click("cmdcalcola");
  EXPECT_EQ(window.text("lblr1"), "2.500,0 Ohm");
  EXPECT_EQ(window.text("lblrisultato"),
            "PER OTTENERE 0,5 mA LA RESISTENZA DEVE ESSERE  2.500,0 OHM");
}

TEST_F(frmlm317correntecost, CurrentOutOfRange) {
  window.type("txtcorrente", "1000");
  window.click("cmdcalcola");
  EXPECT_EQ(boxes(), Boxes{});
  for (const char* current : {"0", "1001", "-5"}) {
    SCOPED_TRACE(current);
    window.type("txtcorrente", current);
    window.click("cmdcalcola");
    EXPECT_EQ(boxes(), Boxes{test::error("DATO NON CONGRUO")});
    EXPECT_EQ(window.focus(), "txtcorrente");
    EXPECT_EQ(window.text("lblr1"), "1.3 Ohm");
  }
}

}  // namespace
}  // namespace eterlab
