#include "support/window_test.h"

namespace eterlab {
namespace {

class frmretiadLbilanciata : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuLbilanciata");
};

TEST_F(frmretiadLbilanciata, EachLegHasHalfOfTheSeriesResistor) {
  set_regional_settings(test::italian());
  window.type("txtRH", "75");
  window.type("txtRL", "50");
  window.press(Qt::Key_Return);
  EXPECT_EQ(window.text("lblR1"), "21,7");  // half of 43.301, not of 43.3
  EXPECT_EQ(window.text("lblR1a"), "21,7");
  EXPECT_EQ(window.text("lblR2"), "86,6");
  EXPECT_EQ(window.text("lblperdita"), "L'ATTENUAZIONE E' 5,72 dB");
}

TEST_F(frmretiadLbilanciata, RefusesEqualImpedances) {
  window.type("txtRH", "50");
  window.type("txtRL", "50");
  window.click("cmdcalcola");
  EXPECT_EQ(boxes(),
            (std::vector<test::Box>{{"messaggio di errore",
                                     "L'impedenza IN deve essere maggiore dell'impedenza OUT"}}));
  EXPECT_EQ(window.focus(), "txtRH");
}

}  // namespace
}  // namespace eterlab
