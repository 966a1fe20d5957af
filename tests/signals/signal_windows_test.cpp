#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmondadiretta = FormTest;

TEST_F(frmondadiretta, KeepsTheLastDistanceWithoutAHeightInRange) {
  use("mnuondadiretta", "txtaltezza", "lbldistanza");
  for (const char* height : {"9", "", "abc"}) {
    expect(height, "LA POSSIBILE DISTANZA E' DI KM: 12");
  }
  expect("5000", "LA POSSIBILE DISTANZA E' DI KM: 292");
  expect_refusal("5000.1", "txtaltezza", "ALTEZZA ECCESSIVA");
  expect_refusal("-2", "txtaltezza", "MANCA DATO");
  EXPECT_EQ(results(), "LA POSSIBILE DISTANZA E' DI KM: 292");
}

using frmvolt = FormTest;

TEST_F(frmvolt, EveryKindAndWave) {
  use("mnurms", "txtinput", "lblout1 lblout2 lblout3");
  expect("10", "||VOLT VALORE MEDIO : 0,00");  // without a kind only the average is written
  const char* const table[] = {
      "VOLT di picco : 14,14|VOLT picco picco : 28,28|VOLT VALORE MEDIO : 9,01",
      "VOLT efficaci : 5,77|VOLT picco picco : 20,00|VOLT VALORE MEDIO : 5,00",
      "VOLT efficaci : 5,00|VOLT di picco : 5,00|VOLT VALORE MEDIO : 5,00",
  };
  for (int i = 0; i < 3; ++i) {
    window.click("Option1_" + std::to_string(i));
    window.click("Option2_" + std::to_string(i));
    expect("10", table[i]);
  }
  expect("1000", "VOLT efficaci : 500,00|VOLT di picco : 500,00|VOLT VALORE MEDIO : 500,00");
  expect("-", "VOLT efficaci : 0,00|VOLT di picco : 0,00|VOLT VALORE MEDIO : 0,00");
  expect_refusal("-1", "txtinput", "VALORE NEGATIVO");
}

TEST_F(frmvolt, ChoosingEmptiesTheBoxUnderThePreviousKind) {
  use("mnurms", "txtinput", "lblout1 lblout2 lblout3");
  window.click("Option1_0");
  enter("10");
  window.click("Option1_2");
  // Emptying the box was an edit: 0 volt, still of the first kind.
  EXPECT_EQ(results(), "VOLT di picco : 0,00|VOLT picco picco : 0,00|VOLT VALORE MEDIO : 0,00");
  EXPECT_EQ(window.text("txtinput lblinput"), "|VOLT PICCO PICCO");
  EXPECT_EQ(window.colour("Option1_2"), "#0000c0");
  EXPECT_EQ(window.colour("Option1_0"), window.colour("Option1_1"));
  window.click("Option2_1");  // the box is empty already: no edit
  EXPECT_EQ(results(), "||");
}

using frmvoltwatt = FormTest;

TEST_F(frmvoltwatt, EveryUnitAcrossFiftyOhm) {
  use("mnuvoltwatt", "txtinput txtohm", "lblinput lbloutput lbldbm");
  expect_refusal("1|", "txtohm");
  expect("1|50", "||");  // without a unit, silently
  const char* const table[] = {
      "WATT|7,071 VOLT rms|PARI A  30 dBm",
      "milliWATT|223,608 MILLIVOLT rms|PARI A  0 dBm",
      "microWATT|7,071 MILLIVOLT rms|PARI A  -30 dBm",
      "nanoWATT|0,223 MILLIVOLT rms|PARI A  -60 dBm",
      "nanoWatt|223,608 MICROVOLT rms|PARI A  -60 dBm",
      "picoWATT|7,071 MICROVOLT rms|PARI A  -90 dBm",
      "femtoWATT|0,223 MICROVOLT rms|PARI A  -120 dBm",
  };
  for (int unit = 1; const char* const results : table) {
    window.click("Option1_" + std::to_string(unit++));
    EXPECT_EQ(window.text("lbloutput lbldbm"), "|");
    expect("1|50", results);
  }
  expect_edits_leave("femtoWATT||", "1|50");
  window.click("Option1_1");
  expect("125000|50", "WATT|2.500,000 VOLT rms|PARI A  81 dBm");
  expect("1.2|50", "WATT|7,746 VOLT rms|PARI A  30,8 dBm");  // plain, with at most one decimal
}

using frmattenuazionetratta = FormTest;

TEST_F(frmattenuazionetratta, PlainNumbersOfTheCountry) {
  use("mnuattenuazionetratta", "txtdistanza txtfrequenza", "lblattenuazione");
  const char* const one_metre = "L'ATTENUAZIONE ALLA DISTANZA DI 0,001 KM é 25,15 dB";
  expect("|432", one_metre);
  window.type("txtdistanza", "20");
  EXPECT_EQ(results(), one_metre);  // edits keep the result
  expect_end("10|");
  expect_end("-1|145");
  // 137.52466
  expect("1234.5|145.5", "L'ATTENUAZIONE ALLA DISTANZA DI 1234,5 KM é 137,52 dB");
}

using frmdBmicrovolt = FormTest;

// Negative microvolt count as one; levels out of range keep the result.
TEST_F(frmdBmicrovolt, BothWays) {
  use("mnudbmicrovolt", "txtin", "lbloutput lblout");
  EXPECT_FALSE(window.shows("lbloutput"));
  expect("0.5", "CORRISPONDE A dBmicrovolt : |-6,02");
  expect("0", "CORRISPONDE A dBmicrovolt : |0");
  expect("100", "CORRISPONDE A dBmicrovolt : |40");
  expect_refusal("-5", "txtin", "NON ESISTONO VALORI NEGATIVI");
  EXPECT_EQ(window.text("lblinput txtin lblout"), "DIGITARE I microvolt|-5|0");
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblinput txtin lblout"), "DIGITARE I dBmicrovolt|-5|0");
  expect("119.99", "CORRISPONDE A microvolt|998849,4");  // seven digits of 998849,37
  expect("", "CORRISPONDE A microvolt|1");
  expect_refusal("120.5", "txtin", "dBmicroV max = 120");
  EXPECT_EQ(results(), "CORRISPONDE A microvolt|1000000");  // of "120."
  expect_refusal("-5", "txtin", "NON ESISTONO VALORI NEGATIVI");
  EXPECT_EQ(results(), "CORRISPONDE A microvolt|1");  // of the minus sign alone
}

class frmdB : public FormTest {
 protected:
  void use_mode(int mode) {
    use("mnudb", mode == 0 ? "txtinput1" : "txtinput1 txtinput2",
        "lblinput1 lblinput2 lbloutput1 lblout1 lbloutput2 lblout2 lblvariazione");
    window.click("Option1_" + std::to_string(mode));
  }
};

TEST_F(frmdB, EachModeNamesItsValuesAndComputes) {
  use_mode(0);
  expect("0", "DECIBEL||RAPPORTO  in TENSIONE|1,|RAPPORTO in POTENZA|1,|");
  expect("6", "DECIBEL||RAPPORTO  in TENSIONE|1,995|RAPPORTO in POTENZA|3,981|");
  expect("70", "DECIBEL||RAPPORTO  in TENSIONE|3.162,278|RAPPORTO in POTENZA|10.000.000,|");
  EXPECT_EQ(window.shown("txtinput2 txtvoltesempio"), "txtvoltesempio");
  use_mode(1);
  EXPECT_EQ(window.shown("txtinput2 txtvoltesempio"), "txtinput2");
  EXPECT_EQ(results(), "TENSIONE ENTRATA|TENSIONE USCITA|DECIBEL||||");
  expect("2|7", "TENSIONE ENTRATA|TENSIONE USCITA|DECIBEL|10,88|||DB di GUADAGNO");
  use_mode(2);
  EXPECT_EQ(results(), "POTENZA ENTRATA|POTENZA USCITA|DECIBEL||||");
  expect("50|0.3", "POTENZA ENTRATA|POTENZA USCITA|DECIBEL|22,22|||DB di ATTENUAZIONE");
  expect("5|5", "POTENZA ENTRATA|POTENZA USCITA|DECIBEL|0,|||DB di GUADAGNO");
  use_mode(0);
  EXPECT_EQ(results(), "DECIBEL||RAPPORTO  in TENSIONE||RAPPORTO in POTENZA||");
}

TEST_F(frmdB, Refusals) {
  const char* const negative = "SOLO VALORI POSITIVI";
  use_mode(0);
  expect_refusal("-1", "txtinput1", negative);
  expect_refusal("70.01", "txtinput1", "MASSIMO DB CALCOLABILE = 70");
  EXPECT_FALSE(window.shows("txtvoltesempio"));
  use_mode(1);
  expect_refusal("0|1", "txtinput1", negative);
  expect_refusal("-1|-1", "txtinput1", negative);
  use_mode(2);
  expect_refusal("1|-1", "txtinput1", negative);
  EXPECT_EQ(window.text("lblout1"), "");
  use_mode(1);
  expect_end("1e200|1e200");
}

TEST_F(frmdB, ExampleGoesOnFromTheRatioAsShown) {
  use_mode(0);
  const char* const example = "lbldbesempio Label9 Label10";
  enter("37.5");
  window.type("txtvoltesempio", "5");
  EXPECT_EQ(window.text(example), "37,5|374,945|0,067");
  enter("6");
  // In single precision 123456.7890625; times and through 1.995, not 1.99526.
  window.type("txtvoltesempio", "123456.789");
  EXPECT_EQ(window.text(example), "6|246.296,294|61.883,102");
  window.type("txtinput1", "3");
  EXPECT_EQ(window.text(example), "|0,|0,");
}

TEST_F(frmdB, OpensAndClosesTheExampleWithTheWindow) {
  const QFont usual = QApplication::font();
  QFont small = usual;
  small.setPointSizeF(7);
  for (const QFont& font : {usual, small}) {
    QApplication::setFont(font);
    use_mode(0);
    const QSize closed = window.window().size();
    enter("6");
    settle();
    const QSize open = window.window().size();
    EXPECT_EQ(window.window().pos(), QPoint(140, 67));
    EXPECT_GT(open.height(), closed.height());
    EXPECT_EQ(open.width(), closed.width());
    use_mode(2);
    settle();
    EXPECT_EQ(window.window().pos(), QPoint(140, 133));
    EXPECT_EQ(window.window().size(), closed);
    // A small font leaves the window the sizes of its design.
    EXPECT_EQ(closed == QSize(526, 327), font == small);
    EXPECT_EQ(open == QSize(526, 447), font == small);
    close("frmdB");
  }
  QApplication::setFont(usual);
}

}  // namespace
}  // namespace eterlab::test
