#include <QFont>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmriduzcondensatori = FormTest;

// 1 / (1 / wanted - 1 / given), by hand.
TEST_F(frmriduzcondensatori, NanofaradFromAThousandAndOnePicofarad) {
  use("mnuriduzcondensatori", "txtc1 txtc2", "lblriduzione");
  expect("470|150", "CAPACITA' DA APPLICARE IN SERIE =  220,3  picoF");
  expect("-50|-100", "CAPACITA' DA APPLICARE IN SERIE =  100,0  picoF");
  expect_refusal("|50", "txtc1");
  expect_refusal("100|-50", "txtc1");
  const char* const not_larger = "IL PRIMO COND.RE HA SEMPRE LA CAPACITA' MAGGIORE";
  expect_refusal("100|100", "txtc1", not_larger, "STAI ATTENTO");
  expect_refusal("-100|-50", "txtc1", not_larger, "STAI ATTENTO");
  EXPECT_EQ(results(), "CAPACITA' DA APPLICARE IN SERIE =  100,0  picoF");
  expect("1000.99|500.495", "CAPACITA' DA APPLICARE IN SERIE =  1.001,0  picoF");
  expect("1001|500.5", "CAPACITA' DA APPLICARE IN SERIE =  1,0  nanoF");
}

using frmcondensatori = FormTest;

// By hand: 100 x 220 / 320, 1 / (1/10 + 1/22 + 1/47) = 5.99768.
TEST_F(frmcondensatori, WhatCountsIsAddedAndDrawnAsTyped) {
  use("mnucondensatori", "Option1 txtc_0 txtc_1 txtc_2 txtc_3 txtc_4 txtc_5",
      "lblserie lblparallelo");
  const char* const table[][2] = {
      {"0|100|220||||", "IN SERIE = 68,75 pF|IN PARALLELO = 320 pF"},
      {"1|10|22|47|||", "IN SERIE = 5,998 nF|IN PARALLELO = 79 nF"},
      {"2|1|1|1|1|1|1", "IN SERIE = 166,7 nF|IN PARALLELO = 6 \u00b5F"},
      {"2||-3||1e13||4", "|"},
      {"2|1e12||||1e-12|", "IN SERIE = 0,001 fF|IN PARALLELO = 1000000 F"},
  };
  for (const auto& [typed, results] : table) {
    expect(typed, results);
  }
  window.type("Option1 txtc_0 txtc_1 txtc_4", "0||330|470");
  EXPECT_EQ(window.text("lblvaloreserie_0 lblvaloreserie_1 lblvaloreserie_4 lblvaloreparallelo_4"),
            "|330 pF|470 pF|470 pF");
  EXPECT_EQ(results(), "IN SERIE = 193,9 pF|IN PARALLELO = 800 pF");
  window.click("Option1_2");  // keeps the boxes
  EXPECT_EQ(results(), "IN SERIE = 193,9 \u00b5F|IN PARALLELO = 800 \u00b5F");
}

using frmripple = FormTest;

// C = I t1 / dU by hand with t1 = 8.565 ms, 18.989 ms; the last one has t1 = 2 / 3 T exactly.
TEST_F(frmripple, TheCapacitorOfABridgeAndOfOneDiode) {
  use("mnuripple", "Option1 txtvolt txtcorrente txtripple txtfrequenza",
      "lblcapacita lblcommerciale lblpicco lblmedia lblripple lbllavoro");
  EXPECT_EQ(window.text("txtfrequenza"), "50");
  const char* const table[][7] = {
      {"0|12|1000|10|50", "5500 \u00b5F", "6800 \u00b5F", "15,6", "14,8",
       "1,557 V picco picco, 449,5 mV", "25 Volt"},
      {"1|250|30|5|50", "32,29 \u00b5F", "33 \u00b5F", "352,9", "344,0",
       "17,64 V picco picco, 5,093 V", "450 Volt"},
      {"0|1000|1|50|60", "7,865 nF", "10 nF", "1.412,8", "1.059,6", "706,4 V picco picco, 203,9 V",
       "OLTRE 1000 Volt"},
  };
  for (const auto& [typed, least, standard, peak, mean, ripple, working] : table) {
    expect(typed, std::string{"CAPACITA' MINIMA = "} + least + "|VALORE COMMERCIALE = " + standard +
                      "|TENSIONE A VUOTO = " + peak +
                      " Volt|TENSIONE MEDIA CON IL CARICO = " + mean + " Volt|RIPPLE = " + ripple +
                      " efficaci|TENSIONE DI LAVORO = " + working);
  }
}

TEST_F(frmripple, TheVoltageMustOpenTheDiodesOfTheCircuit) {
  use("mnuripple", "Option1 txtvolt txtcorrente txtripple txtfrequenza", "lblpicco");
  const char* const too_low = "TENSIONE TROPPO BASSA PER I DIODI";
  expect_refusal("0|12|1000|60|50", "txtripple", "IL RIPPLE NON PUO' SUPERARE IL 50 %");
  expect_refusal("0|0.5|1000|50.1|50", "txtripple", "IL RIPPLE NON PUO' SUPERARE IL 50 %");
  expect_refusal("0|12|1000|60|", "txtfrequenza");
  expect_refusal("0|0.98|1000|10|50", "txtvolt", too_low);
  expect("1|0.98|1000|10|50", "TENSIONE A VUOTO = 0,7 Volt");
  expect_refusal("1|0.49|1000|10|50", "txtvolt", too_low);
}

TEST_F(frmripple, AnyNumbersInTheirRangesCanBePlotted) {
  use("mnuripple", "Option1 txtvolt txtcorrente txtripple txtfrequenza", "lblcommerciale");
  for (const char* const typed :
       {"0|1e12|1e12|1e-12|1e-12", "1|1e12|1e-12|50|1e12", "0|0.99|1e-12|1e-12|1e12"}) {
    enter(typed);
    EXPECT_NE(results(), "") << typed;
    EXPECT_EQ(boxes(), Boxes{});
    WindowTest::settle();
  }
}

using frmelettrononpolarizzati = FormTest;

// X = 1 / (2 pi 50 Hz 11 uF) = 289.37 ohm; 1.2 x the peaks is 20.4 V and 1018 V.
TEST_F(frmelettrononpolarizzati, TwiceTheCapacitanceEach) {
  use("mnunonpolarizzato", "txtcapacita txtvolt txtfrequenza",
      "lblelettrolitici lblcommerciale lbllavoro lblreattanza lblcorrente lblvalorec2");
  EXPECT_EQ(window.text("txtfrequenza"), "50");
  expect("10|12|50",
         "OCCORRONO DUE ELETTROLITICI DA 20 \u00b5F|"
         "CON IL VALORE COMMERCIALE DI 22 \u00b5F SI OTTENGONO 11 \u00b5F|"
         "TENSIONE DI LAVORO DI CIASCUNO = 25 Volt|REATTANZA = 289,4 Ohm|CORRENTE = 41,47 mA|"
         "22 \u00b5F");
  expect("0.47|600|400",
         "OCCORRONO DUE ELETTROLITICI DA 940 nF|"
         "CON IL VALORE COMMERCIALE DI 1 \u00b5F SI OTTENGONO 500 nF|"
         "TENSIONE DI LAVORO DI CIASCUNO = OLTRE 1000 Volt|REATTANZA = 795,8 Ohm|"
         "CORRENTE = 754 mA|1 \u00b5F");
  expect_refusal("0|12|50", "txtcapacita");
}

using frmtensmincond = FormTest;

TEST_F(frmtensmincond, TheOptionAsksForWhatMakesThePeak) {
  use("mnumintenslavcond", "Option1 txtinput_0 txtinput_1 txtinput_2",
      "lblpicco lblminima lblcommerciale Label1");
  const char* const prompts = "lblinput_0 lblinput_1 lblinput_2";
  EXPECT_EQ(window.text(prompts), "TENSIONE CONTINUA in VOLT :|RIPPLE PICCO PICCO in VOLT :|");
  expect("0|13.8|0.5|",
         "TENSIONE DI PICCO = 14,1 Volt|TENSIONE DI LAVORO MINIMA = 22 Volt|"
         "VALORE COMMERCIALE = 25 Volt|");
  window.click("Option1_1");
  EXPECT_EQ(results(), "|||SULLA RETE LUCE SI USANO SOLO CONDENSATORI DI CLASSE X2 O Y2");
  EXPECT_EQ(window.text(std::string{prompts} + " txtinput_0 txtinput_1"),
            "TENSIONE EFFICACE in VOLT :|TENSIONE CONTINUA SOVRAPPOSTA in VOLT :|||");
  expect("1|230||",
         "TENSIONE DI PICCO = 325,3 Volt|TENSIONE DI LAVORO MINIMA = 488 Volt|"
         "VALORE COMMERCIALE = 630 Volt|"
         "SULLA RETE LUCE SI USANO SOLO CONDENSATORI DI CLASSE X2 O Y2");
  expect("2|100|50|3",
         "TENSIONE DI PICCO = 173,2 Volt|TENSIONE DI LAVORO MINIMA = 260 Volt|"
         "VALORE COMMERCIALE = 350 Volt|"
         "IN RADIOFREQUENZA CONTA ANCHE LA CORRENTE: USARE TIPI ADATTI");
  EXPECT_EQ(window.text(prompts), "POTENZA in WATT :|IMPEDENZA in OHM :|ROS :");
  // 1.5 x 4.2 is 6.300000000000001 in doubles.
  enter("0|4.2||");
  EXPECT_EQ(window.text("lblcommerciale"), "VALORE COMMERCIALE = 6,3 Volt");
  enter("0|1000||");
  EXPECT_EQ(window.text("lblcommerciale"), "VALORE COMMERCIALE = OLTRE 1000 Volt");
}

TEST_F(frmtensmincond, TheSecondBoxIsOptionalButOnALine) {
  use("mnumintenslavcond", "Option1 txtinput_0 txtinput_1 txtinput_2", "lblpicco");
  const char* const negative = "IL VALORE NON PUO' ESSERE NEGATIVO";
  expect_refusal("0||-1|", "txtinput_0");
  expect_refusal("0|12|-1|", "txtinput_1", negative);
  expect_refusal("1|12|-1e-13|", "txtinput_1", negative);
  expect_refusal("1|12|2e12|", "txtinput_1", "VALORI AMMESSI: DA 0 A 1000000000000");
  expect("1|12|1e-13|", "TENSIONE DI PICCO = 17,0 Volt");
  expect_refusal("2|2e12||3", "txtinput_1");
  expect_refusal("2|2e12|50|3", "txtinput_0", "VALORI AMMESSI: DA 1E-12 A 1000000000000");
  expect_refusal("2|100|1e-13|3", "txtinput_1", "VALORI AMMESSI: DA 1E-12 A 1000000000000");
  expect_refusal("2|100|50|", "txtinput_2", "IL ROS NON PUO' ESSERE INFERIORE A 1");
  expect_refusal("2|100|50|0.999", "txtinput_2", "IL ROS NON PUO' ESSERE INFERIORE A 1");
  expect_refusal("2|100|50|2e12", "txtinput_2", "VALORI AMMESSI: DA 1 A 1000000000000");
  expect("2|100|50|1", "TENSIONE DI PICCO = 100,0 Volt");
  expect_refusal("0|||", "txtinput_0");  // back again, nothing of the line is asked for
  expect("0|12||", "TENSIONE DI PICCO = 12,0 Volt");
}

using frmcostruzionecondensatori = FormTest;

const char* const plates_boxes =
    "Option1 cmbdielettrico txtepsilon txtarmature txtinput_0 txtinput_1";

// 0.885419 pF for 1 cm2 at 1 mm, by hand.
TEST_F(frmcostruzionecondensatori, AnyOfThreeOutOfTheOthers) {
  use("mnucostrcondensatori", plates_boxes,
      "lbloutput lbltensione lblvaloresuperficie lblvaloredistanza");
  EXPECT_EQ(window.text("cmbdielettrico txtepsilon txtarmature lblinput_0 lblinput_1"),
            "ARIA|1.0006|2|SUPERFICIE DI UNA ARMATURA in cmq :|DISTANZA TRA LE ARMATURE in mm :");
  const char* const table[][2] = {
      {"0|ARIA|1.0006|2|100|1",
       "CAPACITA' = 88,6 pF|TENSIONE MASSIMA CIRCA 1.500 Volt di picco|100 cmq|1 mm"},
      {"1|VETRONITE (FR4)|4.5|2|100|1.6",
       "SUPERFICIE DI UNA ARMATURA = 40,16 cmq||40,16 cmq|1,6 mm"},
      {"2|ARIA||21.9|354.4|20",
       "DISTANZA TRA LE ARMATURE = 0,9999 mm|"
       "TENSIONE MASSIMA CIRCA 1.500 Volt di picco|20 cmq|0,9999 mm"},
      {"0|MICA|7|11|4|0.1", "CAPACITA' = 2,125 nF||4 cmq|0,1 mm"},
      {"0|ALTRO|1|2|1|1", "CAPACITA' = 885,4 fF||1 cmq|1 mm"},
  };
  for (const auto& [typed, results] : table) {
    expect(typed, results);
  }
}

TEST_F(frmcostruzionecondensatori, TheMaterialWritesItsConstantButOther) {
  use("mnucostrcondensatori", plates_boxes, "lbloutput");
  EXPECT_EQ(window.focus(), "txtarmature");  // the first to type into
  enter("0|ARIA||2|100|1");
  EXPECT_NE(results(), "");
  const char* const table[][2] = {
      {"TEFLON (PTFE)", "2.1"}, {"PLEXIGLAS", "3"}, {"ALLUMINA", "9.8"}, {"ALTRO", ""}};
  for (const auto& [material, constant] : table) {
    window.type("cmbdielettrico", material);
    EXPECT_EQ(window.text("txtepsilon lbloutput"), std::string{constant} + "|") << material;
  }
  window.type("txtepsilon", "80");
  EXPECT_EQ(window.text("txtepsilon"), "80");
  window.type("cmbdielettrico txtepsilon", "VETRO|80");
  EXPECT_EQ(window.text("txtepsilon txtinput_0 txtinput_1"), "7|100|1");
  window.click("Option1_0");
  EXPECT_EQ(window.text("txtepsilon txtarmature txtinput_0 txtinput_1"), "7|2||");
}

TEST_F(frmcostruzionecondensatori, ConstantAndPlatesAreCheckedBeforeTheInputs) {
  use("mnucostrcondensatori", plates_boxes, "lbloutput");
  const char* const constant = "LA COSTANTE DIELETTRICA NON PUO' ESSERE INFERIORE A 1";
  const char* const plates = "OCCORRONO ALMENO DUE ARMATURE";
  expect_refusal("0|ALTRO|0.5|2|100|1", "txtepsilon", constant);
  expect_refusal("0|ALTRO||1|100|1", "txtepsilon", constant);
  expect_refusal("0|ALTRO|2e12|1.999||", "txtarmature", plates);
  expect_refusal("0|ALTRO|2e12|2e12||", "txtepsilon", "VALORI AMMESSI: DA 1 A 1000000000000");
  expect_refusal("0|ARIA||2e12||", "txtarmature", "VALORI AMMESSI: DA 2 A 1000000000000");
  expect_refusal("0|ARIA||2|2e12|", "txtinput_1");
  expect_refusal("0|ARIA||2|2e12|1", "txtinput_0", "VALORI AMMESSI: DA 1E-12 A 1000000000000");
}

using frmcoefftermicocondensatori = FormTest;

// 1 / sqrt(0.985) - 1 = 7585.1 ppm, by hand.
TEST_F(frmcoefftermicocondensatori, DriftsByItsCode) {
  use("mnucoefftermico", "cmbcoefficiente txtcapacita txttemperatura",
      "lblcolore lblvariazione lblcapacita lblderiva");
  EXPECT_EQ(window.text("cmbcoefficiente"), "NP0");
  const std::string moved = "UN CIRCUITO ACCORDATO SI SPOSTA DI ";
  const char* const table[][5] = {
      {"N750|100|20", "VIOLA", "-1,5", "98,5", "7.585"},
      {"NP0|100|20", "NERO", "0", "100", "0"},
      {"P100|47|200", "ROSSO + VIOLA", "0,94", "47,94", "-9.852"},
      {"N1500|47|-200", "ARANCIO + ARANCIO", "14,1", "61,1", "-122.942"},
      {"N033|12345.6|1", "MARRONE", "-0,4074", "12345,2", "17"},
  };
  for (const auto& [typed, colour, change, capacitance, hz] : table) {
    expect(typed, std::string{"COLORE: "} + colour + "|VARIAZIONE = " + change +
                      " pF|CAPACITA' = " + capacitance + " pF|" + moved + hz + " Hz PER OGNI MHz");
  }
  EXPECT_TRUE(window.control("lblcodice_2").font().bold());
}

TEST_F(frmcoefftermicocondensatori, TheChangeMayBeACoolingOfTwoHundredDegrees) {
  use("mnucoefftermico", "txtcapacita txttemperatura", "lblvariazione");
  const char* const too_much = "LA VARIAZIONE NON PUO' SUPERARE 200 GRADI";
  expect_refusal("0|20", "txtcapacita");
  expect_refusal("2e12|0", "txtcapacita", "VALORI AMMESSI: DA 1E-12 A 1000000000000");
  expect_refusal("100|0", "txttemperatura");
  expect_refusal("100|200.1", "txttemperatura", too_much);
  expect_refusal("100|-1e999", "txttemperatura", too_much);
  expect("100|-200", "VARIAZIONE = 0 pF");
}

using frmenergiapotenziale = FormTest;

// ln(400 / 50) x 10 s = 20.794 s. Just above 50 V: a part in 1E11 of 10 s.
TEST_F(frmenergiapotenziale, TheResistorIsOptional) {
  use("mnuenergiaelettro", "txtcapacita txtvolt txtohm",
      "lblenergia lblcarica lbltempo lblpotenza lblvaloreresistenza");
  const std::string below = "SCENDE SOTTO I 50 VOLT IN ";
  const std::string power = "POTENZA INIZIALE SULLA RESISTENZA = ";
  expect("100|400|100000",
         "ENERGIA = 8 J|CARICA = 40 mC|" + below + "20,79 s|" + power + "1,6 W|100 kOhm");
  expect("1000|25|100",
         "ENERGIA = 312,5 mJ|CARICA = 25 mC|GIA' SOTTO I 50 VOLT|" + power + "6,25 W|100 Ohm");
  expect("1000|50|100",
         "ENERGIA = 1,25 J|CARICA = 50 mC|GIA' SOTTO I 50 VOLT|" + power + "25 W|100 Ohm");
  expect("100|400|", "ENERGIA = 8 J|CARICA = 40 mC|||");
  expect("100|400|1e-13", "ENERGIA = 8 J|CARICA = 40 mC|||");
  expect("100|50.0000000005|100000",
         "ENERGIA = 125 mJ|CARICA = 5 mC|" + below + "100 ps|" + power + "25 mW|100 kOhm");
  expect_refusal("100|400|-1", "txtohm", "LA RESISTENZA NON PUO' ESSERE NEGATIVA");
  expect_refusal("100||-1", "txtvolt");
  expect_refusal("100|400|2e12", "txtohm", "VALORI AMMESSI: DA 0 A 1000000000000");
}

}  // namespace
}  // namespace eterlab::test
