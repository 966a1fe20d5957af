#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmrisonanza : public WindowTest {
 protected:
  test::Driven window = choose("mnurisonanza");

  void compute(const char* inductance, const char* capacitance) const {
    window.type("txtinduttanza", inductance);
    window.type("txtcapacità", capacitance);
    window.click("cmdcalcola");
  }
  [[nodiscard]] std::vector<std::string> results() const {
    return {window.text("lbloutputfrequenza"), window.text("lbloutputmetri"),
            window.text("lbloutputreattanza")};
  }
  const std::vector<std::string> none{"", "", ""};
};

// 10 uH and 100 pF: 5032.9223 kHz, 59.60893 m, 316.22756 ohm, by hand in 40 digits.
TEST_F(frmrisonanza, Computes) {
  compute("10", "100");
  EXPECT_EQ(results(), (std::vector<std::string>{"Frequenza in Khz  :  5,032.922",
                                                 "Lunghezza d'onda in mt. : 59.609",
                                                 "Reattanza XL=XC = 316.23 Ohm "}));
  set_regional_settings(test::italian());
  window.click("cmdcalcola");
  EXPECT_EQ(results()[0], "Frequenza in Khz  :  5.032,922");
}

TEST_F(frmrisonanza, ExplanationStandsWhereTheResultsWillBe) {
  EXPECT_TRUE(window.shows("lblfantasma"));
  EXPECT_EQ(window.control("lblfantasma").pos(), QPoint(24, 133));
  compute("", "100");
  EXPECT_TRUE(window.shows("lblfantasma"));
  compute("10", "100");
  EXPECT_FALSE(window.shows("lblfantasma"));
  window.type("txtinduttanza", "1");
  EXPECT_FALSE(window.shows("lblfantasma"));  // gone for good, though the results are
  EXPECT_EQ(results(), none);

  close("frmrisonanza");
  EXPECT_TRUE(choose("mnurisonanza").shows("lblfantasma"));
}

TEST_F(frmrisonanza, ZeroIsReportedAndANegativeProductIsNot) {
  compute("10", "");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtinduttanza");
  compute("10", "-100");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(results(), none);
  EXPECT_TRUE(window.shows("lblfantasma"));
  compute("-10", "-100");
  EXPECT_EQ(results()[2], "Reattanza XL=XC = -316.23 Ohm ");
}

TEST_F(frmrisonanza, CoilWindowStandsBeside) {
  window.click("cmdchiamabobine");
  EXPECT_EQ(window.window().pos(), QPoint(12, 12));
  expect_companion("frmbobine", QPoint(273, 187));
  window.click("cdmesci");
  EXPECT_FALSE(is_open("frmrisonanza"));
}

}  // namespace
}  // namespace eterlab
