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

using frmnotchaf = FormTest;

// By nodal analysis of source, trap and load, the losses of the coil with it. The other form of the
// same notch has the same response; its parts are L and C of the first, 2 Z as far from each other.
TEST_F(frmnotchaf, BothTrapsOfOneResponse) {
  use("mnufiltronotchaf", "Option1 txtfrequenza txtbanda txtohm txtq",
      "lblinduttanza lblcapacita lblattenuazione lblbanda");
  EXPECT_EQ(window.text("txtohm txtq"), "50|100");
  const std::string response =
      "|ATTENUAZIONE AL CENTRO = 19,5 dB|BANDA A 3 dB DA 6,90282 MHz A 7,30282 MHz";
  expect("0|7.1|400|50|150", "INDUTTANZA = 9,947 µH|CAPACITA' = 50,52 pF" + response);
  EXPECT_EQ(window.text("lblvaloresorgente lblvaloreinduttanza lblvalorecapacita lblvalorecarico"),
            "50 Ohm|9,947 µH|50,52 pF|50 Ohm");
  expect("1|7.1|400|50|150", "INDUTTANZA = 126,3 nH|CAPACITA' = 3,979 nF" + response);
  window.click("Option1_0");
  EXPECT_EQ(results(), "|||");
  // The narrowest and widest, and a coil next to useless: 6.02 dB at the centre.
  expect("0|1000000000000|0.000000000001|50|1",
         "INDUTTANZA = 3,979 GH|CAPACITA' = 6,366E-33 fF|ATTENUAZIONE AL CENTRO = 0,0 dB|"
         "BANDA A 3 dB DA 1000000000 GHz A 1000000000 GHz");
  expect("0|1|999.999999999|50|1",
         "INDUTTANZA = 3,979 µH|CAPACITA' = 6,366 nF|ATTENUAZIONE AL CENTRO = 6,0 dB|"
         "BANDA A 3 dB DA 618,034 kHz A 1,61803 MHz");
}

TEST_F(frmnotchaf, ChecksItsNumbers) {
  use("mnufiltronotchaf", "Option1 txtfrequenza txtbanda txtohm txtq",
      "lblinduttanza lblcapacita lblattenuazione lblbanda");
  expect_refusal("0|7.1|400||0", "txtohm");
  expect_refusal("0|7.1|400|50|0.99", "txtq", "VALORI AMMESSI: DA 1 A 1000000");
  expect_refusal("0|7.1|400|50|1000001", "txtq", "VALORI AMMESSI: DA 1 A 1000000");
  for (const char* typed : {"1|7.1|7100|50|150", "0|1.001|1001|50|150", "0|0.3|300|50|150"}) {
    expect_refusal(typed, "txtbanda", "LA BANDA DEVE ESSERE MINORE DELLA FREQUENZA");
  }
}

using frmnotchbf = FormTest;

TEST_F(frmnotchbf, InHertz) {
  use("mnufiltronotchbf", "Option1 txtfrequenza txtbanda txtohm txtq",
      "lblinduttanza lblcapacita lblattenuazione lblbanda");
  EXPECT_EQ(window.text("txtohm txtq"), "600|20");
  expect("0|1000|200|600|20",
         "INDUTTANZA = 238,7 mH|CAPACITA' = 106,1 nF|ATTENUAZIONE AL CENTRO = 14,0 dB|"
         "BANDA A 3 dB DA 904,988 Hz A 1,10499 kHz");
  expect_refusal("1|50|60|600|20", "txtbanda", "LA BANDA DEVE ESSERE MINORE DELLA FREQUENZA");
}

using frmfiltronotch = FormTest;

// 1 / (2 pi f x) in 30 digits.
TEST_F(frmfiltronotch, FromEitherPart) {
  use("mnufiltrinotch", "Option1 txtfrequenza txtinput", "lblr lblr2 lblc lblc2 lblcommerciale");
  expect("0|50|100",
         "R = 31,83 kOhm|R / 2 = 15,92 kOhm|C = 100 nF|2 C = 200 nF|"
         "CON R = 33 kOhm (E24) E C = 100 nF IL NOTCH E' A 48,23 Hz");
  EXPECT_EQ(window.text("lblinput lblvaloreruscita lblvalorer2 lblvalorecingresso lblvalore2c"),
            "C in nF :|31,83 kOhm|15,92 kOhm|100 nF|200 nF");
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblinput txtinput lblr lblcommerciale lblvalore2c"), "R in kOhm :||||");
  expect("1|1000|10.4",
         "R = 10,4 kOhm|R / 2 = 5,2 kOhm|C = 15,3 nF|2 C = 30,61 nF|"
         "CON R = 10 kOhm (E24) E C = 15,3 nF IL NOTCH E' A 1,04 kHz");
  expect_refusal("1|1000|0", "txtinput");
}

using frmfiltriBF = FormTest;

// Poles of the circuits at the cut-off, in 30 digits; 1 / (2 pi 3 kHz 10 nF) = 5305.16.
TEST_F(frmfiltriBF, FourCircuits) {
  use("mnupassaaltobasso", "Option1 txtfrequenza txtinput", "lbl1 lbl2 lbltaglio lblpendenza");
  const std::string passive =
      "R = 5,305 kOhm, E24 5,1 kOhm||TAGLIO A 3 dB CON IL VALORE COMMERCIALE = 3,121 kHz|"
      "PENDENZA 6 dB PER OTTAVA";
  const std::string values =
      "lblinput lblvaloreserie1 lblvaloreserie2 lblvaloremassa lblvaloreuscita";
  expect("0|3000|10", passive);
  EXPECT_EQ(window.text(values), "C in nF :|5,305 kOhm||10 nF|");
  expect("1|3000|10", passive);
  EXPECT_EQ(window.text(values), "C in nF :|10 nF||5,305 kOhm|");
  expect("2|2700|10",
         "C1 = 8,336 nF, E12 8,2 nF|C2 = 4,168 nF, E12 3,9 nF|TAGLIO A 3 dB = 2,7 kHz|"
         "PENDENZA 12 dB PER OTTAVA (BUTTERWORTH)");
  EXPECT_EQ(window.text(values), "R in kOhm :|10 kOhm|10 kOhm|4,168 nF|8,336 nF");
  EXPECT_TRUE(window.shows("lblvaloreuscita"));
  window.click("Option1_3");
  EXPECT_EQ(window.text("txtinput lbl1 lbl2 lbltaglio lblpendenza"), "||||");
  expect("3|300|10",
         "R1 = 37,51 kOhm, E24 39 kOhm|R2 = 75,03 kOhm, E24 75 kOhm|TAGLIO A 3 dB = 300 Hz|"
         "PENDENZA 12 dB PER OTTAVA (BUTTERWORTH)");
  EXPECT_EQ(window.text(values), "C in nF :|10 nF|10 nF|75,03 kOhm|37,51 kOhm");
  expect_refusal("3|300|", "txtinput");
  window.click("Option1_0");
  EXPECT_FALSE(window.shows("lblvaloreuscita"));
}

using frmtestcurvafiltro = FormTest;

// By analysis of the ladders; a Butterworth filter first.
TEST_F(frmtestcurvafiltro, FourLadders) {
  use("mnutestcurvafiltri", "Option1 txtinduttanza txtcapacita txtohm txtfrequenza",
      "lblattenuazione lbltaglio lbloutput");
  EXPECT_EQ(window.text("txtohm"), "50");
  expect("0|1.59|318|50|14.2",
         "ATTENUAZIONE = 9,61 dB|TAGLIO A 3 dB = 10,01 MHz|PASSA IL 10,93 % DELLA POTENZA");
  EXPECT_EQ(window.text("lblvalore1 lblvalore2 lblvalore3"), "318 pF|1,59 µH|318 pF");
  expect("1|0.795|636|50|20.02",
         "ATTENUAZIONE = 18,13 dB|TAGLIO A 3 dB = 10,01 MHz|PASSA IL 1,54 % DELLA POTENZA");
  EXPECT_EQ(window.text("lblvalore1 lblvalore2 lblvalore3"), "795 nH|636 pF|795 nH");
  expect("2|1.59|318|50|0.001",
         "ATTENUAZIONE = 221,96 dB|TAGLIO A 3 dB = 5,005 MHz|PASSA IL 0,00 % DELLA POTENZA");
  EXPECT_EQ(window.text("lblvalore1 lblvalore2 lblvalore3"), "1,59 µH|318 pF|1,59 µH");
  expect("3|0.8|160|50|3.5",
         "ATTENUAZIONE = 32,39 dB|TAGLIO A 3 dB = 9,06 MHz|PASSA IL 0,06 % DELLA POTENZA");
  EXPECT_EQ(window.text("lblvalore1 lblvalore2 lblvalore3"), "160 pF|800 nH|160 pF");
  window.click("Option1_0");
  EXPECT_EQ(results(), "||");
  // Far below the cut-off nothing is lost.
  expect("0|1.59|318|50|0.000001",
         "ATTENUAZIONE = 0,00 dB|TAGLIO A 3 dB = 10,01 MHz|PASSA IL 100,00 % DELLA POTENZA");
}

TEST_F(frmtestcurvafiltro, RangesInTheOrderOfTheBoxes) {
  use("mnutestcurvafiltri", "Option1 txtinduttanza txtcapacita txtohm txtfrequenza",
      "lblattenuazione lbltaglio lbloutput");
  expect_refusal("0|1.59|318|50|", "txtfrequenza");
  expect_refusal("0|0.0009|0.009|50|", "txtfrequenza");  // what is missing goes first
  const std::pair<const char*, std::pair<const char*, const char*>> table[] = {
      {"0|0.0009|0.009|50|1", {"txtinduttanza", "0.001 A 1000000"}},
      {"0|1|1000000001|0.09|1", {"txtcapacita", "0.01 A 1000000000"}},
      {"0|1|1|0.09|1", {"txtohm", "0.1 A 100000"}},
      {"0|1|1|50|100001", {"txtfrequenza", "1E-06 A 100000"}},
  };
  for (const auto& [typed, refusal] : table) {
    expect_refusal(typed, refusal.first, std::string{"VALORI AMMESSI: DA "} + refusal.second);
  }
}

}  // namespace
}  // namespace eterlab::test
