#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmpassabandakcostante : public WindowTest {
 protected:
  test::Driven window = choose("mnupbk");

  void compute(const char* impedance, const char* lower, const char* upper) const {
    window.type("txtimpedenza", impedance);
    window.type("txtf1", lower);
    window.type("txtf2", upper);
    window.click("cmdcalcola");
  }
  [[nodiscard]] std::vector<std::string> texts(std::initializer_list<const char*> names) const {
    std::vector<std::string> all;
    for (const char* name : names) {
      all.push_back(window.text(name));
    }
    return all;
  }
  using Texts = std::vector<std::string>;
};

// In 40 digits: L1 = 53.0786, C1 = 9.34847, L2 = 0.0233712, C2 = 21231.42; the halves from the
// rounded texts by hand.
TEST_F(frmpassabandakcostante, BothDrawingsInItalian) {
  set_regional_settings(test::italian());
  compute("50", "7", "7.3");
  EXPECT_EQ(texts({"lbll1", "lblc1", "lbll2", "lblc2"}),
            (Texts{"53,1 \u00b5H", "9,3 pF", "0,023 \u00b5H", "21.231,4 pF"}));
  EXPECT_EQ(texts({"lblc2a", "lblc2b", "lbll2a", "lblc1a", "lblc1b", "lbll1a"}),
            (Texts{"10615,7 pF", "10615,7 pF", "2 x 0,046 \u00b5H", "18,6 pF", "18,6 pF",
                   "2 x 26,55 \u00b5H"}));
  EXPECT_EQ(texts({"lblzin", "lblzout", "lblzin2", "lblzout2"}),
            (Texts{"50 OHM", "50 OHM", "50 OHM", "50 OHM"}));
  EXPECT_EQ(texts({"lblfc", "lblbw", "lblq"}),
            (Texts{"LA FREQUENZA DI CENTRO BANDA E' 7,15 MHz", "LA BANDA PASSANTE E' 0,300 MHz",
                   "IL FATTORE DI MERITO TEORICO E' 23,833"}));
}

TEST_F(frmpassabandakcostante, WarnsAboveTen) {
  const std::string warning =
      "Q ECCESSIVO (MAX 10)     BANDA PASSANTE TROPPO STRETTA IN RELAZIONE ALLA FREQUENZA";
  EXPECT_FALSE(window.shows("Frame1"));
  compute("50", "7", "7.3");
  EXPECT_EQ(window.text("lblfattoreq"), warning);
  EXPECT_TRUE(window.shows("Frame1"));
  compute("300", "9.5", "10.5");  // 10 exactly
  EXPECT_EQ(window.text("lblfattoreq"), "");
  compute("300", "9.5", "10.49999");  // 10.000095, shown as 10.000
  EXPECT_EQ(window.text("lblq"), "IL FATTORE DI MERITO TEORICO E' 10.000");
  EXPECT_EQ(window.text("lblfattoreq"), warning);
}

TEST_F(frmpassabandakcostante, EdgesInTheWrongOrderGiveNegativeValues) {
  compute("50", "4", "3.5");
  EXPECT_EQ(texts({"lbll1", "lblc2a", "lblbw", "lblfattoreq"}),
            (Texts{"-31.8 \u00b5H", "-6369.45 pF", "LA BANDA PASSANTE E' -0.500 MHz", ""}));
}

TEST_F(frmpassabandakcostante, ZeroIsReportedAndANegativeProductIsNot) {
  compute("50", "", "7");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtimpedenza");
  compute("-50", "7", "7.3");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_FALSE(window.shows("Frame1"));
  EXPECT_EQ(window.text("lblzin2"), "INPUT");
}

TEST_F(frmpassabandakcostante, EqualEdgesAreFatal) {
  compute("50", "7", "7");
  EXPECT_TRUE(has_ended());
  EXPECT_EQ(boxes()[0].text, "DIVISIONE PER ZERO. IL PROGRAMMA VIENE CHIUSO.");
}

}  // namespace
}  // namespace eterlab
