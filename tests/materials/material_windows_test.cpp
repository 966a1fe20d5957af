#include <QComboBox>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmlunghezzafilo = FormTest;

TEST_F(frmlunghezzafilo, FourResults) {
  use("mnulunghezzafilo", "txtd txtgrammi", "lblsezione lbllunghezza lblimax lblrtot");
  expect_refusal("1|", "txtd");
  expect_refusal("-1|100", "txtd");
  expect_edits_leave("|||", "1|100");
  expect("0.5|100",
         "LA SEZIONE DEL FILO E'  0,196 mmq|LA LUNGHEZZA DEL CONDUTTORE E'  57,29 metri|"
         "LA CORRENTE MASSIMA AMMESSA E'  0,4909 Amp|"
         " LA RESISTENZA TOTALE DEL CONDUTTORE E'  5,13525 OHM");
  const char* const table[][3] = {
      {"0.1|1000", "lbllunghezza", "LA LUNGHEZZA DEL CONDUTTORE E'  14.322,15 metri"},
      {"0.1|1000", "lblrtot", " LA RESISTENZA TOTALE DEL CONDUTTORE E'  32094,53 OHM"},
      {"3|0.5", "lblrtot", " LA RESISTENZA TOTALE DEL CONDUTTORE E'  2,5E-05 OHM"},  // 0.0000249
      {"0.7136|50", "lblimax", "LA CORRENTE MASSIMA AMMESSA E'  0,9999 Amp"},        // 0.99986
      {"0.714|50", "lblimax", "LA CORRENTE MASSIMA AMMESSA E'  1,00 Amp"},           // 1.00098
      {"-1|-100", "lbllunghezza", "LA LUNGHEZZA DEL CONDUTTORE E'  -14,32 metri"},
  };
  for (const auto& [typed, label, result] : table) {
    enter(typed);
    EXPECT_EQ(window.text(label), result);
  }
}

using frmresistenzakm = FormTest;

TEST_F(frmresistenzakm, MetalAndTemperature) {
  use("mnuresistenzakm", "cmbmetallo txtdiametro txtlunghezza txttemperatura",
      "lblsezione lblkm lbloutput");
  EXPECT_EQ(window.text("cmbmetallo txttemperatura"), "RAME|20");
  const char* const range = "VALORI AMMESSI: DA -200 A 500";
  expect_refusal("RAME|1|100|900", "txttemperatura", range);
  expect_refusal("RAME|1|100|-200.1", "txttemperatura", range);
  expect_refusal("RAME|1|-5|900", "txtlunghezza");
  const char* const too_cold = "TEMPERATURA TROPPO BASSA PER QUESTO METALLO";
  expect_refusal("FERRO|1|100|-180", "txttemperatura", too_cold);  // 1 - 0.005 x 200
  expect_refusal("FERRO|1|100|-200", "txttemperatura", too_cold);
  expect("RAME|1|100|20",
         "SEZIONE = 0,7854 mmq|RESISTENZA AL Km = 21,95 Ohm|RESISTENZA DEL FILO = 2,195 Ohm");
  expect("ALLUMINIO|2|50|60",
         "SEZIONE = 3,142 mmq|RESISTENZA AL Km = 10,45 Ohm|RESISTENZA DEL FILO = 522,3 mOhm");
  // 21.952 x (1 - 0.00393 x 20) at 0 degrees.
  expect("RAME|1|1000|",
         "SEZIONE = 0,7854 mmq|RESISTENZA AL Km = 20,23 Ohm|RESISTENZA DEL FILO = 20,23 Ohm");
}

using frmresistenzarf = FormTest;

TEST_F(frmresistenzarf, SkinDepthAndResistances) {
  use("mnuresistenzarf", "cmbmetallo txtfrequenza txtdiametro txtlunghezza",
      "lblpelle lblcontinua lbloutput lblrapporto");
  EXPECT_EQ(window.text("cmbmetallo"), "RAME");
  EXPECT_EQ(dynamic_cast<QComboBox&>(window.control("cmbmetallo")).findText("FERRO"), -1);
  expect_refusal("RAME|7.1||10", "txtdiametro");
  expect_refusal("RAME|100001|1001|10", "txtfrequenza", "FREQUENZA FINO A 100000 MHz");
  expect_refusal("RAME|100000|1001|10", "txtdiametro", "DIAMETRO FINO A 1000 mm");
  expect("RAME|7.1|2|10",
         "SPESSORE DI PENETRAZIONE = 24,8 \u00b5m|RESISTENZA IN CONTINUA = 54,88 mOhm|"
         "RESISTENZA IN RF = 1,12 Ohm|RAPPORTO RF / CONTINUA = 20,41");
  expect("ALLUMINIO|144|10|1",
         "SPESSORE DI PENETRAZIONE = 7,051 \u00b5m|RESISTENZA IN CONTINUA = 359,8 \u00b5Ohm|"
         "RESISTENZA IN RF = 127,7 mOhm|RAPPORTO RF / CONTINUA = 354,8");
  EXPECT_EQ(window.text("lblvalorepelle lblvalorediametro"), "7,051 \u00b5m|10 mm");
  // A thread that the field fills: as in direct current.
  enter("NICHELCROMO|0.001|0.01|1");
  EXPECT_EQ(window.text("lblrapporto"), "RAPPORTO RF / CONTINUA = 1");
}

using frmpeso = FormTest;

TEST_F(frmpeso, RodTubeAndFlat) {
  use("mnupeso", "Option1 cmbmateriale txtinput_0 txtinput_1 txtlunghezza",
      "lblspecifico lblsezione lblmetro lbloutput");
  EXPECT_EQ(window.text("cmbmateriale lblinput_0 lblinput_1 txtinput_1"),
            "ALLUMINIO|DIAMETRO in mm :||");
  EXPECT_FALSE(window.shows("txtinput_1"));
  expect_refusal("0|FERRO||x|1", "txtinput_0");
  expect_refusal("1|ALLUMINIO|20|12|1", "txtinput_1", "LO SPESSORE DEVE ESSERE MINORE DEL RAGGIO");
  expect_refusal("1|ALLUMINIO|20|10|1", "txtinput_1", "LO SPESSORE DEVE ESSERE MINORE DEL RAGGIO");
  expect_refusal("1|ALLUMINIO|20||", "txtinput_1");
  expect("1|ALLUMINIO|25|1.5|1",
         "PESO SPECIFICO = 2,70 Kg/dmc|SEZIONE = 110,7 mmq|PESO AL METRO = 299 g|PESO = 299 g");
  EXPECT_EQ(window.text("lblvalorelarghezza lblvalorespessore"), "25 mm|1,5 mm");
  window.click("Option1_1");
  EXPECT_EQ(window.text("cmbmateriale txtinput_0 txtinput_1 txtlunghezza lbloutput"),
            "ALLUMINIO||||");
  expect("0|ACCIAIO INOX|8||2",
         "PESO SPECIFICO = 7,95 Kg/dmc|SEZIONE = 50,27 mmq|PESO AL METRO = 399,6 g|PESO = 799,2 g");
  // A wall of half the width is none of a flat bar's.
  expect("2|RAME|20|10|3",
         "PESO SPECIFICO = 8,96 Kg/dmc|SEZIONE = 200 mmq|PESO AL METRO = 1,792 kg|PESO = 5,376 kg");
  EXPECT_EQ(window.text("lblinput_0 lblinput_1"), "LARGHEZZA in mm :|SPESSORE in mm :");
}

using frmpenetrazione = FormTest;

TEST_F(frmpenetrazione, DepthAndSurfaceResistance) {
  use("mnupenetrazione", "cmbmetallo txtfrequenza", "lbloutput lblfilo lblresistenza lblspessore");
  EXPECT_EQ(dynamic_cast<QComboBox&>(window.control("cmbmetallo")).findText("FERRO"), -1);
  expect_refusal("RAME|0", "txtfrequenza");
  expect_refusal("RAME|1000001", "txtfrequenza", "FREQUENZA FINO A 1000000 MHz");
  expect(
      "RAME|1",
      "SPESSORE DI PENETRAZIONE = 66,08 \u00b5m|DIAMETRO DI FILO SFRUTTATO PER INTERO = 0,132 mm|"
      "RESISTENZA SUPERFICIALE = 260,9 \u00b5Ohm PER QUADRATO|"
      "SPESSORE SUFFICIENTE (5 VOLTE, 99 %) = 330,4 \u00b5m");
  window.type("cmbmetallo", "ORO");
  EXPECT_EQ(results(), "|||");
  // sqrt(1.1 / 0.017241) times as deep as in copper at a millionth of the frequency.
  enter("NICHELCROMO|0.000001");
  EXPECT_EQ(window.text("lbloutput"), "SPESSORE DI PENETRAZIONE = 527,9 mm");
}

using frmresistivita = FormTest;

TEST_F(frmresistivita, MetalInDetailAndInTheTable) {
  use("mnuresistività", "cmbmetallo",
      "lblresistivita lblconducibilita lbliacs lblcoefficiente lblfilo");
  EXPECT_EQ(results(),
            "RESISTIVITA' A 20 GRADI = 0,017241 Ohm mmq/mt.|CONDUCIBILITA' = 58 MS/mt.|"
            "RISPETTO AL RAME = 100,0 % IACS|COEFFICIENTE DI TEMPERATURA = 0,00393 PER GRADO|"
            "FILO DA 1 mm LUNGO 1 mt. = 21,95 mOhm");
  EXPECT_TRUE(window.control("lblro_1").font().bold());
  EXPECT_EQ(window.text("lblmetallo_6 lblro_6 lblalfa_6"), "FERRO|0,0971|0,00500");
  expect("COSTANTANA",
         "RESISTIVITA' A 20 GRADI = 0,49 Ohm mmq/mt.|CONDUCIBILITA' = 2,041 MS/mt.|"
         "RISPETTO AL RAME = 3,5 % IACS|COEFFICIENTE DI TEMPERATURA = 0,00003 PER GRADO|"
         "FILO DA 1 mm LUNGO 1 mt. = 623,9 mOhm");
  EXPECT_FALSE(window.control("lblro_1").font().bold());
  EXPECT_TRUE(window.control("lblro_9").font().bold());
}

using frmconduttori = FormTest;

TEST_F(frmconduttori, CableForDropAndCurrent) {
  use("mnuconduttori", "txtcorrente txtlunghezza txtvolt txtcaduta",
      "lblsezione lblcommerciale lblcaduta lblpotenza lblportata");
  EXPECT_EQ(window.text("txtvolt txtcaduta lblsez_3 lblamp_3"), "13.8|3|1,5 mmq|19,5 A");
  expect_refusal("22|3|13.8|60", "txtcaduta", "LA CADUTA NON PUO' SUPERARE IL 50 %");
  expect_refusal("22||13.8|60", "txtlunghezza");
  expect("22|3|13.8|3",
         "SEZIONE CALCOLATA = 6,22 mmq|SEZIONE COMMERCIALE = 10 mmq|CADUTA = 0,26 Volt, 1,9 %|"
         "POTENZA PERSA NEI CAVI = 5,663 W|PORTATA DEL CAVO = 63 A");
  EXPECT_TRUE(window.control("lblsez_7").font().bold());
  expect("200|50|13.8|3",
         "SEZIONE CALCOLATA = 942 mmq|"
         "OCCORRE PIU' DI 95 mmq: ACCORCIARE LA LINEA O AUMENTARE LA TENSIONE|||");
  EXPECT_FALSE(window.control("lblsez_7").font().bold());
  expect("259|0.1|13.8|50",
         "SEZIONE CALCOLATA = 0,146 mmq|"
         "OCCORRE PIU' DI 95 mmq: DIVIDERE IL CARICO SU PIU' LINEE|||");
}

using frmsezione = FormTest;

TEST_F(frmsezione, WiresAndStrandsAsTyped) {
  use("mnusezione", "Option1 txtfili txtinput",
      "lblsezione lbldiametro lblequivalente lblawg lblkm");
  EXPECT_EQ(window.text("txtfili lblinput"), "1|DIAMETRO DI OGNI FILO in mm :");
  expect("0|1|2.588",
         "SEZIONE TOTALE = 5,26 mmq|DIAMETRO DI OGNI FILO = 2,588 mm|"
         "EQUIVALE A UN FILO UNICO DI 2,588 mm|AWG PIU' VICINO = 10|"
         "RESISTENZA DEL RAME = 3,278 Ohm AL Km");
  expect("1|7|2.5",
         "SEZIONE TOTALE = 2,5 mmq|DIAMETRO DI OGNI FILO = 0,6743 mm|"
         "EQUIVALE A UN FILO UNICO DI 1,784 mm|AWG PIU' VICINO = 13|"
         "RESISTENZA DEL RAME = 6,896 Ohm AL Km");
  EXPECT_EQ(window.text("lblinput lblvalorefili"), "SEZIONE TOTALE in mmq :|7 x 0,6743 mm");
  window.click("Option1_1");
  EXPECT_EQ(window.text("txtfili txtinput lblsezione"), "7||");
  const std::string nothing = "||||";
  for (const char* typed : {"0|1|0", "0|0|1", "0|0.9|1", "0|1e7|1", "0|7|2e6", "0||1"}) {
    expect(typed, nothing);
  }
  // Seven and nine tenths of wires are seven.
  enter("0|7.9|1");
  EXPECT_EQ(window.text("lblsezione lblequivalente"),
            "SEZIONE TOTALE = 5,498 mmq|EQUIVALE A UN FILO UNICO DI 2,646 mm");
  enter("0|1|11.7");
  EXPECT_EQ(window.text("lblawg"), "AWG PIU' VICINO = -3");
  enter("0|1000000|1");
  EXPECT_EQ(window.text("lblawg lblvalorefili"), "AWG PIU' VICINO = FUORI TABELLA|1000000 x 1 mm");
}

using frmddpcontatto = FormTest;

TEST_F(frmddpcontatto, VoltageAndVerdictAtEveryChoice) {
  use("mnucontatto", "cmbmetallo1 cmbmetallo2", "lbloutput lblcorrode lblgiudizio");
  const std::string opening =
      "DIFFERENZA DI POTENZIALE = 0,55 Volt|SI CORRODE: ALLUMINIO 6060|"
      "DA EVITARE: CORROSIONE SICURA CON L'UMIDITA'";
  EXPECT_EQ(window.text("cmbmetallo1 cmbmetallo2"), "ALLUMINIO 6060|RAME");
  EXPECT_EQ(results(), opening);
  EXPECT_TRUE(window.control("lblmetallo_4").font().bold());
  EXPECT_TRUE(window.control("lblmetallo_13").font().bold());
  expect("OTTONE|BRONZO",
         "DIFFERENZA DI POTENZIALE = 0,00 Volt||COPPIA ADATTA ANCHE ALL'APERTO E AL MARE");
  EXPECT_FALSE(window.control("lblmetallo_4").font().bold());
  expect("ORO|ARGENTO",
         "DIFFERENZA DI POTENZIALE = 0,15 Volt|SI CORRODE: ARGENTO|"
         "COPPIA ADATTA ANCHE ALL'APERTO E AL MARE");
  expect("BRONZO|STAGNO E SALDATURA",
         "DIFFERENZA DI POTENZIALE = 0,25 Volt|SI CORRODE: STAGNO E SALDATURA|"
         "ADATTA ALL'INTERNO, ALL'APERTO SOLO PROTETTA");
  expect("FERRO E ACCIAIO|RAME",
         "DIFFERENZA DI POTENZIALE = 0,50 Volt|SI CORRODE: FERRO E ACCIAIO|"
         "SOLO IN AMBIENTE ASCIUTTO");
}

}  // namespace
}  // namespace eterlab::test
