#include <QScreen>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmpartitori = FormTest;

TEST_F(frmpartitori, TheOutputOfADivider) {
  use("mnupartitori", "txtinput_0 txtinput_1 txtinput_2 txtinput_3",
      "lbloutput lblcorrente lblr1 lblr2 lblcommerciale lblvalorecarico");
  expect("12|1000|2200|",
         "TENSIONE DI USCITA = 8,25 Volt|CORRENTE EROGATA = 3,75 mA|POTENZA SU R1 = 14,06 mW|"
         "POTENZA SU R2 = 30,94 mW||");
  expect("12|2000|2000|2000",
         "TENSIONE DI USCITA = 4 Volt|CORRENTE EROGATA = 4 mA|POTENZA SU R1 = 32 mW|"
         "POTENZA SU R2 = 8 mW||2 kOhm");
  enter("12|1000|1000|1e-30");  // a short circuit
  EXPECT_EQ(window.text("lblcorrente lblr1"), "CORRENTE EROGATA = 12 mA|POTENZA SU R1 = 144 mW");
  expect_refusal("12||2200|-1", "txtinput_1");
  expect_refusal("2e12|1000|2200|-1", "txtinput_3", "IL VALORE NON PUO' ESSERE NEGATIVO");
  expect_refusal("2e12|1000|2200|2e12", "txtinput_3", "VALORI AMMESSI: DA 0 A 1000000000000");
  expect_refusal("2e12|1000|2200|", "txtinput_0", "VALORI AMMESSI: DA 1E-12 A 1000000000000");
}

TEST_F(frmpartitori, TheResistorsOfADivider) {
  use("mnupartitori", "Option1 txtinput_0 txtinput_1 txtinput_2 txtinput_3",
      "lbloutput lblcorrente lblr1 lblr2 lblcommerciale lblvalorecarico");
  expect("1|13.8|5|20|5",
         "R1 = 352 Ohm   R2 = 1 kOhm|CORRENTE EROGATA = 25 mA|POTENZA SU R1 = 220 mW|"
         "POTENZA SU R2 = 25 mW|CON 360 Ohm E 1 kOhm (E24) L'USCITA E' 4,853 Volt|20 mA");
  expect("1|10|5||5",
         "R1 = 1 kOhm   R2 = 1 kOhm|CORRENTE EROGATA = 5 mA|POTENZA SU R1 = 25 mW|"
         "POTENZA SU R2 = 25 mW|CON 1 kOhm E 1 kOhm (E24) L'USCITA E' 5 Volt|");
  // Over 10 ohm the load alone would drop 10 V, more than there is.
  expect("1|9.9|0.1|1000|0.001",
         "R1 = 9,8 Ohm   R2 = 100 kOhm|CORRENTE EROGATA = 1 A|POTENZA SU R1 = 9,8 W|"
         "POTENZA SU R2 = 100 nW|CON 10 Ohm E 100 kOhm (E24) L'USCITA E' 0 Volt|1 A");
  const char* const too_high = "L'USCITA DEVE ESSERE MINORE DELL'INGRESSO";
  expect_refusal("1|5|13.8|1|5", "txtinput_1", too_high);
  expect_refusal("1|5|5|-1|", "txtinput_1", too_high);
  expect_refusal("1|5||-1|", "txtinput_1");
  expect_refusal("1|5|4|-1|", "txtinput_2", "IL VALORE NON PUO' ESSERE NEGATIVO");
  expect_refusal("1|5|4|2e12|", "txtinput_2", "VALORI AMMESSI: DA 0 A 1000000000000");
  expect_refusal("1|2e12|4||", "txtinput_3");
}

TEST_F(frmpartitori, AnOptionAsksAnewAndEmptiesTheBoxes) {
  use("mnupartitori", "txtinput_0 txtinput_1 txtinput_2 txtinput_3", "lbloutput");
  enter("12|1000|2200|");
  window.click("Option1_1");
  EXPECT_EQ(window.text("txtinput_0 txtinput_1 txtinput_2 txtinput_3 lbloutput lblvalorer1"),
            "|||||");
  EXPECT_EQ(window.text("lblinput_0 lblinput_1 lblinput_2 lblinput_3"),
            "TENSIONE DI INGRESSO in VOLT :|TENSIONE DI USCITA in VOLT :|"
            "CORRENTE DEL CARICO in mA (FACOLTATIVA) :|CORRENTE IN R2 in mA :");
  window.click("Option1_0");
  EXPECT_EQ(window.text("lblinput_0 lblinput_1 lblinput_2 lblinput_3"),
            "TENSIONE DI INGRESSO in VOLT :|R1 in OHM :|R2 in OHM :|CARICO in OHM (FACOLTATIVO) :");
}

using frmcorresistenza = FormTest;

TEST_F(frmcorresistenza, FromTheRatedPower) {
  use("mnucorresistenza", "txtohm txtwatt", "lblcorrente lbltensione lblconsigliata");
  expect("470|0.25",
         "MASSIMA CORRENTE = 23,06 mA|MASSIMA TENSIONE = 10,84 V|"
         "CORRENTE CONSIGLIATA (META' DELLA POTENZA) = 16,31 mA");
  expect("1e-12|1e12",
         "MASSIMA CORRENTE = 1000 GA|MASSIMA TENSIONE = 1 V|"
         "CORRENTE CONSIGLIATA (META' DELLA POTENZA) = 707,1 GA");
  expect_refusal("0|1", "txtohm", "MANCANO DATI", "messaggio di errore");
  expect_refusal("1|", "txtwatt", "MANCANO DATI", "messaggio di errore");
  expect_refusal("1|2e12", "txtwatt", "VALORI AMMESSI: DA 1E-12 A 1000000000000",
                 "messaggio di errore");
}

using frmsondecc = FormTest;

TEST_F(frmsondecc, AsManyResistorsAsTheVoltageWants) {
  use("mnusondecc", "txtrint txtrapporto txtvolt",
      "lblserie lblstrumento lblcorrente lblpotenza lblnumero");
  EXPECT_EQ(window.text("txtrint"), "10");
  expect("10|10|3000",
         "RESISTENZA IN SERIE = 90 MOhm|LO STRUMENTO LEGGE FINO A 300 Volt|"
         "CORRENTE ASSORBITA = 30 µA|POTENZA SULLA SONDA = 81 mW|"
         "USARE ALMENO 8 RESISTENZE IN SERIE DA 11,25 MOhm");
  const char* const table[][2] = {
      {"11|2|700", "BASTA UNA SOLA RESISTENZA"},  // half of it, 350 V
      {"11|2|700.01", "USARE ALMENO 2 RESISTENZE IN SERIE DA 5,5 MOhm"},
      {"10|1.1|11550", "USARE ALMENO 3 RESISTENZE IN SERIE DA 333,3 kOhm"},  // 3 x 350 V
      {"11|2|1", "BASTA UNA SOLA RESISTENZA"},
      {"10|10|1e12", "USARE ALMENO 2571428572 RESISTENZE IN SERIE DA 35 mOhm"},
  };
  for (const auto& [typed, resistors] : table) {
    SCOPED_TRACE(typed);
    enter(typed);
    EXPECT_EQ(window.text("lblnumero"), resistors);
  }
  expect_refusal("10|1|100", "txtrapporto", "IL RAPPORTO DEVE ESSERE MAGGIORE DI 1");
  expect_refusal("10|1|", "txtvolt");
}

using frmresiststrumento = FormTest;

TEST_F(frmresiststrumento, FromReadingsThatGoTogether) {
  use("mnuresintstrumento", "txtrserie txtrparallelo txti1 txti2", "lbloutput lblcaduta");
  expect("47000|1000|100|50",
         "RESISTENZA INTERNA = 1,022 kOhm|"
         "CADUTA DI TENSIONE CON LA PRIMA LETTURA = 102,2 mV");
  const char* const not_below = "LA SECONDA LETTURA DEVE ESSERE MINORE DELLA PRIMA";
  const char* const incompatible = "LETTURE NON COMPATIBILI CON LE RESISTENZE";
  expect_refusal("47000|1000|50|100", "txti2", not_below);
  expect_refusal("47000|1000|50|50", "txti2", not_below);
  expect_refusal("1000|1000|100|50", "txtrparallelo", incompatible);
  expect_refusal("1000|1000|100|40", "txtrparallelo", incompatible);
  expect_refusal("1000|1000|100|", "txti2");
}

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
