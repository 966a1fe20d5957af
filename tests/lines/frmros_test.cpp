#include "support/window_test.h"

namespace eterlab {
namespace {

class frmros : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuros");

  using Texts = std::vector<std::string>;
  [[nodiscard]] Texts results() const {
    return {window.text("lblimpedenza"), window.text("lblwattriflessi"),
            window.text("lblwattirradiati"), window.text("lblcoeffriflessione"),
            window.text("lblreturnloss")};
  }
};

TEST_F(frmros, EachRatio) {
  EXPECT_EQ(results(), (Texts{"", "", "", "", ""}));
  window.type("txtros", "2");
  EXPECT_EQ(results(), (Texts{"IMPEDENZA DELL'ANTENNA =  100.0 o 25.0 ohm",
                              "PERCENTUALE DELL'ENERGIA RIFLESSA =  11.1 %",
                              "PERCENTUALE DELL'ENERGIA IRRADIATA =  88.90 %",
                              "COEFFICIENTE DI RIFLESSIONE = 0.33", "RETURN LOSS = 9.54"}));
  window.type("txtros", "1");
  EXPECT_EQ(results(),
            (Texts{"IMPEDENZA DELL'ANTENNA =  50.0 o 50.0 ohm",
                   "PERCENTUALE DELL'ENERGIA RIFLESSA =  0.0 %",
                   "PERCENTUALE DELL'ENERGIA IRRADIATA =  100.00 %",
                   "COEFFICIENTE DI RIFLESSIONE = 0.00", "RETURN LOSS TENDENTE A INFINITO"}));
  set_regional_settings(test::italian());
  window.type("txtros", "1000");
  EXPECT_EQ(results(), (Texts{"IMPEDENZA DELL'ANTENNA =  50.000,0 o 0,1 ohm",
                              "PERCENTUALE DELL'ENERGIA RIFLESSA =  99,6 %",
                              "PERCENTUALE DELL'ENERGIA IRRADIATA =  0,40 %",
                              "COEFFICIENTE DI RIFLESSIONE = 1,00", "RETURN LOSS = 0,02"}));
}

TEST_F(frmros, EveryKeystrokeCounts) {
  window.type("txtros", "1.");
  EXPECT_EQ(results()[4], "RETURN LOSS TENDENTE A INFINITO");
  window.press(Qt::Key_5);
  EXPECT_EQ(results()[4], "RETURN LOSS = 13.98");
  window.type("txtros", "1,5");  // a comma ends the number
  EXPECT_EQ(results()[4], "RETURN LOSS TENDENTE A INFINITO");
}

TEST_F(frmros, BelowOneHidesTheResults) {
  for (const char* typed : {"0.9", "-2", "abc", ""}) {
    SCOPED_TRACE(typed);
    window.type("txtros", "3");
    EXPECT_TRUE(window.shows("Frame1"));
    EXPECT_EQ(results()[0], "IMPEDENZA DELL'ANTENNA =  150.0 o 16.7 ohm");
    window.type("txtros", typed);
    EXPECT_FALSE(window.shows("Frame1"));
  }
  EXPECT_TRUE(boxes().empty());
}

}  // namespace
}  // namespace eterlab
