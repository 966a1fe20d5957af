#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmrisonanza : public test::WindowTest {
 protected:
  test::Driven window = choose("mnurisonanza");

  Texts compute(const char* inductance, const char* capacitance) const {
    window.enter({{"txtinduttanza", inductance}, {"txtcapacità", capacitance}});
    return window.texts({"lbloutputfrequenza", "lbloutputmetri", "lbloutputreattanza"});
  }
};

// 10 uH and 100 pF: 5032.9223 kHz, 59.60893 m, 316.22756 ohm, by hand in 40 digits.
TEST_F(frmrisonanza, Computes) {
  EXPECT_EQ(compute("-10", "-100")[2], "Reattanza XL=XC = -316.23 Ohm ");
  set_regional_settings(test::italian());
  EXPECT_EQ(compute("10", "100"),
            (Texts{"Frequenza in Khz  :  5.032,922", "Lunghezza d'onda in mt. : 59,609",
                   "Reattanza XL=XC = 316,23 Ohm "}));
}

// The explanation stands where the results will be; once gone it is gone for good.
TEST_F(frmrisonanza, ZeroIsReportedANegativeProductIsNotAndTheExplanationStays) {
  compute("10", "");
  expect_refusal(window, test::error("MANCANO DATI"), "txtinduttanza");
  EXPECT_EQ(compute("10", "-100"), Texts(3));
  EXPECT_TRUE(boxes().empty());
  EXPECT_TRUE(window.shows("lblfantasma"));
  EXPECT_EQ(window.control("lblfantasma").pos(), QPoint(24, 133));
  compute("10", "100");
  EXPECT_FALSE(window.shows("lblfantasma"));
  window.type("txtinduttanza", "1");
  EXPECT_EQ(window.text("lbloutputfrequenza"), "");
  EXPECT_FALSE(window.shows("lblfantasma"));
}

TEST_F(frmrisonanza, CoilWindowStandsBeside) {
  window.click("cmdchiamabobine");
  EXPECT_EQ(window.window().pos(), QPoint(12, 12));
  expect_companion("frmbobine", QPoint(273, 187));
}

}  // namespace
}  // namespace eterlab
