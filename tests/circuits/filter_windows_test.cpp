#include <set>

#include "support/layout_faults.h"
#include "support/window_test.h"

// The windows of all filters. Expected values: the formulas in 40 digits, beside each test.

namespace eterlab {
namespace {

using test::Driven;
using test::Texts;

// frmpassabasso and frmpassaalto, which are one window with two sets of formulas and texts.
class PassFilters : public test::WindowTest {
 protected:
  static Texts compute(const Driven& window, const char* frequency, const char* impedance) {
    window.enter({{"txtfrequenza", frequency}, {"txtimpedenza", impedance}});
    return window.texts({"lblinduttanza", "lblcapacità"});
  }
  /// Opens the window, chooses the form and computes.
  void expect(const std::string& kind, const char* picture, const char* frequency,
              const char* impedance, const Texts& results) {
    const Driven window = choose("mnufiltri" + kind);
    window.click(picture);
    EXPECT_EQ(compute(window, frequency, impedance),
              (Texts{"INDUTTANZA in microHENRY di L : " + results[0],
                     "CAPACITA' in picoFARAD di C : " + results[1]}));
    close("frm" + kind);
  }
};

// Pi 0.318 Z / F and 159000 / (Z F), tee 0.159 and 318000; high: pi 0.159 and 79600, tee 0.0796 and
// 159000. Each number is written in its way.
TEST_F(PassFilters, EachFormComputes) {
  expect("passabasso", "Image2", "7", "50", {"1.14", "908.6"});
  expect("passaalto", "Image2", "7", "50", {"0.57", "454.3"});
  // 136.2857, and 757142857.1, of which single precision makes 757142848.
  expect("passabasso", "Image1", "0.0007", "0.3", {"136.29", "7.571428E+08"});
  set_regional_settings(test::italian());
  expect("passabasso", "Image1", "0.05", "200", {"1.272,", "15900"});
  expect("passaalto", "Image1", "0.05", "300", {"954,00", "5306,7"});
}

TEST_F(PassFilters, FirstTheFormIsChosen) {
  const Driven low = choose("mnufiltripassabasso");
  using Names = std::set<std::string>;
  const auto shown = [&low] {
    Names names;
    for (const QWidget* control : test::visible_controls(low.window())) {
      names.insert(control->objectName().toStdString());
    }
    return names;
  };
  EXPECT_EQ(shown(),
            (Names{"area", "lblistruzione", "Image1", "lblpigreco", "Image2", "lblT", "cmdesci"}));
  low.press(Qt::Key_Return);  // nothing to compute yet
  EXPECT_TRUE(boxes().empty());
  low.click("Image1");
  EXPECT_EQ(shown(), (Names{"area", "Image1", "lblpigreco", "lblfrequenza", "txtfrequenza",
                            "lblimpedenza", "txtimpedenza", "cmdcalcola", "cmdbobine", "cmdesci"}));
  EXPECT_EQ(low.focus(), "txtfrequenza");
  compute(low, "7", "");
  expect_refusal(low, test::error("MANCANO DATI"), "txtfrequenza");
  compute(low, "7", "-50");
  EXPECT_TRUE(boxes().empty());
  EXPECT_FALSE(low.shows("lblinduttanza") || low.shows("lblnota"));
  compute(low, "-7", "-50");
  low.type("txtimpedenza", "1");
  low.click("Image1");  // nothing goes
  EXPECT_TRUE(low.shows("lblinduttanza") && low.shows("lblnota"));
  EXPECT_EQ(low.control("lblinduttanza").pos(), QPoint(247, 153));
  EXPECT_EQ(low.control("lblcapacità").pos(), QPoint(247, 193));
}

TEST_F(PassFilters, TheTeeTakesThePlaceOfThePi) {
  const Driven high = choose("mnufiltripassaalto");
  EXPECT_EQ(high.control("Image1").pos(), QPoint(16, 56));
  high.window().activateWindow();
  high.control("Image2").setFocus();
  high.press(Qt::Key_Space);
  EXPECT_EQ(high.focus(), "txtfrequenza");
  EXPECT_FALSE(high.shows("Image1") || high.shows("lblpigreco"));
  compute(high, "7", "50");
  settle();
  EXPECT_EQ(high.control("Image2").pos(), QPoint(16, 56));
  EXPECT_EQ(high.control("lblT").pos(), QPoint(80, 48));
  EXPECT_EQ(test::layout_faults(high.window()), Texts{});
  high.click("cmdbobine");
  EXPECT_EQ(high.window().pos(), QPoint(12, 12));
  expect_companion("frmbobine", QPoint(273, 187));
}

TEST_F(PassFilters, TheBandPassLeadsToBoth) {
  for (const auto& [button, target] :
       {std::pair{"Command1", "frmpassabasso"}, {"Command2", "frmpassaalto"}}) {
    choose("mnufiltripassabanda").click(button);
    EXPECT_FALSE(is_open("frmpassabanda"));
    EXPECT_FALSE(driven(target).window().isModal());
  }
}

class frmpassabasso2 : public test::WindowTest {};

// L = 0.68244, C1 = 245.678, C2 = 272.975; then 573.2484, 5732.484, 6369.427.
TEST_F(frmpassabasso2, ComputesFromAPositiveProduct) {
  const Driven window = choose("mnupassabanda2");
  const auto compute = [&window](const char* impedance, const char* frequency) {
    window.enter({{"txtimpedenza", impedance}, {"txtf", frequency}});
    return window.texts({"lblzin", "lblc1", "lbll", "lblc2a", "lblc2b", "lblzout"});
  };
  compute("50", "");
  expect_refusal(window, test::error("MANCANO DATI"), "txtimpedenza");
  EXPECT_EQ(compute("50", "-7"), (Texts{"INPUT", "", "", "", "", "OUTPUT"}));
  EXPECT_TRUE(boxes().empty());
  EXPECT_EQ(compute("-50", "-7"),
            (Texts{"-50 OHM", "245.7 pF", "0.682 µH", "273 pF", "273 pF", "-50 OHM"}));
  set_regional_settings(test::italian());
  EXPECT_EQ(compute("300", "0.05"),
            (Texts{"300 OHM", "5.732,5 pF", "573,248 µH", "6369,4 pF", "6369,4 pF", "300 OHM"}));
  const QPoint place = window.window().pos();
  window.click("cmdchiamabobine");
  EXPECT_TRUE(is_open("frmbobine"));
  EXPECT_EQ(window.window().pos(), place);
}

class frmpassabandakcostante : public test::WindowTest {
 protected:
  Driven window = choose("mnupbk");
  void compute(const char* impedance, const char* lower, const char* upper) const {
    window.enter({{"txtimpedenza", impedance}, {"txtf1", lower}, {"txtf2", upper}});
  }
};

// L1 = 53.0786, C1 = 9.34847, L2 = 0.0233712, C2 = 21231.42; the halves from the rounded texts.
TEST_F(frmpassabandakcostante, BothDrawingsInItalian) {
  set_regional_settings(test::italian());
  compute("50", "7", "7.3");
  EXPECT_EQ(window.texts({"lbll1", "lblc1", "lbll2", "lblc2", "lblc2a", "lblc2b", "lbll2a",
                          "lblc1a", "lblc1b", "lbll1a"}),
            (Texts{"53,1 µH", "9,3 pF", "0,023 µH", "21.231,4 pF", "10615,7 pF", "10615,7 pF",
                   "2 x 0,046 µH", "18,6 pF", "18,6 pF", "2 x 26,55 µH"}));
  EXPECT_EQ(window.texts({"lblzin", "lblzout", "lblzin2", "lblzout2"}), Texts(4, "50 OHM"));
  EXPECT_EQ(window.texts({"lblfc", "lblbw", "lblq"}),
            (Texts{"LA FREQUENZA DI CENTRO BANDA E' 7,15 MHz", "LA BANDA PASSANTE E' 0,300 MHz",
                   "IL FATTORE DI MERITO TEORICO E' 23,833"}));
}

TEST_F(frmpassabandakcostante, WarnsAboveTen) {
  compute("300", "9.5", "10.49999");  // 10.000095, shown as 10.000
  EXPECT_EQ(window.texts({"lblq", "lblfattoreq"}),
            (Texts{"IL FATTORE DI MERITO TEORICO E' 10.000",
                   "Q ECCESSIVO (MAX 10)     BANDA PASSANTE TROPPO STRETTA IN RELAZIONE ALLA "
                   "FREQUENZA"}));
  compute("300", "9.5", "10.5");  // 10 exactly
  EXPECT_EQ(window.text("lblfattoreq"), "");
  compute("50", "4", "3.5");  // edges in the wrong order: all is negative
  EXPECT_EQ(window.texts({"lbll1", "lblc2a", "lblbw", "lblfattoreq"}),
            (Texts{"-31.8 µH", "-6369.45 pF", "LA BANDA PASSANTE E' -0.500 MHz", ""}));
}

TEST_F(frmpassabandakcostante, ZeroIsReportedANegativeProductIsNotEqualEdgesAreFatal) {
  compute("50", "", "7");
  expect_refusal(window, test::error("MANCANO DATI"), "txtimpedenza");
  compute("-50", "7", "7.3");
  EXPECT_TRUE(boxes().empty());
  EXPECT_FALSE(window.shows("Frame1"));
  EXPECT_EQ(window.text("lblzin2"), "INPUT");
  compute("50", "7", "7");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
