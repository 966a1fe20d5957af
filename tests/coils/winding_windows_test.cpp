#include "support/form_test.h"

namespace eterlab::test {
namespace {

const char* const advice = "MESSAGGIO DI AVVISO";

using frmmicrobobine = FormTest;
const char* const short_boxes = "Option1 txtdiametro txtfilo txtpasso txtinput";
const char* const short_results = "lblspire lbllunghezza lbltaratura lblfilo";

TEST_F(frmmicrobobine, StretchesWholeTurnsOrTellsTheInductance) {
  use("mnumicrobobine", short_boxes, short_results);
  expect("0|6|1|1.5|0.1",
         "SPIRE = 6|ALLUNGARE LA BOBINA A 13,2 mm  (PASSO 2,20 mm)|"
         "AL PASSO DATO: 9,0 mm, L = 0,1265 uH|FILO NECESSARIO = 133 mm PIU' I TERMINALI");
  EXPECT_EQ(window.text("lbll lbld lblinput"), "13,2 mm|6 mm|INDUTTANZA in uH");
  window.click("Option1_0");
  EXPECT_EQ(window.text("txtdiametro txtinput lblspire lbll lbld"), "6|0.1||L|D");
  window.click("Option1_1");
  EXPECT_EQ(window.text("txtdiametro txtinput lblinput"), "6||NUMERO DELLE SPIRE");
  expect("1|5|0.8|1.2|4.5",
         "L = 0,0737 uH|LUNGHEZZA DELLA BOBINA = 5,4 mm||"
         "FILO NECESSARIO = 83 mm PIU' I TERMINALI");
}

TEST_F(frmmicrobobine, RefusesCoilsThatCannotBeWound) {
  use("mnumicrobobine", short_boxes, short_results);
  expect_refusal("0|1|1.1|1.5|0.1", "txtdiametro",
                 "IL DIAMETRO INTERNO NON PUO' ESSERE MINORE DEL FILO");
  expect_refusal("0|6|1|0.8|0.1", "txtpasso",
                 "IL PASSO NON PUO' ESSERE MINORE DEL DIAMETRO DEL FILO");
  expect_refusal("1|6|1|3.51|4", "txtpasso", "PASSO TROPPO LARGO: AL MASSIMO 3,50 mm");
  expect_refusal("0|6|1|1.5|0.005", "txtdiametro",
                 "BASTA UNA SPIRA O MENO: RIDURRE IL DIAMETRO INTERNO", advice);
  expect_refusal("0|1|0.2|0.6|1", "txtdiametro",
                 "OCCORRONO PIU' DI 50 SPIRE: AUMENTARE IL DIAMETRO INTERNO", advice);
  expect_refusal("0|6|1|3.5|0.03", "txtdiametro",
                 "NESSUN NUMERO INTERO DI SPIRE: CAMBIARE IL DIAMETRO INTERNO", advice);
  expect_refusal("1|6|1|1.5|51", "txtinput", "VALORI AMMESSI: DA 1 A 50");
  expect_refusal("0|6|1|1.5|11", "txtinput", "VALORI AMMESSI: DA 0.001 A 10");
}

using frmbobinepiatte = FormTest;

TEST_F(frmbobinepiatte, RoundAndSquare) {
  use("mnubobinepiatte", "Option1 Option2 txtdiametro txtpista txtspazio txtinput",
      "lblspire lblinduttanza lblesterno lbllunghezza");
  expect("0|0|6|0.8|0.8|0.25",
         "SPIRE = 4,5|L = 0,255 uH|DIAMETRO ESTERNO = 18,8 mm|LUNGHEZZA DELLA PISTA = 17,5 cm.");
  window.click("Option2_1");
  EXPECT_EQ(window.text("lblspire lbld lble txtinput"), "|D|E|0.25");
  expect("1|1|10|1|0.5|3",
         "SPIRE = 3|L = 0,205 uH|LATO ESTERNO = 18,0 mm|LUNGHEZZA DELLA PISTA = 16,8 cm.");
  EXPECT_EQ(window.text("lbld lble"), "10 mm|18,0 mm");
  expect_refusal("1|0|10|1|3.1|3", "txtspazio",
                 "SPAZIO TROPPO LARGO: AL MASSIMO TRE VOLTE LA PISTA");
  expect_refusal("0|0|20|1|1|0.02", "txtdiametro",
                 "BASTA MENO DI UNA SPIRA: RIDURRE IL DIAMETRO INTERNO", advice);
  expect_refusal("0|0|1|0.1|0.1|50", "txtdiametro",
                 "OCCORRONO PIU' DI 50 SPIRE: AUMENTARE IL DIAMETRO INTERNO", advice);
}

using frmbobinamulticircolare = FormTest;
const char* const too_thick = "IL FILO E' PIU' GROSSO DELLA LARGHEZZA DELL'AVVOLGIMENTO";
const char* const too_many_layers = "TROPPI STRATI: AUMENTARE LA LARGHEZZA DELL'AVVOLGIMENTO";
const char* const layered_results =
    "lblspire lblinduttanza lblstrati lblesterno lblfilo lblresistenza";

TEST_F(frmbobinamulticircolare, TurnsOfAnInductance) {
  use("mnumulticircolare", "txtinduttanza txtdiametro txtlarghezza txtfilo", layered_results);
  expect("1000|20|10|0.3",
         "SPIRE = 215|L = 999,14 uH|STRATI = 7  (33 SPIRE PER STRATO)|DIAMETRO ESTERNO = 24,2 mm|"
         "FILO NECESSARIO = 14,8 mt.|RESISTENZA CIRCA 4,28 Ohm");
  EXPECT_EQ(window.text("lbldi lblde lbllarg"), "20 mm|24,2 mm|10 mm");
  expect("470|12|8|0.25",
         "SPIRE = 204|L = 470,86 uH|STRATI = 7  (32 SPIRE PER STRATO)|DIAMETRO ESTERNO = 15,5 mm|"
         "FILO NECESSARIO = 8,7 mt.|RESISTENZA CIRCA 3,62 Ohm");
  expect_refusal("100|20|1|1.2", "txtfilo", too_thick);
  expect_refusal("1|200|10|0.05", "txtdiametro",
                 "BASTA MENO DI UNA SPIRA: RIDURRE IL DIAMETRO DEL SUPPORTO", advice);
  expect_refusal("100000|2|1|1", "txtlarghezza", too_many_layers, advice);
  expect_refusal("100000|2|200|0.05", "txtdiametro",
                 "OCCORRONO PIU' DI 1500 SPIRE: AUMENTARE IL DIAMETRO DEL SUPPORTO", advice);
}

using frmbobinarettangolare = FormTest;

TEST_F(frmbobinarettangolare, BothWays) {
  use("mnumultirettangolare", "Option1 txtlatoa txtlatob txtlarghezza txtfilo txtinput",
      layered_results);
  expect("0|60|40|10|0.5|250",
         "SPIRE = 52|L = 254,99 uH|STRATI = 3  (20 SPIRE PER STRATO)|INGOMBRO = 63,0 x 43,0 mm|"
         "FILO NECESSARIO = 10,7 mt.|RESISTENZA CIRCA 1,11 Ohm");
  EXPECT_EQ(window.text("lbla lblb lbllarg"), "60 mm|40 mm|10 mm");
  expect("1|300|300|20|1|12",
         "SPIRE = 12|L = 135,20 uH|STRATI = 1  (20 SPIRE PER STRATO)|INGOMBRO = 302,0 x 302,0 mm|"
         "FILO NECESSARIO = 14,4 mt.|RESISTENZA CIRCA 0,37 Ohm");
  expect_refusal("1|60|40|1|1.2|12.5", "txtfilo", too_thick);
  expect_refusal("1|60|40|10|0.5|12.5", "txtinput", "IL NUMERO DELLE SPIRE DEVE ESSERE INTERO");
  expect_refusal("1|60|40|10|5|201", "txtlarghezza", too_many_layers, advice);
  expect_refusal("0|5|5|1|1|100000", "txtlarghezza", too_many_layers, advice);
  expect_refusal("0|2000|2000|10|0.5|1", "txtlatoa", "BASTA MENO DI UNA SPIRA: RIDURRE I LATI",
                 advice);
  expect_refusal("0|5|5|500|0.05|100000", "txtlatoa",
                 "OCCORRONO PIU' DI 1500 SPIRE: AUMENTARE I LATI", advice);
}

using frmbobineuhf = FormTest;

TEST_F(frmbobineuhf, RodsStripsAndForks) {
  use("MNUBOBINEUHF", "Option1 txtfrequenza txtcapacita txtconduttore txtdistanza",
      "lblz0 lbllunghezza lblinduttanza lblquarto");
  expect("0|432|3|6|10",
         "Z0 = 112,4 Ohm|LUNGHEZZA DELLA LINEA = 91,7 mm|INDUTTANZA EQUIVALENTE = 45,2 nH|"
         "UN QUARTO D'ONDA = 173,5 mm");
  EXPECT_EQ(window.text("lbll lblc lblconduttore lbldistanza"),
            "91,7 mm|3 pF|DIAMETRO DEL TONDINO in mm|ALTEZZA DEL CENTRO SUL PIANO in mm");
  expect("1|432|5|10|5",
         "Z0 = 89,0 Ohm|LUNGHEZZA DELLA LINEA = 76,4 mm|INDUTTANZA EQUIVALENTE = 27,1 nH|"
         "UN QUARTO D'ONDA = 173,5 mm");
  EXPECT_EQ(window.text("lblconduttore lbldistanza"),
            "LARGHEZZA DELLA STRISCIA in mm|ALTEZZA SUL PIANO in mm");
  window.click("Option1_2");
  EXPECT_EQ(window.text("txtfrequenza txtcapacita txtconduttore txtdistanza"), "432|5||");
  EXPECT_EQ(window.text("lblconduttore lbldistanza"),
            "DIAMETRO DEL FILO in mm|DISTANZA TRA I CENTRI DEI FILI in mm");
  expect("2|435|2|2|8",
         "Z0 = 247,4 Ohm|LUNGHEZZA DI OGNI BRACCIO = 69,8 mm|INDUTTANZA EQUIVALENTE = 66,9 nH|"
         "UN QUARTO D'ONDA = 172,3 mm");
  expect_refusal("2|435|20|2|8", "txtcapacita",
                 "LINEA PIU' CORTA DEL DOPPIO DELLA DISTANZA: RIDURRE LA CAPACITA' O LA DISTANZA",
                 advice);
  const char* const touching = "I CONDUTTORI SI TOCCANO: AUMENTARE LA DISTANZA";
  expect_refusal("0|432|3|10|5.4", "txtdistanza", touching);
  expect_refusal("2|432|3|10|10.9", "txtdistanza", touching);
}

using frmautorisonanza = FormTest;

TEST_F(frmautorisonanza, FromDimensionsAndFromMeasurements) {
  use("mnuautorisonanza", "Option1 txt1 txt2 txt3 txt4",
      "lbloutput1 lbloutput2 lbloutput3 lbloutput4");
  expect("0|50|100|20|",
         "INDUTTANZA = 8,07 uH|CAPACITA' PROPRIA CIRCA 2,5 pF|"
         "AUTORISONANZA IN CIRCUITO CIRCA 35,6 MHz|BOBINA ISOLATA, AL GRID-DIP: CIRCA 53,3 MHz");
  EXPECT_EQ(window.text("lbll lblc lblinput4"), "8,07 uH|2,5 pF|");
  expect("1|50|6.85|200|3.52",
         "INDUTTANZA = 10,03 uH|CAPACITA' PROPRIA CIRCA 3,8 pF|"
         "AUTORISONANZA IN CIRCUITO CIRCA 25,7 MHz|");
  window.click("Option1_1");
  EXPECT_EQ(window.text("txt1 txt2 txt3 txt4"), "|||");
  const char* const length = "LA LUNGHEZZA DEVE STARE TRA 0,1 E 50 DIAMETRI";
  expect_refusal("0|50|4.9|20|", "txt2", length);
  expect_refusal("0|3|151|20|", "txt2", length);
  expect_refusal("1|200|5|200|3", "txt3", "IL SECONDO CONDENSATORE DEVE ESSERE MAGGIORE DEL PRIMO");
  expect_refusal("1|100|5|200|6", "txt4", "LA SECONDA FREQUENZA DEVE ESSERE MINORE DELLA PRIMA");
  expect_refusal("1|100|5|200|3", "txt2",
                 "MISURE NON COERENTI: LA CAPACITA' PROPRIA NON RISULTA POSITIVA", advice);
}

using frmtrasferroxcube = FormTest;

TEST_F(frmtrasferroxcube, WindingsOnAChosenCore) {
  use("mnutrasferrite", "txtprimario txtsecondario txtfrequenza",
      "lblprimario lblsecondario lblimpedenza lblreattanza lblpotenza lblperdita");
  EXPECT_EQ(window.text("cmbnucleo lblnucleo"), "SCEGLI IL NUCLEO|");
  expect_refusal("||", "cmbnucleo", "SCEGLIERE UN NUCLEO");
  window.pick("cmbnucleo", 5);
  EXPECT_EQ(window.text("cmbnucleo lblnucleo"),
            "FT-240-43|AL = 1075 nH PER SPIRA AL QUADRATO, 61 x 35,55 x 12,7 mm");
  expect("50|200|3.5",
         "PRIMARIO = 4 SPIRE|SECONDARIO = 8 SPIRE|"
         "IMPEDENZA VISTA AL PRIMARIO = 50,0 Ohm  (ROS 1,00)|"
         "IMPEDENZA DEL PRIMARIO A VUOTO = 321 Ohm|POTENZA MASSIMA CIRCA 101,5 WATT|"
         "PERDITA NEL NUCLEO CIRCA 0,34 dB");
  EXPECT_EQ(window.text("lblp lbls"), "4|8");
  window.pick("cmbnucleo", 10);
  EXPECT_EQ(window.text("lblprimario lblp lblnucleo"),
            "|P|AL = 140 nH PER SPIRA AL QUADRATO, 35,55 x 23 x 12,7 mm");
  expect("450|50|7",
         "PRIMARIO = 18 SPIRE|SECONDARIO = 6 SPIRE|"
         "IMPEDENZA VISTA AL PRIMARIO = 450,0 Ohm  (ROS 1,00)|"
         "IMPEDENZA DEL PRIMARIO A VUOTO = 1.958 Ohm|POTENZA MASSIMA CIRCA 137,7 WATT|"
         "PERDITA NEL NUCLEO CIRCA 0,01 dB");
  window.pick("cmbnucleo", 12);
  expect_refusal("2000|50|0.1", "cmbnucleo", "TROPPE SPIRE: SCEGLIERE UN NUCLEO CON AL MAGGIORE",
                 advice);
  expect_refusal("1|10000|1", "txtsecondario",
                 "TROPPE SPIRE: IL RAPPORTO TRA LE IMPEDENZE E' TROPPO ALTO", advice);
  expect_refusal("1||1", "txtsecondario");
}

}  // namespace
}  // namespace eterlab::test
