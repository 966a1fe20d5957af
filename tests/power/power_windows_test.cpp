#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frm78xx = FormTest;

TEST_F(frm78xx, EveryTypeAtTwentyFiveVolt) {
  use("mnu78xx", "txtvu", "lblr1 lblr2 lblvin lblvout lbl78xx Label7");
  const std::string note = "|USARE PER R1 E R2 I VALORI COMMERCIALI PIU' VICINI";
  expect_refusal("", "txtvu", "DATO NON CONGRUO");
  EXPECT_EQ(results(), "|||||");
  expect("9", "0 Ohm|360 Ohm|12,6 Volt Input|9 Volt Out|" + note);  // without a type
  const char* const table[][2] = {{"7805", "200 Ohm|800 Ohm"}, {"7808", "320 Ohm|680 Ohm"},
                                  {"7812", "480 Ohm|520 Ohm"}, {"7815", "600 Ohm|400 Ohm"},
                                  {"7818", "720 Ohm|280 Ohm"}, {"7824", "960 Ohm|40 Ohm"}};
  for (int index = 0; const auto& [type, divider] : table) {
    window.click("Option1_" + std::to_string(index++));
    EXPECT_EQ(window.text("lbl78xx lblr1 lblr2 txtvu"), std::string{type} + "|R1|R2|");
    expect("25", std::string{divider} + "|35 Volt Input|25 Volt Out|" + type + note);
  }
  expect_refusal("24", "txtvu", "DATO NON CONGRUO");
  expect_refusal("36", "txtvu", "DATO NON CONGRUO");
  window.click("Option1_0");
  expect("9", "200 Ohm|160 Ohm|12,6 Volt Input|9 Volt Out|7805" + note);
  expect("35", "200 Ohm|1200 Ohm|49 Volt Input|35 Volt Out|7805" + note);
}

using frmlm317 = FormTest;

TEST_F(frmlm317, ComputesAndKeepsTheResultsWhenItRefuses) {
  use("mnu317", "txtvu", "lblr1 lblr2 lblvout lblvin lblvmax");
  expect("5.001",
         "220 Ohm|660,176 Ohm|5,001 Volt Out|6,5013 Volt Input|LA TENSIONE OTTIMALE IN ENTRATA E' "
         "6,5013 VOLT   -  LA MASSIMA APPLICABILE E' 35,001 VOLT");
  enter("100");
  for (const char* out_of_range : {"1.25", "100.001", ""}) {
    expect_refusal(out_of_range, "txtvu", "DATO NON CONGRUO");
  }
  EXPECT_EQ(window.text("lblvin"), "130 Volt Input");
}

using frmlm317correntecost = FormTest;

TEST_F(frmlm317correntecost, ComputesAndKeepsTheResultsWhenItRefuses) {
  use("mnu317cc", "txtcorrente", "lblr1 lblrisultato");
  const char* const last = "1,3 Ohm|PER OTTENERE 1000 mA LA RESISTENZA DEVE ESSERE  1,3 OHM";
  expect("1000", last);
  for (const char* out_of_range : {"0", "1000.01", "-5"}) {
    expect_refusal(out_of_range, "txtcorrente", "DATO NON CONGRUO");
  }
  EXPECT_EQ(results(), last);
  expect("0.5", "2.500,0 Ohm|PER OTTENERE 0,5 mA LA RESISTENZA DEVE ESSERE  2.500,0 OHM");
}

using frmduplicatori = FormTest;

TEST_F(frmduplicatori, BothCircuits) {
  use("mnuduplicatori", "Option1 txtvolt txtcorrente txtripple txtfrequenza",
      "lblvuoto lblcarico lblcapacita lblripple lbllavoro lbldiodi");
  EXPECT_EQ(window.text("txtfrequenza"), "50");
  expect("0|220|150|2|50",
         "TENSIONE A VUOTO = 620,9 Volt|TENSIONE CON IL CARICO = 608,4 Volt|"
         "OGNI CONDENSATORE = 241,6 µF, E6 330 µF|RIPPLE = 12,42 V picco picco a 100 Hz|"
         "TENSIONE DI LAVORO: C1 E C2 ALMENO 374 Volt|"
         "TENSIONE INVERSA DEI DIODI ALMENO 747 Volt");
  EXPECT_EQ(window.text("lblvalorec1 lblvalorec2 lblvaloreuscita"), "241,6 µF|241,6 µF|608,4 Volt");
  expect("1|24|100|5|50",
         "TENSIONE A VUOTO = 66,5 Volt|TENSIONE CON IL CARICO = 61,5 Volt|"
         "OGNI CONDENSATORE = 601,7 µF, E6 680 µF|RIPPLE = 3,324 V picco picco a 50 Hz|"
         "TENSIONE DI LAVORO: C1 ALMENO 41 Volt, C2 ALMENO 82 Volt|"
         "TENSIONE INVERSA DEI DIODI ALMENO 82 Volt");
  window.click("Option1_0");
  EXPECT_EQ(results() + window.text("lblvalorec1 lblvaloreuscita"), "||||||");
  expect_refusal("0|24|0|25|50", "txtcorrente");
  expect_refusal("0|24|100|25|50", "txtripple", "IL RIPPLE NON PUO' SUPERARE IL 20 %");
  expect_refusal("1|0.494|100|20|50", "txtvolt", "TENSIONE TROPPO BASSA PER I DIODI");
  enter("1|0.495|100|20|50");
  EXPECT_EQ(boxes(), Boxes{});
}

using frmcorralternata = FormTest;

TEST_F(frmcorralternata, FromOhmicToNearlyReactive) {
  use("mnucorralternata", "txtvolt txtampere txtcosfi txtfrequenza",
      "lblapparente lblattiva lblreattiva lblfase lblimpedenza lblrifasamento");
  EXPECT_EQ(window.text("txtfrequenza"), "50");
  const std::string apparent = "POTENZA APPARENTE = 920 VA|POTENZA ATTIVA = ";
  const std::string impedance =
      " GRADI|IMPEDENZA DEL CARICO = 57,5 Ohm|CONDENSATORE DI RIFASAMENTO (CARICO INDUTTIVO) = ";
  expect("230|4|0.8|50",
         apparent + "736 W|POTENZA REATTIVA = 552 VAR|SFASAMENTO = 36,9" + impedance + "33,21 µF");
  EXPECT_EQ(window.text("lblvalores lblvalorep lblvaloreq lblvalorefi"),
            "920 VA|736 W|552 VAR|36,9°");
  expect("230|4|1|50",
         apparent + "920 W|POTENZA REATTIVA = 0 VAR|SFASAMENTO = 0,0" + impedance + "0 F");
  // A quarter turn less 1E-12; 920 / (2 pi 50 230^2) = 55.36E-6.
  expect("230|4|1e-12|50",
         apparent + "920 pW|POTENZA REATTIVA = 920 VAR|SFASAMENTO = 90,0" + impedance + "55,36 µF");
  expect_refusal("230|4||50", "txtcosfi");
  expect_refusal("230|4|1.2|50", "txtcosfi", "IL COSFI NON PUO' SUPERARE 1");
}

}  // namespace
}  // namespace eterlab::test
