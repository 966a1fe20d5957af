#include <QScreen>

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

using frmshunt = FormTest;

TEST_F(frmshunt, ShuntAndItsWire) {
  use("mnuamperometro", "txtrint txtfondo txtportata",
      "lbloutput lblcorrente lblpotenza lblcaduta lblfilo");
  const char* const too_small = "LA PORTATA DEVE SUPERARE IL FONDO SCALA DELLO STRUMENTO";
  expect_refusal("100|1|0.0005", "txtportata", too_small);
  expect_refusal("100|1|0.001", "txtportata", too_small);
  expect_refusal("100||10", "txtfondo");
  expect("100|1|10",
         "SHUNT = 10 mOhm|CORRENTE NELLO SHUNT = 9,999 A|POTENZA DISSIPATA = 999,9 mW|"
         "CADUTA DI TENSIONE = 100 mV|FILO DI COSTANTANA: DIAMETRO 2,1 mm, LUNGHEZZA 7,07 cm.");
  EXPECT_EQ(window.text("lblvaloreportata lblvalorefondo lblvalorerint lblvaloreshunt"),
            "10 A|1 mA|100 Ohm|10 mOhm");
  // 100 mV over 1 mA; the thinnest wire, 100 ohm x 0.007854 mm2 / 0.49 ohm mm2/m = 1.603 m.
  expect("100|1|0.002",
         "SHUNT = 100 Ohm|CORRENTE NELLO SHUNT = 1 mA|POTENZA DISSIPATA = 100 \u00b5W|"
         "CADUTA DI TENSIONE = 100 mV|FILO DI COSTANTANA: DIAMETRO 0,1 mm, LUNGHEZZA 160 cm.");
}

using frmvoltmetro = FormTest;

TEST_F(frmvoltmetro, SeriesResistorInTheMiddleOfTheScreen) {
  use("mnuvoltmetro", "txtrint txtfondo txtportata",
      "lbloutput lblpotenza lblsensibilita lblcommerciale");
  const QPoint middle = window.window().screen()->geometry().center();
  const QPoint centre = window.window().frameGeometry().center();
  EXPECT_NEAR(centre.x(), middle.x(), 2);
  EXPECT_NEAR(centre.y(), middle.y(), 2);
  const char* const too_small = "LA PORTATA DEVE SUPERARE IL FONDO SCALA DELLO STRUMENTO";
  expect_refusal("1500|100|0.1", "txtportata", too_small);
  expect_refusal("1500|100|0.15", "txtportata", too_small);
  expect_refusal("1500|1e13|50", "txtfondo", "VALORI AMMESSI: DA 1E-12 A 1000000000000");
  expect("1500|100|50",
         "RESISTENZA IN SERIE = 498,5 kOhm|POTENZA DISSIPATA = 4,985 mW|"
         "SENSIBILITA' = 10 kOhm PER VOLT|VALORE E24 = 510 kOhm : FONDO SCALA 51,15 Volt");
}

}  // namespace
}  // namespace eterlab::test
