#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmled = FormTest;

// (V - 3) x 100 by hand, to a hundredth, of which seven digits are shown.
TEST_F(frmled, EveryColourAndResultsAsTyped) {
  use("mnuled", "txttensione", "lbltensione lblohm");
  const char* const table[][3] = {{"ROSSI", "1,8", "1020"},  {"VERDI", "2", "1000"},
                                  {"GIALLI", "1,9", "1010"}, {"ARANCIO", "2", "1000"},
                                  {"BLU", "3", "900"},       {"BIANCHI", "3", "900"}};
  for (int index = 0; const auto& [diodes, volt, ohm] : table) {
    window.click("Option1_" + std::to_string(index++));
    EXPECT_EQ(window.text("txttensione lbltensione lblohm"), "||");
    EXPECT_EQ(window.text("lblled lblvoltled"),
              std::string{"LA TENSIONE DA APPLICARE AI DIODI "} + diodes + " E' " + volt +
                  " VOLT.|ALIMENTAZIONE MINIMA " + volt + " VOLT ");
    expect("12", std::string{"12 V.|ohm "} + ohm);
  }
  expect("-", "0 V.|ohm -300");
  expect("5.12345", "5,12345 V.|ohm 212,35");
  expect("12345.6789", "12345,6789 V.|ohm 1234268");
  expect("200000", "100000 V.|ohm 9999700");
  close("frmled");
  // Ten million without a colour: more than the seven digits of a single.
  use("mnuled", "txttensione", "lbltensione lblohm");
  expect("200000", "100000 V.|ohm 1E+07");
}

using frmreszener = FormTest;

// 10 V across the resistor and 20 mA of load: 10 V / (20 mA + Iz), (20 mA + Iz) x 10 V.
TEST_F(frmreszener, TheClassSetsTheStandingCurrent) {
  use("mnureszener", "txtvcc txtvz txtma", "lblvcc lblohm lblvz lblohmlunga lblwatt");
  expect_refusal("5|6|", "txtvcc", "VALORI DI TENSIONE ERRATI");
  expect_refusal("12|5.1|", "txtvcc");
  expect("12|5.1|-20", "||||");  // a negative product does nothing at all
  expect("15|5|20",
         "15 V|500 ohm|5 V|Valore della resistenza = Ohm 500|Dissipazione in Watt = 0,2");
  const char* const table[][2] = {{"250", "0,4"}, {"200", "0,5"}, {"167", "0,6"}};
  for (int index = 0; const auto& [ohm, watt] : table) {
    window.click("Option1_" + std::to_string(index++));
    enter("15|5|20");
    EXPECT_EQ(window.text("lblohm lblwatt"),
              std::string{ohm} + " ohm|Dissipazione in Watt = " + watt);
  }
  enter("12|12|20");
  EXPECT_EQ(window.text("lblohm"), "0 ohm");
  window.click("Option1_0");
  expect_end("12|-5|-20");  // currents that cancel
  expect_end("40000|1|1");  // beyond the range of a resistor
  window.click("Option1_0");
  // 6.9 V / 40 mA is 172.5 ohm; in doubles (12 - 5.1) / 40 x 1000 is 172.50000000000003.
  expect("12|5.1|20",
         "12 V|173 ohm|5,1 V|Valore della resistenza = Ohm 173|Dissipazione in Watt = 0,276");
}

using frmresistenze = FormTest;

// By hand: 100 x 220 / 320, 1 / (1/10 + 1/22 + 1/47) = 5.99768.
TEST_F(frmresistenze, AddInSeries) {
  use("mnuresistenze", "Option1 txtr_0 txtr_1 txtr_2 txtr_3 txtr_4 txtr_5",
      "lblserie lblparallelo");
  expect("0|100|220||||", "IN SERIE = 320 Ohm|IN PARALLELO = 68,75 Ohm");
  expect("1|10|22|47|||", "IN SERIE = 79 kOhm|IN PARALLELO = 5,998 kOhm");
  expect("2||||1|x|", "|");
  EXPECT_EQ(window.text("lblvaloreserie_3 lblvaloreparallelo_0"), "1 MOhm|");
}

}  // namespace
}  // namespace eterlab::test
