#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;

class frmreszener : public test::WindowTest {
 protected:
  test::Driven window = choose("mnureszener");

  void compute(std::string_view supply_v, std::string_view zener_v, std::string_view load_ma) {
    window.type("txtvcc", supply_v);
    window.type("txtvz", zener_v);
    window.type("txtma", load_ma);
    window.click("cmdcalcola");
  }
};

TEST_F(frmreszener, ValuesOnTheDrawingAndInWords) {
  set_regional_settings(test::italian());
  window.click("Option1_0");
  compute("12", "5.1", "20");
  EXPECT_EQ(window.text("lblvcc"), "12 V");
  EXPECT_EQ(window.text("lblohm"), "173 ohm");
  EXPECT_EQ(window.text("lblvz"), "5,1 V");
  EXPECT_EQ(window.text("lblohmlunga"), "Valore della resistenza = Ohm 173");
  EXPECT_EQ(window.text("lblwatt"), "Dissipazione in Watt = 0,276");
}

// 10 V across the resistor and 20 mA of load: 10 V / (20 mA + Iz), (20 mA + Iz) x 10 V.
TEST_F(frmreszener, TheClassSetsTheStandingCurrent) {
  compute("15", "5", "20");
  EXPECT_EQ(window.text("lblohmlunga"), "Valore della resistenza = Ohm 500");
  EXPECT_EQ(window.text("lblwatt"), "Dissipazione in Watt = 0.2");
  const char* const results[][2] = {{"250", "0.4"}, {"200", "0.5"}, {"167", "0.6"}};
  int index = 0;
  for (const auto& [resistance, dissipation] : results) {
    window.click("Option1_" + std::to_string(index++));
    window.press(Qt::Key_Enter);
    EXPECT_EQ(window.text("lblohmlunga"),
              "Valore della resistenza = Ohm " + std::string{resistance});
    EXPECT_EQ(window.text("lblwatt"), "Dissipazione in Watt = " + std::string{dissipation});
  }
}

TEST_F(frmreszener, RefusesInItsOrder) {
  compute("5", "6", "");
  EXPECT_EQ(boxes(), Boxes{test::error("VALORI DI TENSIONE ERRATI")});
  EXPECT_EQ(window.focus(), "txtvcc");
  compute("12", "5.1", "");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtvcc");
  compute("12", "5.1", "-20");  // a negative product does nothing at all
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(window.text("lblohmlunga"), "");
  compute("12", "12", "20");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(window.text("lblohm"), "0 ohm");
  EXPECT_EQ(window.text("lblwatt"), "Dissipazione in Watt = 0");
}

TEST_F(frmreszener, AResistorBeyondTheRangeEndsTheProgram) {
  compute("40000", "1", "1");
  EXPECT_TRUE(has_ended());
}

TEST_F(frmreszener, CurrentsThatCancelEndTheProgram) {
  window.click("Option1_0");
  compute("12", "-5", "-20");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
