#include "support/window_test.h"

// frmyagi3 and frmyagi5, which are one window with more or fewer elements.

namespace eterlab {
namespace {

using test::Texts;

class YagiWindows : public test::WindowTest {
 protected:
  test::Driven three = choose("mnuyagi3");
  test::Driven five = choose("mnuyagi5");
};

TEST_F(YagiWindows, OnlyTheLastValuesAreNotGrouped) {
  set_regional_settings(test::italian());
  three.type("txtfrequenza", "1");
  EXPECT_EQ(three.texts({"lblriflettore", "lblradiatore", "lbldirettore", "lblspazriflettore",
                         "lblspazdirettore"}),
            (Texts{"IL RIFLETTORE E' LUNGO  14.850 cm.", "IL RADIATORE E' LUNGO  14.100 cm.",
                   "IL DIRETTORE E' LUNGO  13.400 cm.", "6.000 cm.", "3000 cm."}));
  five.type("txtfrequenza", "1");
  EXPECT_EQ(five.texts({"lblriflettore", "lblradiatore", "lbl1direttore", "lbl2direttore",
                        "lbl3direttore", "lblspazriflettore", "lblspaz1direttore",
                        "lblspaz2direttore", "lblspaz3direttore"}),
            (Texts{"IL RIFLETTORE E' LUNGO  15.000 cm.", "IL RADIATORE E' LUNGO  14.200 cm.",
                   "IL 1 DIRETTORE E' LUNGO  13.300 cm.", "IL 2 DIRETTORE E' LUNGO  13.100 cm.",
                   "IL 3 DIRETTORE E' LUNGO  12900 cm.", "6.000 cm.", "3.000 cm.", "4.500 cm.",
                   "6000 cm."}));
}

TEST_F(YagiWindows, ResultsAreHiddenWithoutAPositiveFrequency) {
  const std::pair<test::Driven, std::vector<const char*>> windows[] = {
      {three, {"Frame1", "lblspazriflettore", "lblspazdirettore"}},
      {five,
       {"Frame1", "lblspazriflettore", "lblspaz1direttore", "lblspaz2direttore",
        "lblspaz3direttore"}},
  };
  for (const auto& [window, results] : windows) {
    for (const char* frequency : {"", "28.5", "0", "28.5", "-28.5"}) {
      window.type("txtfrequenza", frequency);
      for (const char* result : results) {
        EXPECT_EQ(window.shows(result), frequency == std::string{"28.5"}) << result;
      }
    }
  }
}

TEST_F(YagiWindows, GammaMatchStandsBeside) {
  for (const auto& [window, corner] : {std::pair{three, QPoint{23, 23}}, {five, {13, 13}}}) {
    window.click("cmdgamma");
    EXPECT_EQ(window.window().pos(), corner);
    expect_companion("frmgammamatch", {533, 533});
    driven("frmgammamatch").window().move(100, 100);
  }
}

}  // namespace
}  // namespace eterlab
