#include <string>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

const std::string notice = "MESSAGGIO DI AVVISO";

using frmlooprettangolare = FormTest;

TEST_F(frmlooprettangolare, SizesForTheShapeAndWire) {
  use("mnulooprettangolare", "txtfrequenza txtrapporto txtdiametro",
      "lblperimetro lblorizzontale lblverticale lblimpedenza lbladattatore lblvaloreverticale");
  EXPECT_EQ(window.text("txtfrequenza txtrapporto txtdiametro"), "|2|2");
  expect("14.2|2|2",
         "LUNGHEZZA TOTALE DEL FILO = 22,18 mt.|LATI ORIZZONTALI = 3,70 mt.|"
         "LATI VERTICALI = 7,39 mt.|IMPEDENZA = 50 OHM|"
         "TRASFORMATORE A 1/4 D'ONDA PER 50 OHM : 50 OHM|7,39 mt.");
  // NEC-2, at lambda / a = 1000: 1.0824 lambda and 202.9 ohm.
  expect("299.792458|0.6|2",
         "LUNGHEZZA TOTALE DEL FILO = 108,0 cm.|LATI ORIZZONTALI = 33,7 cm.|"
         "LATI VERTICALI = 20,2 cm.|IMPEDENZA = 204 OHM|"
         "TRASFORMATORE A 1/4 D'ONDA PER 50 OHM : 101 OHM|20,2 cm.");
}

TEST_F(frmlooprettangolare, TheWireIsCheckedBeforeTheShape) {
  use("mnulooprettangolare", "txtfrequenza txtrapporto txtdiametro", "lblperimetro");
  expect_refusal("14.2|5|2", "txtrapporto", "VALORI AMMESSI: DA 0.5 A 4");
  expect_refusal("14.2|0|2", "txtrapporto");
  expect_refusal("3001|5|0", "txtdiametro");
  expect_refusal("3001|5|2", "txtfrequenza", "VALORI AMMESSI: DA 0.01 A 3000");
  expect_refusal("299.792458|5|11", "txtdiametro", "FILO TROPPO GROSSO PER QUESTA FREQUENZA");
  expect("299.792458|2|10", "LUNGHEZZA TOTALE DEL FILO = 108,4 cm.");  // just not too thick
  expect("0.01|0.5|1E-12", "LUNGHEZZA TOTALE DEL FILO = 30.893,61 mt.");
}

using frmdeltaloop = FormTest;

TEST_F(frmdeltaloop, ThreeTriangles) {
  use("mnudeltaloop", "Option1 txtfrequenza txtdiametro",
      "lblperimetro lblbase lbllati lblaltezza lblimpedenza lbladattatore lblvalorealtezza");
  expect("0|7.1|2",
         "LUNGHEZZA TOTALE DEL FILO = 44,71 mt.|BASE = 14,90 mt.|LATI OBLIQUI = 14,90 mt.|"
         "ALTEZZA DEL TRIANGOLO = 12,91 mt.|IMPEDENZA = 115 OHM|"
         "TRASFORMATORE A 1/4 D'ONDA PER 50 OHM : 76 OHM|12,91 mt.");
  window.click("Option1_1");
  EXPECT_EQ(results(), "||||||");
  // NEC-2, at lambda / a = 31 623: 1.0465 lambda and 194.3 ohm, 1.0337 lambda and 253.6 ohm.
  expect("1|9.4802|2",
         "LUNGHEZZA TOTALE DEL FILO = 33,13 mt.|BASE = 13,72 mt.|LATI OBLIQUI = 9,70 mt.|"
         "ALTEZZA DEL TRIANGOLO = 6,86 mt.|IMPEDENZA = 194 OHM|"
         "TRASFORMATORE A 1/4 D'ONDA PER 50 OHM : 99 OHM|6,86 mt.");
  expect("2|9.4802|2",
         "LUNGHEZZA TOTALE DEL FILO = 32,72 mt.|BASE = 15,18 mt.|LATI OBLIQUI = 8,77 mt.|"
         "ALTEZZA DEL TRIANGOLO = 4,38 mt.|IMPEDENZA = 254 OHM|"
         "TRASFORMATORE A 1/4 D'ONDA PER 50 OHM : 113 OHM|4,38 mt.");
  expect_refusal("0|7.1|0", "txtdiametro");
}

using frmhentenna = FormTest;

TEST_F(frmhentenna, BothVersions) {
  use("mnuhentenna", "Option1 txtfrequenza txtdiametro",
      "lblaltezza lbllarghezza lblbarra lbltotale lblimpedenza lblvalorebarra");
  EXPECT_EQ(window.text("txtdiametro"), "4");
  expect("0|50.15|4",
         "ALTEZZA = 298,9 cm.|LARGHEZZA = 99,6 cm.|"
         "BARRA DI ALIMENTAZIONE A 71,8 cm. DAL LATO INFERIORE|FILO OCCORRENTE = 896,7 cm.|"
         "IMPEDENZA = 67 OHM|71,8 cm.");
  expect("1|50.15|4",
         "ALTEZZA = 360,0 cm.|LARGHEZZA = 99,6 cm.|"
         "BARRA DI ALIMENTAZIONE A 142,0 cm. DAL LATO INFERIORE|FILO OCCORRENTE = 10,19 mt.|"
         "IMPEDENZA = 50 OHM|142,0 cm.");
  window.click("Option1_1");  // chosen already
  EXPECT_EQ(results(), "|||||");
}

using frmantdiscone = FormTest;

TEST_F(frmantdiscone, FromTheLowestFrequency) {
  use("mnuantdiscone", "txtfrequenza txtdiametro",
      "lblcono lblbase lblaltezza lbldisco lbldistanza lblcampo lblvalorediametro");
  expect("100|12",
         "LATO DEL CONO = 74,9 cm.|DIAMETRO ALLA BASE DEL CONO = 76,1 cm.|"
         "ALTEZZA DEL CONO = 64,9 cm.|DIAMETRO DEL DISCO = 53,3 cm.|"
         "DISTANZA TRA DISCO E CONO = 3,6 mm|UTILIZZABILE FINO A CIRCA 800 MHz|12 mm");
  expect_refusal("100|0", "txtdiametro");
  expect_refusal("299.792458|62.51", "txtdiametro",
                 "DIAMETRO SUPERIORE TROPPO GRANDE PER QUESTA FREQUENZA");
  enter("299.792458|62.5");
  EXPECT_EQ(window.text("lblcono"), "LATO DEL CONO = 25,0 cm.");
}

using frmridimensiona = FormTest;

TEST_F(frmridimensiona, ScalesWhatCanBeScaled) {
  use("mnuridimensiona", "txtf1 txtf2 txtmisura_0 txtmisura_1 txtmisura_9",
      "lblfattore lblmisura_0 lblmisura_1 lblmisura_2 lblmisura_9");
  EXPECT_EQ(window.text("lblnome_0 lblnome_9"), "MISURA 1 :|MISURA 10 :");
  expect("145|435|101|98.5|", "FATTORE DI SCALA = 0,33333|33,667|32,833||");
  expect("435|145|-1|1E13|1E-12", "FATTORE DI SCALA = 3||||3E-12");
  expect("435|0|1|1|1", "||||");
  expect("1E12|1E-12|1E12|1|1", "FATTORE DI SCALA = 1E+24|1E+36|1E+24||1E+24");
}

using frmreteadattamento = FormTest;

TEST_F(frmreteadattamento, TwoNetworks) {
  use("mnuretelcadatt", "txtfrequenza txtr txtx txtz0",
      "lblposto lblserie1 lblparallelo1 lblserie2 lblparallelo2 lblros lblvaloreserie2");
  EXPECT_EQ(window.text("txtz0"), "50");
  expect("7.1|12|-85|50",
         "IL COMPONENTE IN PARALLELO STA DAL LATO DELLA LINEA|IN SERIE: L = 2,384 µH|"
         "IN PARALLELO: C = 797,8 pF|IN SERIE: L = 1,427 µH|IN PARALLELO: L = 629,8 nH|"
         "ROS SENZA RETE = 16,39|1,427 µH");
  expect("14.2|200|130|50",
         "IL COMPONENTE IN PARALLELO STA DAL LATO DELL'ANTENNA|IN SERIE: L = 1,214 µH|"
         "IN PARALLELO: C = 110,9 pF|IN SERIE: C = 103,5 pF|IN PARALLELO: L = 2,104 µH|"
         "ROS SENZA RETE = 5,77|103,5 pF");
  // 25 + 25j ohm: the coil of the antenna is all that the first one wants.
  expect("1|25|25|50",
         "IL COMPONENTE IN PARALLELO STA DAL LATO DELLA LINEA|IN SERIE: NESSUNA|"
         "IN PARALLELO: C = 3,183 nF|IN SERIE: C = 3,183 nF|IN PARALLELO: L = 7,958 µH|"
         "ROS SENZA RETE = 2,62|3,183 nF");
  // Nothing but a reactance to cancel.
  expect("1|50|-50|50",
         "IL COMPONENTE IN PARALLELO STA DAL LATO DELLA LINEA|IN SERIE: L = 7,958 µH|"
         "IN PARALLELO: NESSUNA|IN SERIE: L = 7,958 µH|IN PARALLELO: NESSUNA|"
         "ROS SENZA RETE = 2,62|7,958 µH");
  enter("1|9950||50");
  EXPECT_EQ(window.text("lblros"), "ROS SENZA RETE = OLTRE 199");
}

TEST_F(frmreteadattamento, Refusals) {
  use("mnuretelcadatt", "txtfrequenza txtr txtx txtz0", "lblposto");
  expect_refusal("7.1|50|0|50", "txtr", "L'ANTENNA E' GIA' ADATTATA", notice);
  expect_refusal("7.1|50||50.00004", "txtr", "L'ANTENNA E' GIA' ADATTATA", notice);
  expect_refusal("7.1|50|-1000001|0", "txtz0");
  expect_refusal("7.1|50|-1000001|1E7", "txtx", "VALORI AMMESSI: DA -1000000 A 1000000");
  expect_refusal("0.0009|50|0|50", "txtfrequenza", "VALORI AMMESSI: DA 0.001 A 1000000");
}

using frmresradiazione = FormTest;

TEST_F(frmresradiazione, ShortHalfWaveAndFullWave) {
  use("mnuresresdipolo", "txtfrequenza txtlunghezza",
      "lbllambda lblmassimo lblcentro lblguadagno lblvalorelunghezza");
  const std::string loop = "RESISTENZA DI RADIAZIONE RIFERITA AL VENTRE DI CORRENTE = ";
  expect("14.2|10.56", "LUNGHEZZA = 0,5002 LAMBDA|" + loop +
                           "73,16 Ohm|RESISTENZA AL CENTRO = 73,16 Ohm|GUADAGNO = 2,15 dBi|"
                           "10,56 mt.");
  // By the sine and cosine integrals 1.216711E-6 and 198.95 ohm.
  expect("299.792458|0.005", "LUNGHEZZA = 0,005 LAMBDA|" + loop +
                                 "1,217 µOhm|RESISTENZA AL CENTRO = 4,932 mOhm|"
                                 "GUADAGNO = 1,76 dBi|0,005 mt.");
  expect("299.792458|1", "LUNGHEZZA = 1 LAMBDA|" + loop +
                             "198,9 Ohm|RESISTENZA AL CENTRO = MOLTO ALTA (VENTRE DI TENSIONE)|"
                             "GUADAGNO = 3,82 dBi|1 mt.");
  for (const char* length : {"0.01", "26.4"}) {
    expect_refusal(std::string{"14.2|"} + length, "txtlunghezza",
                   "LUNGHEZZA TRA 0.005 E 1.25 LAMBDA");
  }
}

using frmresradiazionestilo = FormTest;

TEST_F(frmresradiazionestilo, EfficiencyOverLossyGround) {
  use("mnuresradiazstilo", "txtfrequenza txtaltezza txtterra",
      "lbllambda lblbase lbltotale lblrendimento lblvaloreterra");
  expect("7.1|10.5|12",
         "ALTEZZA = 0,2487 LAMBDA|RESISTENZA DI RADIAZIONE ALLA BASE = 35,97 Ohm|"
         "RESISTENZA TOTALE = 47,97 Ohm|RENDIMENTO = 75,0 %|12 Ohm");
  expect("7.1|10.5|",
         "ALTEZZA = 0,2487 LAMBDA|RESISTENZA DI RADIAZIONE ALLA BASE = 35,97 Ohm|"
         "RESISTENZA TOTALE = 35,97 Ohm|RENDIMENTO = 100,0 %|0 Ohm");
  expect_refusal("7.1|21.1|0", "txtaltezza",
                 "VICINO A MEZZA ONDA LA RESISTENZA ALLA BASE NON E' DEFINITA", notice);
  expect_refusal("7.1|99|-1", "txtterra", "LA RESISTENZA NON PUO' ESSERE NEGATIVA");
  expect_refusal("7.1|99|1E13", "txtterra", "VALORI AMMESSI: DA 0 A 1000000000000");
  expect_refusal("7.1|99|1", "txtaltezza", "ALTEZZA TRA 0.005 E 0.625 LAMBDA");
}

using frmantelicoidale = FormTest;

TEST_F(frmantelicoidale, SizesAndGain) {
  use("mnuelicoidale", "txtfrequenza txtspire",
      "lbldiametro lblpasso lbllunghezza lblfilo lblriflettore lblguadagno lblapertura "
      "lbladattatore lblvalorelunghezza");
  EXPECT_EQ(window.text("txtspire"), "10");
  const std::string transformer = "IMPEDENZA 140 OHM : TRASFORMATORE A 1/4 D'ONDA DA 84 OHM";
  expect("435|10",
         "DIAMETRO DELLE SPIRE = 21,9 cm.|PASSO TRA LE SPIRE = 15,9 cm.|"
         "LUNGHEZZA DELL'ELICA = 158,5 cm.|CONDUTTORE OCCORRENTE = 7,07 mt.|"
         "RIFLETTORE: DIAMETRO ALMENO 55,1 cm.|GUADAGNO CIRCA 12,1 dBi|"
         "APERTURA DEL FASCIO = 45 GRADI|" +
             transformer + "|158,5 cm.");
  expect("2400|28.9",
         "DIAMETRO DELLE SPIRE = 39,8 mm|PASSO TRA LE SPIRE = 28,7 mm|"
         "LUNGHEZZA DELL'ELICA = 804,4 mm|CONDUTTORE OCCORRENTE = 3,59 mt.|"
         "RIFLETTORE: DIAMETRO ALMENO 99,9 mm|GUADAGNO CIRCA 15,7 dBi|"
         "APERTURA DEL FASCIO = 25 GRADI|" +
             transformer + "|804,4 mm");
}

TEST_F(frmantelicoidale, FourToThirtyWholeTurns) {
  use("mnuelicoidale", "txtfrequenza txtspire", "lblguadagno");
  for (const char* turns : {"2", "3.9", "31", "1E12"}) {
    expect_refusal(std::string{"435|"} + turns, "txtspire", "VALORI AMMESSI: DA 4 A 30");
  }
  expect("435|30.9", "GUADAGNO CIRCA 16,0 dBi");
  expect("435|4", "GUADAGNO CIRCA 9,6 dBi");
}

}  // namespace
}  // namespace eterlab::test
