#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmros : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuros");

  Texts type(const char* ratio) const {
    window.type("txtros", ratio);
    return window.texts({"lblimpedenza", "lblwattriflessi", "lblwattirradiati",
                         "lblcoeffriflessione", "lblreturnloss"});
  }
};

TEST_F(frmros, EachRatio) {
  EXPECT_EQ(type("2"), (Texts{"IMPEDENZA DELL'ANTENNA =  100.0 o 25.0 ohm",
                              "PERCENTUALE DELL'ENERGIA RIFLESSA =  11.1 %",
                              "PERCENTUALE DELL'ENERGIA IRRADIATA =  88.90 %",
                              "COEFFICIENTE DI RIFLESSIONE = 0.33", "RETURN LOSS = 9.54"}));
  set_regional_settings(test::italian());
  EXPECT_EQ(type("1000"), (Texts{"IMPEDENZA DELL'ANTENNA =  50.000,0 o 0,1 ohm",
                                 "PERCENTUALE DELL'ENERGIA RIFLESSA =  99,6 %",
                                 "PERCENTUALE DELL'ENERGIA IRRADIATA =  0,40 %",
                                 "COEFFICIENTE DI RIFLESSIONE = 1,00", "RETURN LOSS = 0,02"}));
}

TEST_F(frmros, EveryKeystrokeCounts) {
  EXPECT_EQ(type("1.")[4], "RETURN LOSS TENDENTE A INFINITO");
  window.press(Qt::Key_5);
  EXPECT_EQ(window.text("lblreturnloss"), "RETURN LOSS = 13.98");
  EXPECT_EQ(type("1,5")[4], "RETURN LOSS TENDENTE A INFINITO");  // a comma ends the number
  for (const char* below_one : {"0.9", "-2", "abc", ""}) {
    type("3");
    EXPECT_TRUE(window.shows("Frame1"));
    type(below_one);
    EXPECT_FALSE(window.shows("Frame1"));
  }
  EXPECT_TRUE(boxes().empty());
}

}  // namespace
}  // namespace eterlab
