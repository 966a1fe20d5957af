#include "support/form_test.h"
#include "ui/plot.h"

namespace eterlab::test {
namespace {

const char* const advice = "MESSAGGIO DI AVVISO";

std::string told_at(const Driven& window, Qt::Key end) {
  window.control("plot").setFocus();
  window.press(end);
  return dynamic_cast<ui::Plot&>(window.control("plot")).readout();
}

using frmtuningrange = FormTest;

TEST_F(frmtuningrange, OfACoilAndForABand) {
  use("mnutuningrange", "Option1 txtcmin txtcmax txt3 txt4", "lbloutput1 lbloutput2 lbloutput3");
  expect("0|15|350|190|20",
         "FREQUENZA MINIMA = 0,600 MHz|FREQUENZA MASSIMA = 1,952 MHz|RAPPORTO DI GAMMA = 3,25");
  EXPECT_EQ(told_at(window, Qt::Key_End), "100 % ; 1,952 MHz");
  expect("0|15|350|190|",  // 190 uH with 350 and 15 pF alone
         "FREQUENZA MINIMA = 0,617 MHz|FREQUENZA MASSIMA = 2,981 MHz|RAPPORTO DI GAMMA = 4,83");
  expect("1|10|365|0.52|1.62",
         "INDUTTANZA = 236,691 uH|CAPACITA' IN PARALLELO = 30,8 pF (PARASSITE COMPRESE)|"
         "RAPPORTO DI GAMMA = 3,12");
  EXPECT_EQ(window.text("lblinput3 lblinput4"), "FREQUENZA MINIMA in MHz|FREQUENZA MASSIMA in MHz");
  EXPECT_EQ(told_at(window, Qt::Key_Home), "0 % ; 0,52 MHz");
  window.click("Option1_0");
  EXPECT_EQ(window.text("txtcmin txtcmax txt3 txt4 lbloutput1"), "10|365|||");
  EXPECT_EQ(told_at(window, Qt::Key_Home), "");
}

TEST_F(frmtuningrange, RefusesBandsThatCannotBeTuned) {
  use("mnutuningrange", "Option1 txtcmin txtcmax txt3 txt4", "lbloutput1 lbloutput2 lbloutput3");
  expect_refusal("0|100|100|10|", "txtcmax",
                 "LA CAPACITA' MASSIMA DEVE ESSERE MAGGIORE DELLA MINIMA");
  expect_refusal("1|100|10000|7|", "txt4");
  expect_refusal("1|10|365|7|7", "txt4", "LA FREQUENZA MASSIMA DEVE ESSERE MAGGIORE DELLA MINIMA");
  for (const char* const band : {"7|7.0002", "0.5|501"}) {
    expect_refusal(std::string{"1|10|365|"} + band, "txt4", "GAMMA TROPPO STRETTA O TROPPO LARGA");
  }
  expect_refusal("1|20|60|7|14", "txtcmax",
                 "IL VARIABILE NON BASTA: OCCORRE UN RAPPORTO Cmax/Cmin DI ALMENO 4,00", advice);
  expect_refusal("0|10|365|10|5001", "txt4", "VALORI AMMESSI: DA 0 A 5000");
}

using frmimprisonanza = FormTest;

TEST_F(frmimprisonanza, FromTheQOrTheLossResistance) {
  use("mnuimprisonanza", "Option1 txtinduttanza txtcapacita txtinput",
      "lblfrequenza lblreattanza lblparallelo lblserie lblbanda");
  expect("0|2|100|120",
         "FREQUENZA DI RISONANZA = 11.253,95 kHz|XL = XC = 141,42 Ohm|"
         "IMPEDENZA DEL CIRCUITO PARALLELO = 16.971 Ohm|IMPEDENZA DEL CIRCUITO SERIE = 1,179 Ohm|"
         "BANDA PASSANTE = 93,78 kHz  (Q = 120,0)");
  EXPECT_EQ(window.text("lblzp lblzs"), "16.971 Ohm|1,179 Ohm");
  expect("1|200|365|8",
         "FREQUENZA DI RISONANZA = 589,06 kHz|XL = XC = 740,23 Ohm|"
         "IMPEDENZA DEL CIRCUITO PARALLELO = 68.493 Ohm|IMPEDENZA DEL CIRCUITO SERIE = 8,000 Ohm|"
         "BANDA PASSANTE = 6,37 kHz  (Q = 92,5)");
  window.click("Option1_0");
  EXPECT_EQ(window.text("txtinduttanza txtcapacita txtinput lblzp lblzs"), "200|365|||");
  expect_refusal("1|1|100|200", "txtinput", "RESISTENZA TROPPO ALTA: IL CIRCUITO NON RISUONA",
                 advice);
}

using frmfattoreQ = FormTest;

TEST_F(frmfattoreQ, OfACoilABandAndUnderLoad) {
  use("mnuq", "Option1 txt1 txt2 txt3", "lbloutput1 lbloutput2 lbloutput3 lbloutput4");
  expect("0|7.05|4|1.5",
         "XL = 177,19 Ohm|Q = 118,1|BANDA PASSANTE = 59,68 kHz|"
         "RESISTENZA PARALLELA EQUIVALENTE = 20.931 Ohm");
  window.click("Option1_1");
  EXPECT_EQ(window.text("txt1 txt2 txt3 lblinput3"), "|||");
  expect("1|14.1|14.45|", "FREQUENZA CENTRALE = 14,2739 MHz|Q = 40,8|BANDA PASSANTE = 350,00 kHz|");
  expect("2|145|250|50",
         "BANDA PASSANTE A VUOTO = 580,00 kHz|BANDA PASSANTE SOTTO CARICO = 2.900,00 kHz|"
         "PERDITA DI INSERZIONE = 1,94 dB|RENDIMENTO = 64,0 %");
  EXPECT_EQ(told_at(window, Qt::Key_Home), "136,3 MHz ; -15,95 dB");  // three bands below 145 MHz
  expect_refusal("0|0.001|0.001|1", "txt3", "Q MINORE DI 1: RIDURRE LA RESISTENZA", advice);
  expect_refusal("1|14.1|14.1|", "txt2",
                 "LA FREQUENZA SUPERIORE DEVE ESSERE MAGGIORE DELLA INFERIORE");
  expect_refusal("2|145|50|250", "txt3", "IL Q SOTTO CARICO DEVE ESSERE MINORE DEL Q A VUOTO");
  enter("1|14|14.0001|");  // a Q of 140000 is too sharp for a curve
  EXPECT_EQ(told_at(window, Qt::Key_Home), "");
}

using frmadattatoriLC = FormTest;

TEST_F(frmadattatoriLC, FiveNetworks) {
  use("mnuadattatorilc", "Option1 txtfrequenza txtr1 txtr2 txtq",
      "lbloutput1 lbloutput2 lbloutput3 lblq lble1 lble2 lble3");
  EXPECT_EQ(results(), "||||L|C|");
  expect("0|7|50|200|",
         "L = 1,9690 uH|C = 196,9 pF  (E12: 180 pF)  IN PARALLELO A R2||Q = 1,73|"
         "1,9690 uH|196,9 pF|");
  // Reactances of 86.6 and 115.5 ohm change places.
  expect("1|7|200|50|",
         "C = 262,5 pF  (E12: 270 pF)|L = 2,6254 uH  IN PARALLELO A R1||Q = 1,73|"
         "262,5 pF|2,6254 uH|");
  expect("2|3.65|2000|50|12",
         "C1 = 261,6 pF  (E12: 270 pF)|L = 8,1917 uH|C2 = 1.412,9 pF  (E12: 1500 pF)|Q = 12,00|"
         "261,6 pF|8,1917 uH|1.412,9 pF");
  expect("3|145|12.5|50|4",
         "L1 = 0,0549 uH|C = 30,0 pF  (E12: 33 pF)|L2 = 0,0989 uH|Q = 4,00|"
         "0,0549 uH|30,0 pF|0,0989 uH");
  window.click("Option1_4");
  EXPECT_EQ(window.text("lble1 lble2 lble3 txtr1 txtq"), "C1|L|C2|12.5|4");
  window.click("Option1_0");
  EXPECT_EQ(window.shown("txtq lblinputq lble3"), "");
  window.click("Option1_2");
  EXPECT_EQ(window.text("txtq"), "4");
  expect_refusal("1|7|50|50|", "txtr2", "LE DUE RESISTENZE SONO UGUALI: NON SERVE ALCUNA RETE AD L",
                 advice);
  expect_refusal("2|3.65|2000|50|5", "txtq", "Q TROPPO BASSO: OCCORRE ALMENO 6,26");
}

// The capacitor of an L stands at the larger resistance, and at the output again with new inputs.
TEST_F(frmadattatoriLC, DrawsTheShuntWhereItBelongs) {
  use("mnuadattatorilc", "Option1 txtfrequenza txtr1 txtr2", "lblq");
  const QWidget& shunt = window.control("lble2");
  enter("0|7|50|200");
  settle();
  const int at_output = shunt.x();
  enter("0|7|200|50");
  settle();
  EXPECT_LT(shunt.x(), at_output - 50);
  window.type("txtr1", "300");
  settle();
  EXPECT_GE(shunt.x(), at_output);
}

}  // namespace
}  // namespace eterlab::test
