#include "support/form_test.h"

// Expected results: the formulas in Python, its coils, integrals and tapped coils by code of its
// own.

namespace eterlab::test {
namespace {

constexpr const char* notice = "MESSAGGIO DI AVVISO";
constexpr const char* too_thick =
    "RADIATORE TROPPO GROSSO: L'ALTEZZA DEVE ESSERE ALMENO 20 DIAMETRI";
constexpr const char* few_turns = "BOBINA DI POCHE SPIRE: RIDURRE IL DIAMETRO DELLA BOBINA";
constexpr const char* thin_wire = "FILO TROPPO SOTTILE: AUMENTARE IL DIAMETRO DELLA BOBINA";
constexpr const char* no_coil = "IL RADIATORE ARRIVA GIA' A 1/4 LAMBDA: LA BOBINA NON SERVE";

std::string suitable(const std::string& limits) {
  return "DIAMETRO ADATTO A QUESTA FREQUENZA : DA " + limits + " mm";
}

using frmAntAcc = FormTest;

TEST_F(frmAntAcc, LoadsAWhip) {
  use("mnuAntAcc", "txtfrequenza txtaltezza txtdiametro txtterra txtbobina",
      "lblgradi lblreattanza lblinduttanza lblspire lblfilo lblRR lblbase lblrendimento lblbanda "
      "lblalt lblind lblradiali");
  expect("7.05|2.5|10|10|60",
         "ALTEZZA ELETTRICA = 21,2 GRADI|REATTANZA ALLA BASE = -806,9 Ohm|INDUTTANZA = 18,22 uH|"
         "BOBINA : 22 SPIRE SU 64,8 mm|FILO DA 1,77 mm, PASSO 2,95 mm|"
         "RESISTENZA DI RADIAZIONE = 1,39 Ohm|RESISTENZA ALLA BASE = 15,4 Ohm|RENDIMENTO = 9,0 %|"
         "BANDA PASSANTE (ROS 2) = 90,7 kHz|ALTEZZA 2,5 mt.|L 18,22 uH|RADIALI mt. 10,6");
  expect_edits_leave("|||||||||ALTEZZA|L|RADIALI", "7.05|2.5|10|10|60");
  expect("3.6|5|20|15|80",
         "ALTEZZA ELETTRICA = 21,6 GRADI|REATTANZA ALLA BASE = -788,4 Ohm|INDUTTANZA = 34,86 uH|"
         "BOBINA : 26 SPIRE SU 83,7 mm|FILO DA 1,93 mm, PASSO 3,22 mm|"
         "RESISTENZA DI RADIAZIONE = 1,45 Ohm|RESISTENZA ALLA BASE = 20,4 Ohm|RENDIMENTO = 7,1 %|"
         "BANDA PASSANTE (ROS 2) = 62,5 kHz|ALTEZZA 5 mt.|L 34,86 uH|RADIALI mt. 20,8");
}

TEST_F(frmAntAcc, RefusesInOrder) {
  use("mnuAntAcc", "txtfrequenza txtaltezza txtdiametro txtterra txtbobina", "lblgradi lblind");
  expect_refusal("7.05|2.5||10|1001", "txtdiametro");
  expect_refusal("7.05|2.5|200|10|1001", "txtbobina", "VALORI AMMESSI: DA 1 A 1000");
  expect_refusal("14.2|5.2|261|10|40", "txtdiametro", too_thick);
  expect_refusal("14.2|5.2|260|10|40", "txtaltezza", no_coil, notice);
  expect_refusal("14.2|5.2|20|10|40", "txtaltezza", no_coil, notice);
  // A quarter wave is 5.278 m; a little less already resonates by itself. So does 3/4.
  expect_refusal("14.2|5.1|20|10|40", "txtaltezza", no_coil, notice);
  expect_refusal("14.2|13|20|10|40", "txtaltezza", no_coil, notice);
  expect_refusal("14.2|4.9|20|10|400", "txtbobina", few_turns, notice);
  expect_refusal("7.05|2.5|10|10|10", "txtbobina", thin_wire, notice);
}

TEST_F(frmAntAcc, WarnsOfTheory) {
  use("mnuAntAcc", "", "");
  window.click("cmdavviso");
  EXPECT_TRUE(driven("frmavvertenza").window().isModal());
}

using frmcaricoauto = FormTest;

TEST_F(frmcaricoauto, TapsTheCoil) {
  use("mnucaricoauto", "txtfrequenza txtaltezza txtdiametro txtterra txtbobina",
      "lblinduttanza lblspire lblfilo lblpresa lblbase lblros lblrendimento lblbanda lblalt lblind "
      "lbltap");
  expect("7.05|2.5|10|10|60",
         "INDUTTANZA TOTALE = 18,26 uH|BOBINA : 22 SPIRE SU 64,6 mm|FILO DA 1,76 mm, PASSO 2,94 mm|"
         "PRESA PER IL CAVO A 1,04 SPIRE DAL LATO MASSA|RESISTENZA ALLA BASE = 15,4 Ohm|"
         "ROS SENZA LA PRESA = 3,2|RENDIMENTO = 9,0 %|BANDA PASSANTE (ROS 2) = 90,7 kHz|"
         "ALTEZZA 2,5 mt.|L 18,26 uH|PRESA 1,04 SPIRE");
  expect_edits_leave("||||||||ALTEZZA|L|PRESA", "7.05|2.5|10|10|60");
  expect("3.6|5|20|15|80",
         "INDUTTANZA TOTALE = 34,99 uH|BOBINA : 26 SPIRE SU 83,2 mm|FILO DA 1,92 mm, PASSO 3,20 mm|"
         "PRESA PER IL CAVO A 1,43 SPIRE DAL LATO MASSA|RESISTENZA ALLA BASE = 20,4 Ohm|"
         "ROS SENZA LA PRESA = 2,5|RENDIMENTO = 7,1 %|BANDA PASSANTE (ROS 2) = 62,5 kHz|"
         "ALTEZZA 5 mt.|L 34,99 uH|PRESA 1,43 SPIRE");
}

TEST_F(frmcaricoauto, RefusesInOrder) {
  use("mnucaricoauto", "txtfrequenza txtaltezza txtdiametro txtterra txtbobina", "lblpresa lbltap");
  expect_refusal("7.05|5|260|60|50", "txtdiametro", too_thick);
  expect_refusal("14.2|5.2|20|60|40", "txtaltezza", no_coil, notice);
  expect_refusal("7.05|5|25|60|50", "txtterra",
                 "LA RESISTENZA ALLA BASE E' GIA' VICINA A 50 Ohm O LI SUPERA: NON USARE LA PRESA",
                 notice);
  expect_refusal("14.2|4.5|20|10|40", "txtaltezza",
                 "RADIATORE TROPPO VICINO A 1/4 LAMBDA: ACCORCIARLO", notice);
  expect_refusal("28.5|1.8|20|10|300", "txtbobina", few_turns, notice);
  expect_refusal("7.05|2.5|10|10|10", "txtbobina", thin_wire, notice);
  window.click("cmdavvertenza");
  EXPECT_TRUE(driven("frmavvertenza").window().isModal());
}

using frmcappello = FormTest;

TEST_F(frmcappello, FindsTheSpokes) {
  use("mnucappello", "txtfrequenza txtaltezza txtdiametro txtraggi Option1",
      "lblgradi lblcapacita lblraggi lblanello lblRR lblsenza lblradiali lblalt lblraggio");
  expect("7.05|6|30|4|0",
         "ALTEZZA ELETTRICA = 50,8 GRADI|CAPACITA' DEL CAPPELLO = 56,3 pF|4 RAGGI LUNGHI 222,5 cm.|"
         "CON FILO PERIMETRALE : RAGGI DI CIRCA 134 cm.|RESISTENZA DI RADIAZIONE = 23,3 Ohm|"
         "SENZA CAPPELLO, CON BOBINA ALLA BASE = 8,8 Ohm|RADIALI DI 1/4 LAMBDA = 10,63 mt.|"
         "ALTEZZA 6 mt.|RAGGIO 222,5 cm.");
  window.click("Option1_1");
  EXPECT_EQ(results(), "|||||||ALTEZZA|RAGGIO");
  expect("3.6|10|40|4|2",
         "ALTEZZA ELETTRICA = 43,2 GRADI|CAPACITA' DEL CAPPELLO = 130,0 pF|"
         "8 RAGGI LUNGHI 379,1 cm.|CON FILO PERIMETRALE : RAGGI DI CIRCA 273 cm.|"
         "RESISTENZA DI RADIAZIONE = 18,4 Ohm|SENZA CAPPELLO, CON BOBINA ALLA BASE = 6,2 Ohm|"
         "RADIALI DI 1/4 LAMBDA = 20,82 mt.|ALTEZZA 10 mt.|RAGGIO 379,1 cm.");
}

TEST_F(frmcappello, RefusesInOrder) {
  use("mnucappello", "txtfrequenza txtaltezza txtdiametro txtraggi Option1", "lblraggi lblraggio");
  expect_refusal("7.05|6|30|101|0", "txtraggi", "VALORI AMMESSI: DA 0.1 A 100");
  expect_refusal("1.84|1|60|3|0", "txtdiametro", too_thick);
  expect_refusal("1.84|10|40|3|0", "txtaltezza",
                 "RADIATORE TROPPO CORTO: SERVONO ALMENO 30 GRADI (1/12 LAMBDA)", notice);
  expect_refusal("7.05|9|30|4|0", "txtaltezza",
                 "RADIATORE GIA' VICINO A 1/4 LAMBDA: IL CAPPELLO NON SERVE", notice);
  const char* const thick_spokes = "RAGGI TROPPO GROSSI: RIDURRE IL LORO DIAMETRO";
  expect_refusal("300|0.2|1|40|0", "txtraggi", thick_spokes, notice);
  expect_refusal("145|0.35|1|50|2", "txtraggi", thick_spokes, notice);
  expect_refusal("7.05|3.6|150|0.5|0", "txtaltezza",
                 "CAPPELLO PIU' GRANDE DELL'ALTEZZA: ALLUNGARE IL RADIATORE O AUMENTARE I RAGGI",
                 notice);
}

using frmcapantvert = FormTest;

TEST_F(frmcapantvert, TellsBothCapacitances) {
  use("mnucapantvert", "txtlunghezza txtdiametro txtfrequenza",
      "lblcapacita lblpermetro lblcapf lblreattanza lblinduttanza lblrisonanza lbllung lblcap");
  expect("5|20|3.6",
         "CAPACITA' STATICA = 53,34 pF|PARI A 10,67 pF AL METRO|"
         "CAPACITA' ALLA FREQUENZA DI LAVORO = 56,07 pF|REATTANZA = -788,4 Ohm|"
         "INDUTTANZA DI ACCORDO = 34,86 uH|RISONANZA PROPRIA = 14,39 MHz|LUNGHEZZA 5 mt.|"
         "C 56,07 pF");
  expect_edits_leave("||||||LUNGHEZZA|C", "5|20|3.6");
  expect("1|3|27",
         "CAPACITA' STATICA = 10,11 pF|PARI A 10,11 pF AL METRO|"
         "CAPACITA' ALLA FREQUENZA DI LAVORO = 11,40 pF|REATTANZA = -517,0 Ohm|"
         "INDUTTANZA DI ACCORDO = 3,05 uH|RISONANZA PROPRIA = 72,11 MHz|LUNGHEZZA 1 mt.|"
         "C 11,40 pF");
  const auto beyond = [](const std::string& resonance) {
    return "OLTRE LA RISONANZA PROPRIA (" + resonance + " MHz) L'ANTENNA NON E' PIU' UNA CAPACITA'";
  };
  expect_refusal("10|30|7.5", "txtfrequenza", beyond("7,21"), notice);
  expect_refusal("10|30|20", "txtfrequenza", beyond("7,21"), notice);
  expect_refusal("10|501|20", "txtdiametro",
                 "ANTENNA TROPPO GROSSA: LA LUNGHEZZA DEVE ESSERE ALMENO 20 DIAMETRI");
  expect_refusal("10|501|0.001", "txtfrequenza", "VALORI AMMESSI: DA 0.01 A 3000");
}

using frmantcollineare = FormTest;

TEST_F(frmantcollineare, OfOneAndTwoHalfWaves) {
  use("mnucollineare", "Option1 txtfrequenza txtdiametro",
      "lblbase lblmezzaonda lblstub lblspazio lblradiali lblaltezza lblimpedenza lbltratto "
      "lblguadagno lbldisA lbldisB lbldisD lbldisS lbldisR");
  expect("0|145|4",
         "A  ELEMENTO DI BASE = 51,7 cm.|B  ELEMENTO DI 1/2 LAMBDA = 103,4 cm.|"
         "D  STUB IN CORTO = 49,3 cm.|S  LARGHEZZA DELLO STUB = 4,1 cm.|R  N. 4 RADIALI = 51,7 cm.|"
         "ALTEZZA TOTALE = 159,2 cm.|IMPEDENZA ALLA BASE = 116 Ohm|"
         "TRATTO DI 1/4 LAMBDA IN RG 59 O RG 11 (75 Ohm) = 34,1 cm.|GUADAGNO CIRCA 2,7 dBi|"
         "A 51,7 cm.|B 103,4 cm.|D 49,3 cm.|S 4,1 cm.|R 51,7 cm.");
  expect("1|433.5|2",
         "A  ELEMENTO DI BASE = 17,3 cm.|B  ELEMENTO DI 1/2 LAMBDA = 34,6 cm.|"
         "D  STUB IN CORTO = 16,8 cm.|S  LARGHEZZA DELLO STUB = 1,4 cm.|R  N. 4 RADIALI = 17,3 cm.|"
         "ALTEZZA TOTALE = 89,2 cm.|IMPEDENZA ALLA BASE = 190 Ohm|"
         "TRATTO DI 1/4 LAMBDA IN RG 62 (93 Ohm) = 14,5 cm.|GUADAGNO CIRCA 3,6 dBi|"
         "A 17,3 cm.|B 34,6 cm.|D 16,8 cm.|S 1,4 cm.|R 17,3 cm.");
  window.click("Option1_0");
  EXPECT_EQ(results(), "|||||||||A|B|D|S|R");
}

// What the message tells is admitted, the next hundredth beyond is not.
TEST_F(frmantcollineare, TellsTheDiametersThatSuit) {
  use("mnucollineare", "txtfrequenza txtdiametro", "lblradiali");
  for (const char* unsuitable : {"145|12", "145|8.28", "145|0.62"}) {
    expect_refusal(unsuitable, "txtdiametro", suitable("0,63 A 8,27"), notice);
  }
  for (const char* just : {"145|8.27", "145|0.63"}) {
    expect(just, "R  N. 4 RADIALI = 51,7 cm.");
  }
  expect_refusal("27|12", "txtfrequenza", "VALORI AMMESSI: DA 28 A 1300");
  expect_refusal("27|-1", "txtdiametro");
}

using frmantennaJ = FormTest;

TEST_F(frmantennaJ, IsOpenBelow) {
  use("mnujaperta", "txtfrequenza txtdiametro", "lbla lblb lbls lblz lbldisA lbldisB lbldisS");
  expect("145|4",
         "A  CONDUTTORE LUNGO = 143,9 cm.|B  CONDUTTORE CORTO = 45,8 cm.|S  INTERASSE = 12,2 cm.|"
         "IMPEDENZA DEL TRATTO A DUE FILI = 493 Ohm|A 143,9 cm.|B 45,8 cm.|S 12,2 cm.");
  expect_edits_leave("||||A|B|S", "145|4");
  expect("28.5|2",
         "A  CONDUTTORE LUNGO = 751,4 cm.|B  CONDUTTORE CORTO = 242,6 cm.|S  INTERASSE = 41,5 cm.|"
         "IMPEDENZA DEL TRATTO A DUE FILI = 723 Ohm|A 751,4 cm.|B 242,6 cm.|S 41,5 cm.");
  expect_refusal("145|30", "txtdiametro", suitable("0,21 A 20,67"), notice);
  expect_refusal("9.9|30", "txtfrequenza", "VALORI AMMESSI: DA 10 A 1300");
}

using frmantJincorto = FormTest;

TEST_F(frmantJincorto, IsTappedAboveTheShort) {
  use("mnujincorto", "txtfrequenza txtdiametro",
      "lbla lblb lbls lblp lbldisA lbldisB lbldisS lbldisP");
  expect("145|10",
         "A  CONDUTTORE LUNGO = 147,6 cm.|B  CONDUTTORE CORTO = 50,9 cm.|S  INTERASSE = 4,1 cm.|"
         "P  PRESA DEL CAVO DAL CORTO = 4,0 cm.|A 147,6 cm.|B 50,9 cm.|S 4,1 cm.|P 4,0 cm.");
  expect("433.5|4",
         "A  CONDUTTORE LUNGO = 49,2 cm.|B  CONDUTTORE CORTO = 17,0 cm.|S  INTERASSE = 1,5 cm.|"
         "P  PRESA DEL CAVO DAL CORTO = 1,4 cm.|A 49,2 cm.|B 17,0 cm.|S 1,5 cm.|P 1,4 cm.");
  expect_refusal("50.15|0.5", "txtdiametro", suitable("1,20 A 59,77"), notice);
}

using frmantennagap = FormTest;

TEST_F(frmantennagap, IsALoopWithACut) {
  use("mnuslimjim", "txtfrequenza txtdiametro",
      "lbla lblb lblg lblc lbls lblp lbldisA lbldisB lbldisG lbldisC lbldisS lbldisP");
  expect("145|5",
         "A  LUNGHEZZA TOTALE = 148,4 cm.|B  TRATTO SOTTO IL TAGLIO = 51,7 cm.|G  TAGLIO = 2,6 cm.|"
         "C  TRATTO SOPRA IL TAGLIO = 94,2 cm.|S  INTERASSE = 1,9 cm.|"
         "P  PRESA DEL CAVO DAL FONDO = 4,4 cm.|A 148,4 cm.|B 51,7 cm.|G 2,6 cm.|C 94,2 cm.|"
         "S 1,9 cm.|P 4,4 cm.");
  expect("433.5|2",
         "A  LUNGHEZZA TOTALE = 49,3 cm.|B  TRATTO SOTTO IL TAGLIO = 17,3 cm.|G  TAGLIO = 0,9 cm.|"
         "C  TRATTO SOPRA IL TAGLIO = 31,2 cm.|S  INTERASSE = 0,7 cm.|"
         "P  PRESA DEL CAVO DAL FONDO = 1,5 cm.|A 49,3 cm.|B 17,3 cm.|G 0,9 cm.|C 31,2 cm.|"
         "S 0,7 cm.|P 1,5 cm.");
  expect_refusal("|5", "txtfrequenza");
  expect_refusal("145|17", "txtdiametro", suitable("0,63 A 16,54"), notice);
}

using frmgpgamma = FormTest;

TEST_F(frmgpgamma, MatchesByRodAndCapacitor) {
  use("mnugpgamma", "txtfrequenza txtdiametro",
      "lblradiatore lblradiali lblgamma lblspazio lblasta lblcond lblcavo lbldisA lbldisR lbldisP "
      "lbldisS lbldisC");
  expect("145|6",
         "A  RADIATORE = 48,8 cm.|R  N. 4 RADIALI = 51,7 cm.|P  ASTA DEL GAMMA = 8,4 cm.|"
         "S  INTERASSE = 2,2 cm.|DIAMETRO DELL'ASTA = 2,0 mm|CONDENSATORE = 7,7 pF|"
         "OPPURE 7,3 cm. DI RG 213 APERTO IN PUNTA|A 48,8 cm.|R 51,7 cm.|P 8,4 cm.|S 2,2 cm.|"
         "C 7,7 pF");
  expect("28.5|20",
         "A  RADIATORE = 249,7 cm.|R  N. 4 RADIALI = 263,0 cm.|P  ASTA DEL GAMMA = 40,3 cm.|"
         "S  INTERASSE = 9,3 cm.|DIAMETRO DELL'ASTA = 6,7 mm|CONDENSATORE = 38,3 pF|"
         "OPPURE 36,5 cm. DI RG 213 APERTO IN PUNTA|A 249,7 cm.|R 263,0 cm.|P 40,3 cm.|S 9,3 cm.|"
         "C 38,3 pF");
  expect_refusal("145|0", "txtdiametro");
  expect_refusal("145|1", "txtdiametro", suitable("1,04 A 16,54"), notice);
}

using frmantDL7PE = FormTest;

TEST_F(frmantDL7PE, FromTubeToChoke) {
  use("mnudl7pe", "txtfrequenza txtdiametro txtbobina",
      "lbltubo lblcapacita lblinduttanza lblspire lblfilo lblcontrappeso lblchoke lblresistenza "
      "lbladatta lbldistubo lbldisind lbldiscontr lbldischoke");
  expect("7.05|40|40",
         "TUBO RADIANTE = 66,7 cm.|CAPACITA' DEL TUBO = 13,0 pF|INDUTTANZA = 39,21 uH|"
         "BOBINA : 39 SPIRE SU 42,3 mm|FILO DA 0,65 mm, PASSO 1,08 mm|"
         "CONTRAPPESO (CAVO FINO AL CHOKE) = 9,99 mt.|"
         "CHOKE : 18 SPIRE DI RG 58 SU TUBO DA 100 mm|"
         "RESISTENZA ALL'INGRESSO CIRCA 23,2 Ohm - ROS 2,2|"
         "PER ROS 1 : BOBINA DI 38,64 uH E 1,05 uH TRA CENTRALE E CALZA|"
         "TUBO 66,7 cm.|L 39,21 uH|CONTRAPPESO 9,99 mt.|CHOKE 18 SPIRE");
  expect_edits_leave("|||||||||TUBO|L|CONTRAPPESO|CHOKE", "7.05|40|40");
  expect("14.2|30|32",
         "TUBO RADIANTE = 33,1 cm.|CAPACITA' DEL TUBO = 7,5 pF|INDUTTANZA = 16,65 uH|"
         "BOBINA : 28 SPIRE SU 32,2 mm|FILO DA 0,69 mm, PASSO 1,15 mm|"
         "CONTRAPPESO (CAVO FINO AL CHOKE) = 4,96 mt.|"
         "CHOKE : 11 SPIRE DI RG 58 SU TUBO DA 100 mm|"
         "RESISTENZA ALL'INGRESSO CIRCA 21,9 Ohm - ROS 2,3|"
         "PER ROS 1 : BOBINA DI 16,37 uH E 0,50 uH TRA CENTRALE E CALZA|"
         "TUBO 33,1 cm.|L 16,65 uH|CONTRAPPESO 4,96 mt.|CHOKE 11 SPIRE");
}

TEST_F(frmantDL7PE, RefusesInOrder) {
  use("mnudl7pe", "txtfrequenza txtdiametro txtbobina", "lbltubo");
  expect_refusal("50|20|30", "txtfrequenza", "VALORI AMMESSI: DA 1.8 A 30");
  expect_refusal("7.05|200|1001", "txtbobina", "VALORI AMMESSI: DA 1 A 1000");
  // 666.67 mm over 150 and over 6
  const char* const limits = "DIAMETRO DEL TUBO ADATTO A QUESTA FREQUENZA : DA 4,5 A 111,1 mm";
  for (const char* unsuitable : {"7.05|4.4|40", "7.05|111.2|40"}) {
    expect_refusal(unsuitable, "txtdiametro", limits, notice);
  }
  expect("7.05|111.1|40", "TUBO RADIANTE = 66,7 cm.");
  expect_refusal("7.05|40|10", "txtbobina", thin_wire, notice);
}

}  // namespace
}  // namespace eterlab::test
