#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>
#include <utility>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

const std::string notice = "MESSAGGIO DI AVVISO";

using frmloop = FormTest;

TEST_F(frmloop, TunesALoop) {
  use("LoopAnt", "Option1 Option2 txtfrequenza txtlunghezza txttubo txtpotenza",
      "lblmisura lblinduttanza lblcondensatore lblresradiazione lblresperdita lblrendimento "
      "lblfattoreq lblbanda lbltensione lblcorrente lblaccoppiamento");
  expect("0|0|14.2|3.14|22|100",
         "DIAMETRO = 1,00 mt.|INDUTTANZA = 2,45 uH|CONDENSATORE = 47,6 pF|"
         "RESISTENZA DI RADIAZIONE = 0,0981 Ohm|RESISTENZA DI PERDITA = 0,0416 Ohm|"
         "RENDIMENTO = 70,2 %  ( -1,5 dB )|Q = 1.454|BANDA CON ROS ENTRO 2 = 6,9 kHz|"
         "TENSIONE DI PICCO SUL CONDENSATORE = 7.964 V|CORRENTE NEL LOOP = 26,8 A|"
         "SPIRA DI ACCOPPIAMENTO = cm. 63");
  expect("2|1|7.1|8|16|50",
         "LATO = 2,00 mt.|INDUTTANZA = 7,60 uH|CONDENSATORE = 58,1 pF|"
         "RESISTENZA DI RADIAZIONE = 0,167 Ohm|RESISTENZA DI PERDITA = 0,135 Ohm|"
         "RENDIMENTO = 55,3 %  ( -2,6 dB )|Q = 1.001|BANDA CON ROS ENTRO 2 = 5,0 kHz|"
         "TENSIONE DI PICCO SUL CONDENSATORE = 5.815 V|CORRENTE NEL LOOP = 12,9 A|"
         "SPIRA DI ACCOPPIAMENTO = cm. 160");
  enter("1|0|7.1|8|16|50");
  EXPECT_EQ(window.text("lblmisura"), "LATO = 1,00 mt.");
  window.click("Option2_0");  // chosen already
  EXPECT_EQ(results(), "||||||||||");
  EXPECT_EQ(window.text("txtlunghezza"), "8");
}

TEST_F(frmloop, RefusesWhatIsNoSmallLoop) {
  use("LoopAnt", "txtfrequenza txtlunghezza txttubo txtpotenza", "lblinduttanza");
  expect_refusal("21.2|4|22|100", "txtlunghezza",
                 "IL CONDUTTORE SUPERA UN QUARTO DI LUNGHEZZA D'ONDA: ACCORCIARLO", notice);
  expect_refusal("1|2.9|22|100", "txtlunghezza",
                 "IL CONDUTTORE E' PIU' CORTO DI UN CENTESIMO DI LUNGHEZZA D'ONDA: ALLUNGARLO",
                 notice);
  const char* const tube = "IL DIAMETRO DEL TUBO VA DA 1 mm A 1/40 DELLA LUNGHEZZA DEL CONDUTTORE";
  expect_refusal("100|0.58|0.99|10", "txttubo", tube);
  expect_refusal("100|0.58|14.6|10", "txttubo", tube);
  expect_refusal("100|0.58|14.6|0.09", "txtpotenza", "VALORI AMMESSI: DA 0.1 A 10000");
  enter("100|0.58|14.5|10");  // 25 times 0.58 is 14.499999999999998
  EXPECT_EQ(window.text("lblinduttanza"), "INDUTTANZA = 0,30 uH");
}

TEST_F(frmloop, OpensItsPagesOverItself) {
  use("LoopAnt", "txtfrequenza txtlunghezza txttubo txtpotenza", "lblinduttanza");
  enter("14.2|3.14|22|100");
  for (const auto& [button, page] : {std::pair{"cmdchiamacondensatore", "frmhelpcondensatore"},
                                     {"cmdchiamainfo", "frminfoloop"}}) {
    const QPoint corner = window.window().pos();
    window.click(button);
    ASSERT_TRUE(is_open(page));
    EXPECT_TRUE(driven(page).window().isModal());
    driven(page).click("cmdchiudi");
    settle();
    EXPECT_FALSE(is_open(page));
    EXPECT_EQ(window.window().pos(), corner);
    EXPECT_EQ(window.text("txtfrequenza lblinduttanza"), "14.2|INDUTTANZA = 2,45 uH");
  }
}

/// A row of a table whose cells have these names.
std::string row(const Driven& page, std::initializer_list<const char*> columns, int row) {
  std::string names;
  for (const char* column : columns) {
    names += std::string{names.empty() ? "" : " "} + column + "_" + std::to_string(row);
  }
  return page.text(names);
}

TEST_F(frmloop, PagesTellExamplesAndCapacitors) {
  open("frminfoloop");
  const char* const examples[] = {
      "2,00|3,6|0,08|333|13|-9,0|1|8,1",   "2,00|7,1|0,15|81|63|-2,0|3|8,9",
      "2,00|10,12|0,21|36|86|-0,6|11|7,0", "1,00|7,1|0,07|201|16|-7,9|2|7,9",
      "1,00|10,12|0,11|97|41|-3,9|3|8,7",  "1,00|14,2|0,15|48|70|-1,5|7|8,0",
      "1,00|18,12|0,19|28|85|-0,7|16|6,7", "1,00|21,2|0,22|19|91|-0,4|29|5,8",
      "0,64|28,5|0,19|20|88|-0,6|28|6,0"};
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(row(driven("frminfoloop"),
                  {"lbldiametro", "lblfrequenza", "lblperimetro", "lblcondensatore",
                   "lblrendimento", "lbldb", "lblbanda", "lbltensione"},
                  i),
              examples[i]);
  }
  open("frmhelpcondensatore");
  const Driven page = driven("frmhelpcondensatore");
  const char* const cables[] = {"RG 58|101|1.980", "RG 59|67|2.404", "RG 213|101|5.233",
                                "RG 142 - RG 400|96|1.980"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(row(page, {"lblcavo", "lblpf", "lblcavotensione"}, i), cables[i]);
  }
  // A uniform gap breaks down at 24.22 d + 6.08 sqrt(d) kV, d in cm: two to three times as much.
  for (int i = 0; i < 13; ++i) {
    const auto number = [&](const char* column) {
      std::string text = row(page, {column}, i);
      std::erase(text, '.');
      std::ranges::replace(text, ',', '.');
      return std::stod(text);
    };
    const double gap_cm = number("lbldistanza") / 10;
    const double breakdown_v = 1000 * (24.22 * gap_cm + 6.08 * std::sqrt(gap_cm));
    EXPECT_NEAR(breakdown_v / number("lbllaminetensione"), 2.5, 0.5) << i;
  }
}

using frmhb9cv = FormTest;

TEST_F(frmhb9cv, Dimensions) {
  use("mnuhb9cv", "txtfrequenza txtdiametro",
      "lblriflettore lbldirettore lblspaziatura lblpresarif lblpresadir lblaltezza lblaste "
      "lblcompensatore");
  expect("28.5|20",
         "RIFLETTORE = cm. 525,9|DIRETTORE = cm. 483,9|SPAZIATURA = cm. 131,5|"
         "PRESA SUL RIFLETTORE = cm. 71,0 DAL CENTRO|PRESA SUL DIRETTORE = cm. 65,7 DAL CENTRO|"
         "DISTANZA TRA GLI ASSI DI ASTE ED ELEMENTI = cm. 7,2|DIAMETRO DELLE ASTE = mm 10,0|"
         "COMPENSATORE = 90 pF");
  expect("145|8",
         "RIFLETTORE = cm. 101,5|DIRETTORE = cm. 93,4|SPAZIATURA = cm. 25,8|"
         "PRESA SUL RIFLETTORE = cm. 14,0 DAL CENTRO|PRESA SUL DIRETTORE = cm. 12,9 DAL CENTRO|"
         "DISTANZA TRA GLI ASSI DI ASTE ED ELEMENTI = cm. 2,2|DIAMETRO DELLE ASTE = mm 4,0|"
         "COMPENSATORE = 20 pF");
  expect_refusal("28.5|100", "txtdiametro",
                 "DIAMETRO ADATTO A QUESTA FREQUENZA : DA 3,16 A 63,11 mm", notice);
  expect_refusal("1001|100", "txtfrequenza", "VALORI AMMESSI: DA 1 A 1000");
}

using frmloopquadrato = FormTest;

TEST_F(frmloopquadrato, Dimensions) {
  use("mnuloopquadrato", "Option1 txtfrequenza txtdiametro",
      "lblperimetro lbllato lblbraccio lbladattatore");
  expect("0|14.2|2",
         "PERIMETRO = cm. 2.225,1|LATO = cm. 556,3|BRACCIO DELLA CROCIERA = cm. 393,3|"
         "ADATTATORE 1/4 D'ONDA IN CAVO 75 Ohm = cm. 348,4");
  expect("1|28.5|1.4",
         "PERIMETRO = cm. 1.078,5|LATO = cm. 269,6|BRACCIO DELLA CROCIERA = cm. 190,7|"
         "ADATTATORE 1/4 D'ONDA IN CAVO 75 Ohm = cm. 173,6");
  expect_refusal("0|14.2|250", "txtdiametro",
                 "DIAMETRO ADATTO A QUESTA FREQUENZA : DA 0,22 A 211,12 mm", notice);
}

using frmquad2elementi = FormTest;

TEST_F(frmquad2elementi, Dimensions) {
  use("mnuquad2", "Option1 txtfrequenza txtdiametro",
      "lblradiatore lblriflettore lblspaziatura lblbraccio lblimpedenza lbladattatore");
  expect("0|14.2|2",
         "RADIATORE : PERIMETRO cm. 2.132,5  LATO cm. 533,1|"
         "RIFLETTORE : PERIMETRO cm. 2.247,8  LATO cm. 561,9|SPAZIATURA = cm. 328,0|"
         "BRACCI DELLE CROCIERE = cm. 377,0 E cm. 397,4|IMPEDENZA CIRCA 131 Ohm|"
         "ADATTATORE 1/4 D'ONDA IN CAVO 75 Ohm = cm. 348,4");
  expect("1|28.5|1.4",
         "RADIATORE : PERIMETRO cm. 1.032,4  LATO cm. 258,1|"
         "RIFLETTORE : PERIMETRO cm. 1.090,9  LATO cm. 272,7|SPAZIATURA = cm. 165,6|"
         "BRACCI DELLE CROCIERE = cm. 182,5 E cm. 192,9|IMPEDENZA CIRCA 133 Ohm|"
         "ADATTATORE 1/4 D'ONDA IN CAVO 75 Ohm = cm. 173,6");
  expect_refusal("0|0|2", "txtfrequenza");
  // 3E-5 of 2.0676 m is 0.0620 mm.
  expect_refusal("0|145|0.06", "txtdiametro",
                 "DIAMETRO ADATTO A QUESTA FREQUENZA : DA 0,07 A 20,67 mm", notice);
}

using frmantennamoxon = FormTest;

TEST_F(frmantennamoxon, Dimensions) {
  use("mnumoxon", "Option1 txtfrequenza txtdiametro",
      "lbla lblb lblc lbld lble lblradiatore lblriflettore");
  EXPECT_EQ(results(), "A|B|C|D|E||");
  expect("0|28.5|2",
         "A = cm. 382,5|B = cm. 57,2|C = cm. 11,0|D = cm. 71,6|E = cm. 139,8|"
         "FILO DEL RADIATORE = cm. 496,8|FILO DEL RIFLETTORE = cm. 525,7");
  expect("1|50.15|1.8",
         "A = cm. 209,7|B = cm. 30,9|C = cm. 6,8|D = cm. 39,4|E = cm. 77,1|"
         "FILO DEL RADIATORE = cm. 271,4|FILO DEL RIFLETTORE = cm. 288,6");
  expect_refusal("0|145|25", "txtdiametro",
                 "DIAMETRO ADATTO A QUESTA FREQUENZA : DA 0,03 A 20,67 mm", notice);
}

/// What both EH antennas refuse; the last box is that of the coil's Q.
class EhTest : public FormTest {
 protected:
  void expect_common_refusals() {
    const char* const length = "LA LUNGHEZZA DEI CILINDRI VA DA 1 A 12 DIAMETRI";
    expect_refusal("14.2|50|40|2|200", "txtlunghezza", length);
    expect_refusal("14.2|5.1|61.3|2|200", "txtlunghezza", length);
    const char* const pitch = "IL PASSO DELLE SPIRE VA DA 0.2 mm AL DIAMETRO DEI CILINDRI";
    expect_refusal("14.2|50|157|0.19|200", "txtpasso", pitch);
    expect_refusal("14.2|50|157|51|200", "txtpasso", pitch);
    expect_refusal("144|50|157|2|200", "txtlunghezza",
                   "L'ANTENNA SUPERA UN DECIMO DI LUNGHEZZA D'ONDA: ACCORCIARE I CILINDRI", notice);
    // Twelve times 5.1 is 61.199999999999996.
    expect_refusal("1|5.1|61.2|2|200", "txtdiametro",
                   "OCCORRONO PIU' DI 300 SPIRE: USARE CILINDRI PIU' GRANDI", notice);
    expect_refusal("14.2|50|157|2|9", "txtq", "VALORI AMMESSI: DA 10 A 1000");
  }

  const char* const too_lossy_ =
      "LA BOBINA PERDE TROPPO: OCCORRONO CILINDRI PIU' GRANDI O UN Q PIU' ALTO";
};

using frmEHstar = EhTest;

TEST_F(frmEHstar, CoilAndTap) {
  use("mnuEHstar", "txtfrequenza txtdiametro txtlunghezza txtpasso txtq",
      "lblcapacita lblbobina lblspire lblpresa lblresradiazione lblrendimento lblbanda "
      "lbltensione");
  expect("14.2|50|157|2|200",
         "CAPACITA' TRA I CILINDRI = 3,73 pF|BOBINA DI SINTONIA = 20,8 uH|"
         "SPIRE = 25  LUNGHEZZA cm. 5,0|PRESA 50 Ohm = cm. 6,4 DI FILO DAL LATO FREDDO|"
         "RESISTENZA DI RADIAZIONE = 0,0629 Ohm|RENDIMENTO = 0,26 %  ( -25,9 dB )|"
         "BANDA CON ROS ENTRO 2 = 50 kHz|TENSIONE DI PICCO CON 100 WATT = 8.599 V");
  expect("7.1|110|345|2|300",
         "CAPACITA' TRA I CILINDRI = 8,21 pF|BOBINA DI SINTONIA = 33,2 uH|"
         "SPIRE = 15  LUNGHEZZA cm. 3,0|PRESA 50 Ohm = cm. 6,6 DI FILO DAL LATO FREDDO|"
         "RESISTENZA DI RADIAZIONE = 0,076 Ohm|RENDIMENTO = 0,45 %  ( -23,5 dB )|"
         "BANDA CON ROS ENTRO 2 = 17 kHz|TENSIONE DI PICCO CON 100 WATT = 9.412 V");
  expect_common_refusals();
  expect_refusal("3.65|50|157|2|10", "txtq", too_lossy_, notice);
}

using frmEH = EhTest;

TEST_F(frmEH, Network) {
  use("mnuEHmultifreq", "txtfrequenza txtdiametro txtlunghezza txtpasso txtq",
      "lblcapacita lblbobina lblspire lblcondensatore lblresradiazione lblrestotale lblfase "
      "lblrendimento lblbanda lbltensione");
  expect("14.2|50|157|2|200",
         "CAPACITA' TRA I CILINDRI = 3,73 pF|BOBINA IN SERIE = 20,9 uH|"
         "SPIRE = 25  LUNGHEZZA cm. 5,0|CONDENSATORE IN PARALLELO = 227 pF  ( E12: 220 pF )|"
         "RESISTENZA DI RADIAZIONE = 0,0629 Ohm|RESISTENZA TOTALE = 24,6 Ohm|"
         "SFASAMENTO DELLA RETE = 45  GRADI|RENDIMENTO = 0,26 %  ( -25,9 dB )|"
         "BANDA CON ROS ENTRO 2 = 50 kHz|TENSIONE DI PICCO CON 100 WATT = 8.550 V");
  expect("7.1|110|345|2|300",
         "CAPACITA' TRA I CILINDRI = 8,21 pF|BOBINA IN SERIE = 33,4 uH|"
         "SPIRE = 15  LUNGHEZZA cm. 3,0|CONDENSATORE IN PARALLELO = 623 pF  ( E12: 680 pF )|"
         "RESISTENZA DI RADIAZIONE = 0,076 Ohm|RESISTENZA TOTALE = 17,0 Ohm|"
         "SFASAMENTO DELLA RETE = 54  GRADI|RENDIMENTO = 0,45 %  ( -23,5 dB )|"
         "BANDA CON ROS ENTRO 2 = 17 kHz|TENSIONE DI PICCO CON 100 WATT = 9.353 V");
  expect_common_refusals();
  expect_refusal("3.65|50|157|2|120", "txtq", too_lossy_, notice);
}

}  // namespace
}  // namespace eterlab::test
