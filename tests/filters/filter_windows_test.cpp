#include "support/form_test.h"
#include "support/layout_faults.h"

namespace eterlab::test {
namespace {

// frmpassabasso and frmpassaalto, which are one window with two sets of formulas and texts.
class PassFilters : public FormTest {
 protected:
  /// Opens a window anew and chooses a form.
  void use_form(const std::string& kind, const char* picture) {
    if (is_open("frm" + kind)) {
      close("frm" + kind);
    }
    use("mnufiltri" + kind, "txtfrequenza txtimpedenza", "lblinduttanza lblcapacità");
    window.click(picture);
  }
  void expect_elements(const char* typed, const std::string& inductance,
                       const std::string& capacitance) {
    expect(typed, "INDUTTANZA in microHENRY di L : " + inductance +
                      "|CAPACITA' in picoFARAD di C : " + capacitance);
  }
};

// Over 0.05 MHz, 200 ohm in a low-pass, 300 in a high-pass: pi 0.318 Z / F and 159000 / (Z F), tee
// 0.159 and 318000; high: pi 0.159 and 79600, tee 0.0796 and 159000. Each in its way of writing.
TEST_F(PassFilters, EachFormComputes) {
  use_form("passabasso", "Image1");
  // 136.2857, and 757142857.1, of which single precision makes 757142848.
  expect_elements("0.0007|0.3", "136,29", "7,571428E+08");
  expect_elements("0.05|200", "1.272,", "15900");
  use_form("passabasso", "Image2");
  expect_elements("0.05|200", "636,", "31800");
  use_form("passaalto", "Image1");
  expect_elements("0.05|300", "954,00", "5306,7");
  use_form("passaalto", "Image2");
  expect_elements("0.05|300", "477,60", "10600");
}

TEST_F(PassFilters, FirstTheFormIsChosen) {
  const std::string kept = "Image1 lblpigreco";
  const std::string asked =
      "lblfrequenza txtfrequenza lblimpedenza txtimpedenza cmdcalcola cmdbobine";
  const std::string all =
      "lblistruzione " + kept + " Image2 lblT " + asked + " lblinduttanza lblnota";
  use("mnufiltripassabasso", "txtfrequenza txtimpedenza", "lblinduttanza lblcapacità");
  EXPECT_EQ(window.shown(all), "lblistruzione " + kept + " Image2 lblT");
  window.press(Qt::Key_Return);  // nothing to compute yet
  EXPECT_EQ(boxes(), Boxes{});
  window.click("Image1");
  EXPECT_EQ(window.shown(all), kept + " " + asked);
  EXPECT_EQ(window.focus(), "txtfrequenza");
  expect_refusal("7|", "txtfrequenza");
  expect("7|-50", "|");
  EXPECT_EQ(window.shown(all), kept + " " + asked);
  enter("-7|-50");
  window.type("txtimpedenza", "1");
  window.click("Image1");  // nothing goes
  EXPECT_EQ(window.shown(all), kept + " " + asked + " lblinduttanza lblnota");
  EXPECT_EQ(window.control("lblinduttanza").pos(), QPoint(247, 153));
  EXPECT_EQ(window.control("lblcapacità").pos(), QPoint(247, 193));
}

TEST_F(PassFilters, TheTeeTakesThePlaceOfThePi) {
  use("mnufiltripassaalto", "txtfrequenza txtimpedenza", "lblinduttanza lblcapacità");
  EXPECT_EQ(window.control("Image1").pos(), QPoint(16, 56));
  window.window().activateWindow();
  window.control("Image2").setFocus();
  window.press(Qt::Key_Space);
  EXPECT_EQ(window.focus(), "txtfrequenza");
  EXPECT_EQ(window.shown("Image1 lblpigreco"), "");
  enter("7|50");
  settle();
  EXPECT_EQ(window.control("Image2").pos(), QPoint(16, 56));
  EXPECT_EQ(window.control("lblT").pos(), QPoint(80, 48));
  EXPECT_EQ(layout_faults(window.window()), std::vector<std::string>{});
}

TEST_F(PassFilters, TheBandPassLeadsToBoth) {
  for (const auto& [button, target] :
       {std::pair{"Command1", "frmpassabasso"}, {"Command2", "frmpassaalto"}}) {
    choose("mnufiltripassabanda").click(button);
    EXPECT_FALSE(is_open("frmpassabanda"));
    EXPECT_FALSE(driven(target).window().isModal());
  }
}

using frmpassabasso2 = FormTest;

// In 40 digits L = 0.68244, C1 = 245.678, C2 = 272.975; then 573.2484, 5732.484, 6369.427.
TEST_F(frmpassabasso2, ComputesFromAPositiveProduct) {
  use("mnupassabanda2", "txtimpedenza txtf", "lblzin lblc1 lbll lblc2a lblc2b lblzout");
  expect_refusal("50|", "txtimpedenza");
  expect("50|-7", "INPUT|||||OUTPUT");
  expect("-50|-7", "-50 OHM|245,7 pF|0,682 µH|273 pF|273 pF|-50 OHM");
  expect("300|0.05", "300 OHM|5.732,5 pF|573,248 µH|6369,4 pF|6369,4 pF|300 OHM");
}

using frmpassabandakcostante = FormTest;

// L1 = 53.0786, C1 = 9.34847, L2 = 0.0233712, C2 = 21231.42; the halves from the rounded texts,
// unrounded ones would be 26.539, 18.697, 0.0467.
TEST_F(frmpassabandakcostante, BothDrawingsInItalian) {
  use("mnupbk", "txtimpedenza txtf1 txtf2",
      "lbll1 lblc1 lbll2 lblc2 lblc2a lblc2b lbll2a lblc1a lblc1b lbll1a");
  expect_refusal("50||7", "txtimpedenza");
  expect("-50|7|7.3", "|||||||||");
  EXPECT_FALSE(window.shows("Frame1"));
  EXPECT_EQ(window.text("lblzin2 lblzout2"), "INPUT|OUTPUT");
  expect("50|7|7.3",
         "53,1 µH|9,3 pF|0,023 µH|21.231,4 pF|10615,7 pF|10615,7 pF|2 x 0,046 µH|18,6 pF|18,6 pF|"
         "2 x 26,55 µH");
  EXPECT_EQ(window.text("lblzin lblzout lblzin2 lblzout2"), "50 OHM|50 OHM|50 OHM|50 OHM");
  enter("50|0.135|0.138");  // the longest values of a radio band: 1061571,15 pF
  settle();
  EXPECT_EQ(layout_faults(window.window()), std::vector<std::string>{});
  expect_end("50|7|7");
}

TEST_F(frmpassabandakcostante, WarnsAboveTen) {
  use("mnupbk", "txtimpedenza txtf1 txtf2", "lblq lblfattoreq");
  expect("300|9.5|10.49999",  // 10.000095
         "IL FATTORE DI MERITO TEORICO E' 10,000|"
         "Q ECCESSIVO (MAX 10)     BANDA PASSANTE TROPPO STRETTA IN RELAZIONE ALLA FREQUENZA");
  expect("300|9.5|10.5", "IL FATTORE DI MERITO TEORICO E' 10,000|");
  // Edges in the wrong order: all is negative.
  expect("50|4|3.5", "IL FATTORE DI MERITO TEORICO E' -7,500|");
  EXPECT_EQ(window.text("lbll1 lblc2a lblfc lblbw"),
            "-31,8 µH|-6369,45 pF|LA FREQUENZA DI CENTRO BANDA E' 3,75 MHz|"
            "LA BANDA PASSANTE E' -0,500 MHz");
}

}  // namespace
}  // namespace eterlab::test
