#include <string>

#include "support/form_test.h"

// Expected results of wires were worked out apart from this code and held against NEC-2.

namespace eterlab::test {
namespace {

constexpr const char* notice = "MESSAGGIO DI AVVISO";
constexpr const char* error = "MESSAGGIO DI ERRORE";

using frmtrappolata = FormTest;

TEST_F(frmtrappolata, LoadsAShortDipole) {
  use("mnuanttrappolata", "txtfrequenza txtlunghezza txtdistanza txtdiametro",
      "lblinduttanza lblreattanza lblaccorciamento lblresistenza lblrendimento lblbanda lblind "
      "lbltratto1 lbltratto2 lbltotale");
  expect("7.1|12|3|2",
         "INDUTTANZA DI OGNI BOBINA = 15,78 uH|REATTANZA = 704 Ohm|IL DIPOLO E' IL 58 % DI QUELLO "
         "INTERO DI 20,55 mt.|RESISTENZA AL CENTRO = 39,0 Ohm|RENDIMENTO CON BOBINE DI Q 200 = 84 "
         "%|BANDA PASSANTE A ROS 2 = 108 kHz|15,78 uH|3,00 mt.|3,00 mt.|12,00 mt.");
  expect("3.65|26|6.5|2",
         "INDUTTANZA DI OGNI BOBINA = 27,13 uH|REATTANZA = 622 Ohm|IL DIPOLO E' IL 65 % DI QUELLO "
         "INTERO DI 40,06 mt.|RESISTENZA AL CENTRO = 44,2 Ohm|RENDIMENTO CON BOBINE DI Q 200 = 88 "
         "%|BANDA PASSANTE A ROS 2 = 68 kHz|27,13 uH|6,50 mt.|6,50 mt.|26,00 mt.");
  const char* const too_long = "DIPOLO PIU' LUNGO DI 1/2 LAMBDA";
  const char* const diameter = "DIAMETRO AMMISSIBILE DA 0,1 A 105,5 mm";
  expect_refusal("7.1|12||2", "txtdistanza");
  expect_refusal("0.99|12|3|2", "txtfrequenza", "VALORI AMMESSI: DA 1 A 500");
  expect_refusal("7.1|1E13|3|105.6", "txtdiametro", diameter, error);
  expect_refusal("7.1|12|3|0.09", "txtdiametro", diameter, error);
  expect_refusal("7.1|1E13|3|105.5", "txtlunghezza", too_long, notice);
  expect_refusal("7.1|21|3|2", "txtlunghezza", too_long, notice);
  expect_refusal("7.1|20.5518|1.6|2", "txtlunghezza", too_long, notice);  // longer at this cut
  expect_refusal("7.1|4.2|3|2", "txtlunghezza", "DIPOLO TROPPO CORTO: MENO DI 1/10 DI LAMBDA",
                 notice);
  expect_refusal("7.1|12|5.41|2", "txtdistanza", "DISTANZA ECCESSIVA", notice);
  expect_refusal("7.1|12|0.29|2", "txtdistanza", "DISTANZA INSUFFICIENTE", notice);
  enter("7.1|12|5.4|2");  // the limits are admitted
  EXPECT_EQ(window.text("lbltratto2"), "0,60 mt.");
  enter("7.1|12|0.3|2");
  EXPECT_EQ(window.text("lbltratto1"), "0,30 mt.");
}

using frmmultigammaott = FormTest;

TEST_F(frmmultigammaott, FindsTheTrapsOfThreeBands) {
  use("mnumultigammaott", "txtf1 txtf2 txtf3 txtdiametro",
      "lblinduttanza lblcapacita lbltratto1 lbltratto2 lbltotale lblz_0 lblros50_0 lblz_1 lblz_2 "
      "lblros50_2 lblros75_2 lblf_3 lblz_3 lblros75_3 lblf_4 lblz_4 lblros50_4");
  expect("3.65|7.05|14.15|2",
         "INDUTTANZA DELLA TRAPPOLA = 9,56 uH|CONDENSATORE DELLA TRAPPOLA = 53,3 pF|10,35 mt.|6,99 "
         "mt.|LUNGHEZZA TOTALE = 34,67 mt.|62 + j0|1,2|72 + j0|207 + j0|4,1|2,8|21,225 MHz|111 - "
         "j85|2,6|28,300 MHz|249 - j812|OLTRE 20");
  expect("3.65|7.05|21.2|2",
         "INDUTTANZA DELLA TRAPPOLA = 8,54 uH|CONDENSATORE DELLA TRAPPOLA = 59,7 pF|10,35 mt.|7,22 "
         "mt.|LUNGHEZZA TOTALE = 35,13 mt.|63 + j0|1,3|72 + j0|117 + j0|2,3|1,6|31,800 MHz|440 + "
         "j589|16,5|42,400 MHz|2.035 - j1.040|OLTRE 20");
  const char* const rise = "LE FREQUENZE DEVONO CRESCERE DI ALMENO IL 10 %";
  const char* const none = "NESSUNA TRAPPOLA ACCORDA QUESTE TRE BANDE: CAMBIARE LA TERZA FREQUENZA";
  expect_refusal("3|2.9|500|1.5", "txtdiametro", "DIAMETRO AMMISSIBILE DA 0,1 A 1,4 mm", error);
  expect_refusal("3|3.29|14|2", "txtf2", rise, error);
  expect_refusal("3|3.3|3.62|2", "txtf3", rise, error);
  expect_refusal("3|3.3|3.63|2", "txtf3", none, notice);  // a tenth each, of rounded decimals
  expect_refusal("3.65|7.05|36.6|2", "txtf3",
                 "LA TERZA FREQUENZA NON PUO' SUPERARE 10 VOLTE LA PRIMA", error);
  expect_refusal("3.65|7.05|8|2", "txtf3", none, notice);
}

using frmantmultigamma = FormTest;

TEST_F(frmantmultigamma, HasATrapForEveryBandButTheLowest) {
  const std::string cells =
      "lblbanda_0 lbltratto_0 lbltrappola_0 lblresistenza_0 lblbanda_1 lbltratto_1 lbltrappola_1 "
      "lblresistenza_1 lblbanda_2 lbltratto_2 lbltrappola_2 lblresistenza_2 lbltotale";
  use("mnuantmultigamma", "Option1 txtf1 txtf3 txtc1 txtdiametro", cells);
  expect("0|7.1|3.65|60|2",
         "7,1 MHz|10,28 mt.|8,37 uH|72 Ohm|3,65 MHz|7,31 mt.||63 Ohm|||||LUNGHEZZA TOTALE = 35,17 "
         "mt.");
  expect_refusal("0|7.1|6.4|60|2", "txtf3", "LE FREQUENZE DEVONO DECRESCERE DI ALMENO IL 10 %",
                 error);
  const char* const capacitor =
      "IL CONDENSATORE DELLA TRAPPOLA A 7,1 MHz DEVE STARE TRA 23 E 448 pF";
  expect_refusal("0|7.1|3.65|1000|2", "txtc1", capacitor, error);
  expect_refusal("0|7.1|3.65|22.4|2", "txtc1", capacitor, error);
  expect_refusal("0|7.1|6.39|23|60", "txtc1",
                 "LE TRAPPOLE CARICANO TROPPO: AUMENTARE I CONDENSATORI", notice);
}

TEST_F(frmantmultigamma, HasThreeBandsToo) {
  use("mnuantmultigamma", "Option1 txtf1 txtf2 txtf3 txtc1 txtc2 txtdiametro",
      "lbltratto_0 lbltrappola_0 lblresistenza_0 lbltratto_1 lbltrappola_1 lblresistenza_1 "
      "lblbanda_2 lbltratto_2 lbltrappola_2 lblresistenza_2 lbltotale lbldisA lbldisC");
  expect("1|14.15|7.1|3.65|50|100|2",
         "5,14 mt.|2,53 uH|72 Ohm|4,25 mt.|5,02 uH|65 Ohm|3,65 MHz|7,93 mt.||59 Ohm|LUNGHEZZA "
         "TOTALE = 34,65 mt.|A 5,14 mt.|C 7,93 mt.");
  const char* const fall = "LE FREQUENZE DEVONO DECRESCERE DI ALMENO IL 10 %";
  expect_refusal("1|14.15|12.8|3.65|50|100|2", "txtf2", fall, error);
  expect_refusal("1|14.15|7.1|6.4|50|100|2", "txtf3", fall, error);
  expect_refusal("1|14.15|7.1|3.65|50|1000|2", "txtc2",
                 "IL CONDENSATORE DELLA TRAPPOLA A 7,1 MHz DEVE STARE TRA 23 E 448 pF", error);
  expect_refusal("1|3.65|7.1|500|50|100|1.5", "txtdiametro", "DIAMETRO AMMISSIBILE DA 0,1 A 1,4 mm",
                 error);
}

using frmantcoaxmulti = FormTest;

TEST_F(frmantcoaxmulti, WindsTrapsOfCable) {
  use("mnuantcoaxmulti", "cmbcavo Option1 txtf1 txtf2 txtsupporto txtdiametro",
      "lblspire lblcavo lblavvolgimento lblinduttanza lblcapacita lbltratto1 lbltratto2 lbltotale");
  expect("RG 58 C/U|0|7.05|3.65|40|2",
         "SPIRE = 11,0|CAVO PER OGNI TRAPPOLA = 156 cm.|LUNGHEZZA DELL'AVVOLGIMENTO = 55 "
         "mm|INDUTTANZA AI CAPI = 12,96 uH|CAPACITA' AI CAPI = 39,3 pF|10,35 mt.|6,30 "
         "mt.|LUNGHEZZA TOTALE = 33,31 mt.");
  expect("RG 58 C/U|1|14.15|7.1|32|2",
         "SPIRE = 7,6|CAVO PER OGNI TRAPPOLA = 88 cm.|LUNGHEZZA DELL'AVVOLGIMENTO = 37 "
         "mm|INDUTTANZA AI CAPI = 1,42 uH|CAPACITA' AI CAPI = 88,8 pF|5,14 mt.|4,61 mt.|LUNGHEZZA "
         "TOTALE = 19,50 mt.");
  expect_refusal("RG 58 C/U|0|7.05|6.4|40|2", "txtf2",
                 "LA SECONDA FREQUENZA DEVE ESSERE ALMENO IL 10 % PIU' BASSA");
  expect_refusal("RG 58 C/U|0|7.05|3.65|501|2", "txtsupporto", "VALORI AMMESSI: DA 1 A 500");
  expect_refusal("RG 213/U|0|7.05|3.65|25|2", "txtsupporto",
                 "SUPPORTO TROPPO STRETTO PER QUESTO CAVO");
  expect_refusal("RG 58 C/U|0|50|28|200|2", "txtsupporto",
                 "SUPPORTO TROPPO GRANDE: MENO DI 2 SPIRE");
  expect_refusal("RG 62 A/U|0|7.05|6.34|60|105", "txtsupporto",
                 "LA TRAPPOLA CARICA TROPPO: COLLEGARE L'USCITA ALLA CALZA O RIDURRE IL SUPPORTO",
                 notice);
}

using frmcaricolineare = FormTest;

TEST_F(frmcaricolineare, LoadsDipolesAndVerticals) {
  use("mnucaricolineare", "Option1 txtfrequenza txtlunghezza txtdiametro txtfilo txtdistanza",
      "lblcarico lblfilo lblreattanza lblz0 lblresistenza lblrendimento lbllun lbldis");
  expect("0|7.1|12|2|2|100",
         "LUNGHEZZA DI OGNI CARICO = 3,80 mt.|FILO PER OGNI CARICO = 7,80 mt.|REATTANZA = 362 "
         "Ohm|IMPEDENZA DELLA LINEA DEL CARICO = 553 Ohm|RESISTENZA AL CENTRO = 19,7 "
         "Ohm|RENDIMENTO DEL CARICO = 89 %|3,80 mt.|100 mm");
  expect("1|3.65|12|30|2|150",
         "LUNGHEZZA DEL CARICO = 5,08 mt.|FILO PER IL CARICO = 10,47 mt.|REATTANZA = 250 "
         "Ohm|IMPEDENZA DELLA LINEA DEL CARICO = 592 Ohm|RESISTENZA ALLA BASE = 10,2 "
         "Ohm|RENDIMENTO DEL CARICO = 91 %|5,08 mt.|150 mm");
  const char* const too_near = "DISTANZA TRA I FILI INSUFFICIENTE";
  expect_refusal("0|7.1|21|2|2|100", "txtlunghezza", "DIPOLO PIU' LUNGO DI 1/2 LAMBDA", notice);
  expect_refusal("1|7.1|21|2|2|100", "txtlunghezza", "RADIATORE PIU' LUNGO DI 1/4 LAMBDA", notice);
  expect_refusal("0|7.1|4.2|2|2|100", "txtlunghezza", "DIPOLO TROPPO CORTO: MENO DI 1/10 DI LAMBDA",
                 notice);
  expect_refusal("1|7.1|2.1|2|2|100", "txtlunghezza",
                 "RADIATORE TROPPO CORTO: MENO DI 1/20 DI LAMBDA", notice);
  expect_refusal("0|7.1|12|2|200|100", "txtfilo", "DIAMETRO AMMISSIBILE DA 0,1 A 105,5 mm", error);
  expect_refusal("0|7.1|12|0.2|0.1|0.39", "txtdistanza", too_near);
  expect_refusal("0|7.1|12|2|2|423", "txtdistanza", "DISTANZA TRA I FILI ECCESSIVA");
  expect_refusal("0|7.1|20.5|2|2|100", "txtlunghezza",
                 "IL RADIATORE E' QUASI INTERO: CARICO NON NECESSARIO", notice);
  expect_refusal("0|7.1|10|2|2|100", "txtlunghezza",
                 "CARICO PIU' LUNGO DEL RADIATORE: ALLONTANARE I FILI O ALLUNGARE L'ANTENNA",
                 notice);
}

using frmtrappolalineare = FormTest;

TEST_F(frmtrappolalineare, TrapsByStubs) {
  use("mnutrappolalineare", "cmblinea txtf1 txtf2 txtdiametro",
      "lbllinea lblponte lblesterno lbltotale lblreattanza lbltratto1 lbltratto2 lblcorto");
  expect("SCALETTA 450 OHM|7.1|3.65|2",
         "LINEA PER OGNI BRACCIO = 10,23 mt.|PONTICELLO A 9,59 mt. DALL'ESTREMITA' ESTERNA DELLA "
         "LINEA|FILO ESTERNO = 9,26 mt.|LUNGHEZZA TOTALE = 38,99 mt.|REATTANZA DELLA TRAPPOLA "
         "SULLA BANDA BASSA = 118 Ohm|10,23 mt.|9,26 mt.|9,59 mt.");
  expect("PIATTINA 300 OHM|14.15|7.1|1.5",
         "LINEA PER OGNI BRACCIO = 5,13 mt.|PONTICELLO A 4,34 mt. DALL'ESTREMITA' ESTERNA DELLA "
         "LINEA|FILO ESTERNO = 4,98 mt.|LUNGHEZZA TOTALE = 20,23 mt.|REATTANZA DELLA TRAPPOLA "
         "SULLA BANDA BASSA = 75 Ohm|5,13 mt.|4,98 mt.|4,34 mt.");
  expect_refusal("SCALETTA 450 OHM|7.1|6.4|2", "txtf2",
                 "LA SECONDA FREQUENZA DEVE ESSERE ALMENO IL 10 % PIU' BASSA");
  expect_refusal("LINEA APERTA 600 OHM|50|28|2", "cmblinea", "LINEA NON ADATTA A QUESTA FREQUENZA",
                 notice);
  expect_refusal("SCALETTA 450 OHM|28.5|25.6|26", "txtf2", "BANDE TROPPO VICINE PER QUESTA LINEA",
                 notice);
}

using frmantg5rv = FormTest;

TEST_F(frmantg5rv, TellsWhatTheCableSees) {
  use("mnug5rv", "cmblinea Option1 txtfrequenza txtdiametro",
      "lblantenna lblbraccio lbllinea lbltratto1 lbltratto2 lbltratto3 lblf_0 lblzant_0 "
      "lblzlinea_0 "
      "lblros_0 lblzant_1 lblzlinea_1 lblros_1 lblzant_2 lblzlinea_2 lblros_2 lblf_3 lblzant_3 "
      "lblzlinea_3 lblros_3 lblzant_4 lblzlinea_4 lblzant_5 lblzlinea_5 lblros_5 lblzant_6 "
      "lblzlinea_6 lblros_6 lblzant_7 lblzlinea_7 lblros_7");
  EXPECT_EQ(window.text("txtfrequenza"), "14.15");
  expect("SCALETTA 450 OHM|0|14.15|2",
         "LUNGHEZZA DELL'ANTENNA = 31,27 mt.|OGNI BRACCIO = 15,64 mt.|LUNGHEZZA DELLA LINEA = 9,64 "
         "mt.|15,64 mt.|15,64 mt.|9,64 mt.|3,65 MHz|36 - j383|21 + j47|4,7|458 + j1.147|61 - "
         "j150|9,3|1.148 - j2.354|72 + j487|OLTRE 20|14,175 MHz|103 - j19|103 - j16|2,1|2.962 + "
         "j1.202|107 - j401|243 - j893|57 + j211|17,5|230 + j378|126 + j12|2,6|2.403 - "
         "j1.317|1.806 - j1.527|OLTRE 20");
  enter("SCALETTA 450 OHM|1|14.15|2");
  EXPECT_EQ(window.text("lblf_3 lblros_3"), "14,175 MHz|1,4");  // 103 - j16 on 75 Ohm
  expect_refusal("LINEA APERTA 600 OHM|0|5|2", "txtfrequenza", "VALORI AMMESSI: DA 7 A 30");
  expect_refusal("LINEA APERTA 600 OHM|0|7|25", "txtdiametro",
                 "DIAMETRO AMMISSIBILE DA 0,1 A 24,9 mm", error);
}

using frmantpresacalcolata = FormTest;

TEST_F(frmantpresacalcolata, FindsTheTap) {
  use("mnuantpresacalcolata", "Option1 txtfrequenza txtdiametro txtimpedenza",
      "lbllunghezza lblpresa lblpercento lbltratto1 lbltratto2 lblbalun lblf_0 lblz_0 lblros_0 "
      "lblf_1 lblz_1 lblros_1 lblz_2 lblros_2 lblf_3 lblz_3 lblros_3");
  EXPECT_EQ(window.text("txtimpedenza"), "600");
  expect("0|7.1|2|600",
         "LUNGHEZZA TOTALE = 20,55 mt.|PRESA A 2,61 mt. DAL CENTRO|PARI AL 37,3 % DELLA LUNGHEZZA "
         "DALL'ESTREMITA' VICINA|12,88 mt.|7,67 mt.||||||||||||");
  EXPECT_FALSE(window.shows("lblz_0"));
  expect("1|3.65|2|200",
         "LUNGHEZZA TOTALE = 40,22 mt.|PRESA A 12,03 mt. DAL CENTRO|PARI AL 20,1 % DELLA LUNGHEZZA "
         "DALL'ESTREMITA' VICINA|32,14 mt.|8,08 mt.|RAPPORTO DEL BALUN PER 50 OHM = 4,0 : 1|3,650 "
         "MHz|200 + j0|1,0|7,300 MHz|95 - j26|2,1|385 - j222|2,7|29,200 MHz|162 - j226|3,3");
  EXPECT_TRUE(window.shows("lblz_0"));
  expect_refusal("1|7.1|2|60", "txtimpedenza", "IMPEDENZA INFERIORE A QUELLA DEL CENTRO DEL DIPOLO",
                 notice);
  const char* const too_high = "IMPEDENZA TROPPO ALTA PER QUESTO CONDUTTORE";
  expect_refusal("1|7.1|2|5000", "txtimpedenza", too_high, notice);
  expect_refusal("0|28.5|26|5000", "txtimpedenza", too_high, notice);
  window.type("Option1", "0");
  EXPECT_EQ(window.text("txtimpedenza"), "600");
  window.type("Option1", "1");
  EXPECT_EQ(window.text("txtimpedenza"), "200");
}

}  // namespace
}  // namespace eterlab::test
