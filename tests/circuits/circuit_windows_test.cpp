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

}  // namespace
}  // namespace eterlab::test
