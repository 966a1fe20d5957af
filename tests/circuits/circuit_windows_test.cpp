#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmleggediohm = FormTest;

// One resistor at 12 V and 0.5 A: 24 ohm, 6 W; then a result that is rounded.
TEST_F(frmleggediohm, EachModeNamesAndComputes) {
  use("mnuohm", "txtinput1 txtinput2",
      "lblinput_0 lblinput_1 lblinput_2 lblinput_3 lblinput_4 lblinput_5");
  EXPECT_FALSE(window.shows("lblinput_2"));
  expect("1|2", "|||||");  // without a mode
  EXPECT_TRUE(window.shows("lblinput_2"));
  const char* const modes[][2] = {
      {"12|0.5", "VOLT :|AMPER :|OHM :|WATT :|24,|6,"},
      {"12|24", "VOLT :|OHM :|AMPER :|WATT :|0,5|6,"},
      {"12|6", "VOLT :|WATT :|AMPER :|OHM :|0,5|24,"},
      {"0.5|24", "AMPER :|OHM :|VOLT :|WATT :|12,|6,"},
      {"0.5|6", "AMPER :|WATT :|VOLT :|OHM :|12,|24,"},
      {"50|100", "OHM :|WATT :|VOLT :|AMPER :|70,711|1,414"},
  };
  for (int mode = 0; const auto& [typed, results] : modes) {
    window.click("Option1_" + std::to_string(mode++));
    EXPECT_EQ(window.text("lblinput_4 lblinput_5"), "|");
    expect(typed, results);
  }
  EXPECT_EQ(window.text("lblformule txtinput1"), "V = radice(R x W)   I = radice( W : R)|50");
  window.click("Option1_0");
  expect_edits_leave("VOLT :|AMPER :|OHM :|WATT :||", "12|0.5");
  expect_refusal("-2|3", "txtinput1");
  expect("2469|2", "VOLT :|AMPER :|OHM :|WATT :|1.234,5|4.938,");
  expect("-2|-3", "VOLT :|AMPER :|OHM :|WATT :|0,667|6,");  // only the product is checked
}

using frmreattanza = FormTest;

// 6.28 x 7 x 10 = 439.6; 159000 / 700 = 227.14286 and 159000 / 100 = 1590.
TEST_F(frmreattanza, EachKindNamesComputesAndIsRed) {
  use("mnureattanza", "txtinput_0 txtinput_1",
      "lblfantasma lblinput_0 lblinput_1 lblinput_2 lblinput_3");
  expect("7|100", "||||227,143");  // without a kind it is a capacitor
  const QPoint unnamed = window.control("txtinput_0").pos();
  window.click("Option1_0");
  settle();
  EXPECT_EQ(window.control("txtinput_0").pos(), unnamed);
  EXPECT_EQ(window.colour("Option1_0"), "#ff0000");
  expect("-7|-10", "XL in Ohm = 6,28 x (Mhz x induttanza in µH)|Mhz|microH|XL Ohm|439,600");
  expect_refusal("-7|10", "txtinput_0");
  window.click("Option1_1");
  EXPECT_EQ(window.colour("Option1_0"), "#000000");
  EXPECT_EQ(window.colour("Option1_1"), "#ff0000");
  expect("0.1|1000", "XC in Ohm = 159.000 : (Mhz x pF)|Mhz|picoF|XC Ohm|1.590,000");
  expect_edits_leave("XC in Ohm = 159.000 : (Mhz x pF)|Mhz|picoF|XC Ohm|", "1|1");
}

using frmrisonanza = FormTest;

// 10 uH and 100 pF: 5032.9223 kHz, 59.60893 m, 316.22756 ohm, by hand in 40 digits. The explanation
// stands where the results will be; once gone it is gone for good.
TEST_F(frmrisonanza, ResultsReplaceTheExplanation) {
  use("mnurisonanza", "txtinduttanza txtcapacità",
      "lbloutputfrequenza lbloutputmetri lbloutputreattanza");
  expect_refusal("10|", "txtinduttanza");
  expect("10|-100", "||");
  EXPECT_TRUE(window.shows("lblfantasma"));
  EXPECT_EQ(window.control("lblfantasma").pos(), QPoint(24, 133));
  expect("10|100",
         "Frequenza in Khz  :  5.032,922|Lunghezza d'onda in mt. : 59,609|"
         "Reattanza XL=XC = 316,23 Ohm ");
  expect("-10|-100",
         "Frequenza in Khz  :  5.032,922|Lunghezza d'onda in mt. : 59,609|"
         "Reattanza XL=XC = -316,23 Ohm ");
  expect_edits_leave("||", "1|1");
  EXPECT_FALSE(window.shows("lblfantasma"));
}

using frmdimcirclc = FormTest;

// C = 400 / f and L = 63.325 / f, which is 25330 / (f f C), by hand.
TEST_F(frmdimcirclc, ComputesAsTheUserTypes) {
  use("mnudimcirclc", "txtfrequenza", "lblcapacita lblinduttanza");
  expect("-7", "LA CAPACITA' OTTIMALE E'  CIRCA pF -57,1|L'INDUTTANZA IN QUESTO CASO E' µH -9,0");
  expect("abc", "|");
  expect_end("1e-200");  // its square is nothing
  expect("0.2",
         "LA CAPACITA' OTTIMALE E'  CIRCA pF 2.000,0|L'INDUTTANZA IN QUESTO CASO E' µH 316,6");
  expect("0", "|");
}

using frmcostantetemporc = FormTest;

// The exponential in 30 digits.
TEST_F(frmcostantetemporc, ChargeAndDischarge) {
  use("mnucostrc", "txtohm txtcapacita txtvolt txttempo",
      "lbltau lbl95 lbl99 lblcarica lblscarica");
  const std::string settling =
      "COSTANTE DI TEMPO = 47 ms|CARICA AL 95 % IN 140,8 ms|CARICA AL 99 % IN 216,4 ms";
  expect("47000|1|10|30", settling + "|TENSIONE IN CARICA = 4,718 V|TENSIONE IN SCARICA = 5,282 V");
  for (const char* typed : {"47000|1||", "47000|1|10|", "47000|1|-10|30", "47000|1|10|-30"}) {
    expect(typed, settling + "||");
  }
  expect("47000|1|10|2000", settling + "|TENSIONE IN CARICA = 10 V|TENSIONE IN SCARICA = 0 V");
  expect("1000000000000|1000000000000|1|0.000000001",
         "COSTANTE DI TEMPO = 1E+18 s|CARICA AL 95 % IN 2,996E+18 s|CARICA AL 99 % IN "
         "4,605E+18 s|TENSIONE IN CARICA = 1E-15 fV|TENSIONE IN SCARICA = 1 V");
  expect_refusal("0|1||", "txtohm");
  expect_refusal("1|||", "txtcapacita");
  const char* const range = "VALORI AMMESSI: DA -1000000000000 A 1000000000000";
  expect_refusal("1|1|-1000000000001|", "txtvolt", range);
  expect_refusal("1|1||1000000000001", "txttempo", range);
}

using frmcostantetemporl = FormTest;

TEST_F(frmcostantetemporl, RiseOfTheCurrent) {
  use("mnucostrl", "txtohm txtinduttanza txtvolt txttempo",
      "lbltau lbl95 lbl99 lblcarica lblscarica");
  const std::string settling =
      "COSTANTE DI TEMPO = 2,5 ms|CORRENTE AL 95 % IN 7,489 ms|CORRENTE AL 99 % IN 11,51 ms";
  expect("100|250|12|5",
         settling + "|CORRENTE DOPO IL TEMPO INDICATO = 103,8 mA|CORRENTE FINALE = 120 mA");
  EXPECT_EQ(window.text("lblvaloretensione lblvaloreresistenza lblvalorecomponente"),
            "12 V|100 Ohm|250 mH");
  expect("100|250|12|", settling + "||");
  EXPECT_EQ(window.text("lblvaloretensione"), "");
  // First the current grows by U / L: 12 V / 250 mH in a nanosecond are 48 nA.
  expect("100|250|12|0.000001",
         settling + "|CORRENTE DOPO IL TEMPO INDICATO = 48 nA|CORRENTE FINALE = 120 mA");
  expect_refusal("0|1||", "txtohm");
  expect_refusal("1|||", "txtinduttanza");
}

using frmesempiocostempo = FormTest;

// ln(U / (U - Us)): ln 3, ln 2; of a small threshold it is Us / U.
TEST_F(frmesempiocostempo, EachOfTheThree) {
  const std::string parts = "lblvaloreresistenza lblvalorecapacita lblvaloresoglia";
  use("mnuesempiocostante", "Option1 txtinput_0 txtinput_1 txtvolt txtsoglia",
      "lbloutput lblcommerciale");
  expect("0|100|47|12|8", "RITARDO = 5,163 s|");
  EXPECT_EQ(window.text(parts), "100 kOhm|47 µF|8 V");
  expect("0|1|1|1000000|0.001", "RITARDO = 1 ps|");
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblinput_0 lblinput_1 txtinput_0 txtinput_1 txtvolt lbloutput"),
            "RITARDO in SECONDI :|CAPACITA' in microF :|||1000000|");
  expect("1|10|100|12|6", "RESISTENZA = 144,3 kOhm|CON 150 kOhm (E24) IL RITARDO E' 10,4 s");
  EXPECT_EQ(window.text(parts), "144,3 kOhm|100 µF|6 V");
  expect("2|10|100|12|6", "CAPACITA' = 144,3 µF|CON 150 µF (E12) IL RITARDO E' 10,4 s");
  EXPECT_EQ(window.text("lblinput_0 lblinput_1"), "RITARDO in SECONDI :|RESISTENZA in kOhm :");
  window.click("Option1_0");
  EXPECT_EQ(window.text("lblinput_0 lblinput_1"), "RESISTENZA in kOhm :|CAPACITA' in microF :");
}

TEST_F(frmesempiocostempo, AThresholdThatIsReached) {
  use("mnuesempiocostante", "Option1 txtinput_0 txtinput_1 txtvolt txtsoglia",
      "lbloutput lblcommerciale");
  expect_refusal("0|100||12|", "txtinput_1");
  for (const char* typed : {"0|100|47|8|12", "1|100|47|12|12"}) {
    expect_refusal(typed, "txtsoglia", "LA SOGLIA DEVE ESSERE MINORE DELLA TENSIONE");
  }
}

}  // namespace
}  // namespace eterlab::test
