#include "support/form_test.h"
#include "ui/label.h"

// The windows of matching sections, baluns and electrical lengths. The formulas are tested by chain
// matrices and the like in matching_line_formulas_test.cpp.

namespace eterlab::test {
namespace {

const std::string notice = "MESSAGGIO DI AVVISO";

using frmadattatori = FormTest;

TEST_F(frmadattatori, QuarterWave) {
  use("mnuadattatori", "Option1 txtfrequenza txtr txtx txtz0 txtzs txtvelocita",
      "lblimpedenza lbldistanza lbllunghezza lblcavo lblros lblbanda lblt lblz lbld");
  EXPECT_EQ(window.text("txtvelocita"), "0.66");
  expect("0|14.2|112||50||0.66",
         "IMPEDENZA DEL TRATTO = 74,8 Ohm||LUNGHEZZA DEL TRATTO = 348,4 cm. (90,0 GRADI)|"
         "CAVO PIU' VICINO : 75 Ohm|ROS CON QUESTO CAVO = 1,00|"
         "BANDA CON ROS SOTTO 1,5 : DA 9,54 A 18,86 MHz|348,4 cm.|74,8 Ohm|");
  expect("0|7.1|75||50||0.66",
         "IMPEDENZA DEL TRATTO = 61,2 Ohm||LUNGHEZZA DEL TRATTO = 696,7 cm. (90,0 GRADI)|"
         "NESSUN CAVO ADATTO: COSTRUIRE IL TRATTO CON TUBI||"
         "BANDA CON ROS SOTTO 1,5 : DA 3,55 A 10,65 MHz|696,7 cm.|61,2 Ohm|");
  expect_refusal("0|14.2|50||50||0.66", "txtr", "L'ANTENNA E' GIA' ADATTATA ALLA LINEA", notice);
  expect_refusal("0|14.2|112||50||1.01", "txtvelocita", "VALORI AMMESSI: DA 0.3 A 1");
}

TEST_F(frmadattatori, SeriesSectionAndStubs) {
  use("mnuadattatori", "Option1 txtfrequenza txtr txtx txtz0 txtzs txtvelocita",
      "lbldistanza lbllunghezza lblros lblbanda lblt lbld");
  expect("1|28.5|36|0|50|75|0.79",
         "DISTANZA DALL'ANTENNA = 282,7 cm. (122,5 GRADI)|"
         "LUNGHEZZA DELLA SEZIONE = 53,8 cm. (23,3 GRADI)|ROS SENZA ADATTATORE = 1,39|"
         "BANDA CON ROS SOTTO 1,5 : DA 18,72 A 35,43 MHz|53,8 cm.|282,7 cm.");
  expect("2|145|28|-15|50|50|0.66",
         "DISTANZA DALL'ANTENNA = 63,4 cm. (167,4 GRADI)|"
         "LUNGHEZZA DELLO STUB = 20,7 cm. (54,6 GRADI)|ROS SENZA ADATTATORE = 2,01|"
         "BANDA CON ROS SOTTO 1,5 : DA 134,18 A 158,09 MHz|20,7 cm.|63,4 cm.");
  expect_refusal("1|145|100|0|50|60|0.66", "txtzs",
                 "LA SEZIONE DEVE ESSERE MINORE DI 35,3 O MAGGIORE DI 70,8 Ohm");
  // Both limits themselves are taken.
  for (const std::string_view section : {"35.3", "70.8"}) {
    enter("1|145|100|0|50|" + std::string{section} + "|0.66");
    EXPECT_NE(window.text("lbllunghezza"), "") << section;
  }
  expect_refusal("3|145|100|-10001|50|60|0.66", "txtx", "VALORI AMMESSI: DA -10000 A 10000");
  expect_refusal("2|145|100|||60|0.66", "txtz0");
}

TEST_F(frmadattatori, AHiddenReactanceIsNone) {
  use("mnuadattatori", "Option1 txtfrequenza txtr txtx txtz0 txtzs txtvelocita", "lblimpedenza");
  enter("3|14.2|112|-99999|50|75|0.66");
  boxes();
  window.click("Option1_0");
  window.press(Qt::Key_Return);
  EXPECT_EQ(results(), "IMPEDENZA DEL TRATTO = 74,8 Ohm");
  window.click("Option1_3");
  EXPECT_EQ(window.text("txtx lblimpedenza"), "-99999|");
}

using frmesempiadattatori = FormTest;

TEST_F(frmesempiadattatori, LengthsAsOneTypes) {
  use("mnuesempiadattatori", "txtfrequenza txtvelocita",
      "lbllunghezza_0 lbllunghezza_3 lbllunghezza_4 lbllunghezza_5 lbllunghezza_8 lbllunghezza_9");
  expect("145|0.66", "34,1 cm.|34,1 cm.|46,4 + 8,8 cm.|11,1 + 11,1 cm.|102,3 cm.|34,1 cm.");
  expect("14.2|0.82",
         "432,8 cm.|432,8 cm.|589,0 + 112,2 cm.|141,1 + 141,1 cm.|1.298,4 cm.|432,8 cm.");
  expect("0|0.66", "|||||");
  expect("145|1.1", "|||||");
  // As published: Z^2 / R, two or more of them in parallel.
  EXPECT_EQ(window.text("lblzin_0 lblzin_1 lblzin_2 lblzin_3 lblzin_4 lblzin_5 lblzin_6 lblzin_7 "
                        "lblzin_8 lblzin_9"),
            "50,2 Ohm|50,2 Ohm|50,0 Ohm|50,0 Ohm|50,0 Ohm|50,0 Ohm|75,0 Ohm|50,0 Ohm|56,3 Ohm|"
            "50,0 Ohm");
  EXPECT_EQ(window.text("lblros_0 lblros_4 lblros_5 lblros_6 lblros_8 lblros_9"),
            "1,00|1,00|1,00|1,00|1,13|1,00");
  // What no input changes is not dimmed by one.
  for (const char* cell : {"lblcaso_0", "lbltratto_9", "lblros_8"}) {
    EXPECT_TRUE(window.window().findChild<ui::Label*>(cell)->is_fresh_result()) << cell;
  }
}

using frmtrasformatubi = FormTest;

TEST_F(frmtrasformatubi, TubesOfEachForm) {
  use("mnutrasformatubi", "Option1 txtfrequenza txtzantenna txtzlinea txtdiametro txtvelocita",
      "lblimpedenza lblmisura lblrapporto lbllunghezza lblgrande lblpiccolo");
  expect("0|50.15|450|50|12|0.975",
         "IMPEDENZA DEL TRATTO = 150,0 Ohm|INTERASSE DEI TUBI = 22,7 mm|RAPPORTO D/d = 1,89|"
         "LUNGHEZZA DEL TRATTO = 145,7 cm.|22,7 mm|12,0 mm");
  expect("1|145|50|25|16|1",
         "IMPEDENZA DEL TRATTO = 35,4 Ohm|DIAMETRO DEL TUBO INTERNO = 8,9 mm|RAPPORTO D/d = 1,80|"
         "LUNGHEZZA DEL TRATTO = 51,7 cm.|16,0 mm|8,9 mm");
  expect("2|432|50|25|20|1",
         "IMPEDENZA DEL TRATTO = 35,4 Ohm|DIAMETRO DEL TUBO INTERNO = 12,0 mm|"
         "RAPPORTO D/d = 1,67|LUNGHEZZA DEL TRATTO = 17,3 cm.|20,0 mm|12,0 mm");
  const std::string too_near = "TUBI TROPPO VICINI: USARE TUBI PIU' GROSSI O COASSIALI";
  const std::string too_thick =
      "TUBO INTERNO TROPPO GROSSO: AUMENTARE LE IMPEDENZE O IL TUBO ESTERNO";
  const std::string too_large = "MISURE TROPPO GRANDI PER LA FREQUENZA: USARE TUBI PIU' SOTTILI";
  expect_refusal("0|145|50|28|10|0.975", "txtdiametro", too_near);
  expect_refusal("0|145|10000|10000|10|1", "txtdiametro", too_large);
  expect_refusal("1|145|300|300|16|1", "txtdiametro",
                 "TUBO INTERNO TROPPO SOTTILE: USARE I TUBI PARALLELI");
  expect_refusal("1|145|5|5|16|1", "txtdiametro", too_thick);
  expect_refusal("2|145|25|25|16|1", "txtdiametro", too_thick);  // d / D 0.711
  expect_refusal("2|1296|50|50|40|1", "txtdiametro", too_large);
}

using frmhairpin = FormTest;

TEST_F(frmhairpin, Hairpins) {
  use("mnuhairpin", "txtfrequenza txtr txtz0 txtradiatore txtdiametro txtdistanza",
      "lblxc lblxl lblinduttanza lblimpedenza lbllunghezza lblaccorciamento lblasse");
  expect("14.15|25|50|25|6|50",
         "REATTANZA DEL RADIATORE ACCORCIATO = -25,0 Ohm|REATTANZA DELL'HAIRPIN = 50,0 Ohm|"
         "INDUTTANZA EQUIVALENTE = 0,562 uH|IMPEDENZA DELLA FORCELLA = 336,9 Ohm|"
         "LUNGHEZZA DELLA FORCELLA = 48,3 cm.|"
         "ACCORCIARE IL RADIATORE DI CIRCA 12,2 cm. PER PARTE|50 mm");
  expect("145|28|50|6|3|20",
         "REATTANZA DEL RADIATORE ACCORCIATO = -24,8 Ohm|REATTANZA DELL'HAIRPIN = 56,4 Ohm|"
         "INDUTTANZA EQUIVALENTE = 0,062 uH|IMPEDENZA DELLA FORCELLA = 309,9 Ohm|"
         "LUNGHEZZA DELLA FORCELLA = 5,4 cm.|"
         "ACCORCIARE IL RADIATORE DI CIRCA 1,4 cm. PER PARTE|20 mm");
  expect_refusal("14.15|75|50|25|6|50", "txtr",
                 "LA RESISTENZA DEVE ESSERE MINORE DELL'IMPEDENZA DEL CAVO");
  expect_refusal("14.15|47.6|50|25|6|50", "txtr", "RADIATORE GIA' ADATTATO: L'HAIRPIN NON SERVE",
                 notice);
  enter("14.15|63.46|66.8|25|6|50");  // 0.95 times the cable's, whose double is less
  EXPECT_EQ(boxes(), Boxes{});
  // A fiftieth and a twentieth of 2067.5 mm
  expect_refusal("145|28|50|42|3|20", "txtradiatore", "RADIATORE TROPPO GROSSO: MASSIMO 41 mm");
  expect_refusal("145|28|50|6|3|104", "txtdistanza", "LA DISTANZA NON DEVE SUPERARE 103 mm");
  expect_refusal("145|28|50|6|3|4.4", "txtdistanza",
                 "LA DISTANZA DEVE ESSERE ALMENO 1,5 VOLTE IL DIAMETRO");
  expect_refusal("145|1|50|6|3|50", "txtdistanza",
                 "FORCELLA TROPPO CORTA: RIDURRE LA DISTANZA TRA GLI ASSI");
}

using frmBalunUnUn = FormTest;

TEST_F(frmBalunUnUn, TurnsOnTheChosenCore) {
  use("mnubaluneUnUn4", "Option1 txtfrequenza txtz0 txtpotenza",
      "lblspire lblinduttanza lblreattanza lblros lblinduzione lblfilo lblimpedenze lbln");
  expect_refusal("2|3.5|50|100", "cmbnucleo", "SCEGLIERE UN NUCLEO");
  expect_refusal("2|||", "cmbnucleo", "SCEGLIERE UN NUCLEO");
  window.pick("cmbnucleo", 4);
  EXPECT_EQ(window.text("cmbnucleo"), "FT-240-43");
  expect("0|1.8|50|500",
         "SPIRE = 12 BIFILARI|INDUTTANZA DI OGNI FILO = 154,8 uH|"
         "IMPEDENZA DI OGNI FILO ALLA FREQUENZA MINIMA = 1.667 Ohm|"
         "ROS AGGIUNTO ALLA FREQUENZA MINIMA = 1,03|INDUZIONE = 10,4 mT  (AMMESSI 11,2 mT)|"
         "FILO SMALTATO FINO A 2,0 mm  -  OGNI FILO 81 cm.|"
         "DA 50 A 50 Ohm  -  IMPEDENZA DEI FILI AFFIANCATI 50 Ohm|12 SPIRE");
  enter("1|1.8|50|500");
  EXPECT_EQ(window.text("lblspire lblimpedenze"),
            "2 NUCLEI, SU OGNUNO 12 BIFILARI|"
            "DA 50 A 200 Ohm  -  IMPEDENZA DEI FILI AFFIANCATI 100 Ohm");
  window.pick("cmbnucleo", 3);
  EXPECT_EQ(window.text("lblspire lbln"), "|");
  expect("3|3.5|50|100",
         "SPIRE = 8 TRIFILARI|INDUTTANZA DI OGNI FILO = 56,6 uH|"
         "IMPEDENZA DI OGNI FILO ALLA FREQUENZA MINIMA = 1.058 Ohm|"
         "ROS AGGIUNTO ALLA FREQUENZA MINIMA = 1,05|INDUZIONE = 7,2 mT  (AMMESSI 8,0 mT)|"
         "FILO SMALTATO FINO A 2,0 mm  -  OGNI FILO 47 cm.|"
         "DA 50 A 450 Ohm  -  IMPEDENZA DEI FILI AFFIANCATI 150 Ohm|8 SPIRE");
  window.pick("cmbnucleo", 5);
  EXPECT_EQ(window.text("cmbnucleo"), "FT-50-61");
  expect_refusal("2|1.8|50|1000", "cmbnucleo", "NUCLEO TROPPO PICCOLO: SCEGLIERNE UNO PIU' GRANDE",
                 notice);
}

using frmbaluninaria = FormTest;

TEST_F(frmbaluninaria, TurnsOnATube) {
  use("mnubaluninaria", "Option1 txtfrequenza txtz0 txtdiametro txtfilo",
      "lblspire lblinduttanza lblros lbllunghezza lblfilo lblfmax");
  expect("0|3.5|50|30|1.5",
         "SPIRE = 16 TRIFILARI|INDUTTANZA DI OGNI FILO = 2,92 uH|"
         "ROS AGGIUNTO ALLA FREQUENZA MINIMA = 1,21|LUNGHEZZA DELL'AVVOLGIMENTO = 72 mm|"
         "OGNI FILO = 158 cm. PIU' I TERMINALI|FREQUENZA MASSIMA CIRCA = 18,9 MHz");
  expect("1|7|50|50|2",
         "SPIRE = 13 BIFILARI|INDUTTANZA DI OGNI FILO = 5,97 uH|"
         "ROS AGGIUNTO ALLA FREQUENZA MINIMA = 1,21|LUNGHEZZA DELL'AVVOLGIMENTO = 52 mm|"
         "OGNI FILO = 212 cm. PIU' I TERMINALI|FREQUENZA MASSIMA CIRCA = 14,1 MHz");
  expect_refusal("0|3.5|50|8|3", "txtdiametro",
                 "OLTRE 100 SPIRE: AUMENTARE IL DIAMETRO DEL SUPPORTO");
  // 93 turns of 46.2 m: an eighth of a wave at 0.65 MHz
  expect_refusal("1|3.5|600|150|8", "txtdiametro",
                 "FILI TROPPO LUNGHI PER LA FREQUENZA: USARE UN NUCLEO DI FERRITE", notice);
}

using frmbalunchoke = FormTest;

TEST_F(frmbalunchoke, TurnsOfCable) {
  use("mnubalunchoke", "txtfmin txtfmax txtz0 txtcavo txtdiametro",
      "lblspire lblinduttanza lblreattanza lblcavo lbllunghezza lblrisonanza lblgiudizio");
  expect("7|14.35|50|5|110",
         "SPIRE = 10|INDUTTANZA = 12,84 uH|REATTANZA ALLA FREQUENZA MINIMA = 565 Ohm|"
         "LUNGHEZZA DEL CAVO AVVOLTO = 361 cm.|LUNGHEZZA DELL'AVVOLGIMENTO = 50 mm|"
         "AUTORISONANZA STIMATA = 17,8 MHz|COPRE TUTTA LA GAMMA RICHIESTA");
  expect("14|30|50|10.3|200",
         "SPIRE = 5|INDUTTANZA = 7,65 uH|REATTANZA ALLA FREQUENZA MINIMA = 673 Ohm|"
         "LUNGHEZZA DEL CAVO AVVOLTO = 330 cm.|LUNGHEZZA DELL'AVVOLGIMENTO = 52 mm|"
         "AUTORISONANZA STIMATA = 15,5 MHz|"
         "EFFICACE CON SICUREZZA FINO A 15,5 MHz: SOPRA AGGIUNGERE UN SECONDO CHOKE");
  expect_refusal("3.5|7|50|10.3|50", "txtdiametro",
                 "SUPPORTO TROPPO STRETTO PER IL CAVO: ALMENO 62 mm");
  expect_refusal("7|6.9|50|5|110", "txtfmax", "LA FREQUENZA MASSIMA E' MINORE DELLA MINIMA");
  expect_refusal("0.5|7|600|10|60", "txtdiametro",
                 "OLTRE 50 SPIRE: AUMENTARE IL DIAMETRO DEL SUPPORTO");
  enter("3|7|600|10|500");
  EXPECT_EQ(window.text("lblgiudizio"),
            "AUTORISONANZA SOTTO LA GAMMA: USARE UN SUPPORTO PIU' STRETTO");
}

using frmbaluncoax1quarto = FormTest;

TEST_F(frmbaluncoax1quarto, StubAndSleeve) {
  use("mnubalun1quarto", "Option1 txtfrequenza txtz0 txtcalza txtdistanza txtvelocita",
      "lbllunghezza lblimpedenza lblbanda lblquarto lblasse");
  expect("0|145|50|8|20|0.95",
         "LUNGHEZZA DELLO STUB = 49,1 cm.|IMPEDENZA DELLA LINEA ESTERNA = 178,5 Ohm|"
         "BANDA UTILE DA 87,76 A 202,24 MHz|49,1 cm.|20 mm");
  expect("1|50.15|50|3.6|5|0.58",
         "LUNGHEZZA DEL MANICOTTO = 86,7 cm.|IMPEDENZA DELLA LINEA ESTERNA = 11,4 Ohm|"
         "BANDA UTILE DA 48,69 A 51,61 MHz|86,7 cm.|5 mm");
  expect_refusal("0|145|50|8|8|0.73", "txtdistanza",
                 "LA DISTANZA DEVE ESSERE ALMENO 1,05 VOLTE LA CALZA");
  expect_refusal("1|145|50|8|8.3|0.73", "txtdistanza",
                 "IL MANICOTTO DEVE ESSERE ALMENO 1,05 VOLTE LA CALZA");
  expect_refusal("1|145|50|8|207|0.73", "txtdistanza",
                 "MISURE TROPPO GRANDI PER LA FREQUENZA: MASSIMO 206 mm");
  enter("0|145|50|8|8.4|0.73");  // 1.05 times 8 is 8.4000000000000004
  EXPECT_NE(window.text("lblbanda"), "");
}

using frmbaluncoax3quarti = FormTest;

TEST_F(frmbaluncoax3quarti, NearestCables) {
  use("mnubalun3quarti", "txtfrequenza txtr txtz0 txtvelocita",
      "lblimpedenza lblcavo lblzin lblros lblcorto lbllungo");
  expect("145|50|50|0.66",
         "IMPEDENZA IDEALE DEI DUE CAVI = 50,0 Ohm|CAVO PIU' VICINO : 50 Ohm|"
         "IMPEDENZA ALL'INGRESSO = 50,0 Ohm|ROS SULLA LINEA = 1,00|"
         "CAVO CORTO 1/4 D'ONDA = 34,1 cm.|CAVO LUNGO 3/4 D'ONDA = 102,3 cm.");
  expect("14.2|112|50|0.66",
         "IMPEDENZA IDEALE DEI DUE CAVI = 74,8 Ohm|CAVO PIU' VICINO : 75 Ohm|"
         "IMPEDENZA ALL'INGRESSO = 50,2 Ohm|ROS SULLA LINEA = 1,00|"
         "CAVO CORTO 1/4 D'ONDA = 348,4 cm.|CAVO LUNGO 3/4 D'ONDA = 1.045,1 cm.");
  expect_refusal("14.2|100|50|", "txtvelocita");
  // 93 ohm make 28.8 ohm of 300
  enter("14.2|300|50|0.66");
  EXPECT_NE(window.text("lblros"), "");
  expect_refusal("14.2|400|50|0.66", "txtr", "NESSUN CAVO DA 50, 75 O 93 Ohm ADATTA QUESTA ANTENNA",
                 notice);
}

using frmgradi = FormTest;

TEST_F(frmgradi, OneOfThreeFromTheOthers) {
  use("mnugradi", "Option1 txtfrequenza txtlunghezza txtgradi txtvelocita",
      "lblrisultato lblfrazione lblradianti lblritardo lblonda");
  expect("0|145|34.1||0.66",
         "GRADI ELETTRICI = 89,96|FRAZIONE D'ONDA = 0,2499 LAMBDA|RADIANTI = 1,5701|"
         "RITARDO = 1,72 ns|LUNGHEZZA D'ONDA NELLA LINEA = 136,5 cm.");
  expect("1|7.05||71|0.66",
         "LUNGHEZZA = 553,5 cm.|FRAZIONE D'ONDA = 0,1972 LAMBDA|RADIANTI = 1,2392|"
         "RITARDO = 27,97 ns|LUNGHEZZA D'ONDA NELLA LINEA = 2.806,6 cm.");
  expect("2||1064|90|1",
         "FREQUENZA = 7,0440 MHz|FRAZIONE D'ONDA = 0,2500 LAMBDA|RADIANTI = 1,5708|"
         "RITARDO = 35,49 ns|LUNGHEZZA D'ONDA NELLA LINEA = 4.256,0 cm.");
  expect_refusal("1|7.05||0|0.66", "txtgradi");
  window.click("Option1_0");
  EXPECT_EQ(window.text("txtlunghezza txtgradi lblonda"), "1064||");
}

using frmlungelettrica = FormTest;

TEST_F(frmlungelettrica, CutsNotBelowTheLength) {
  use("mnulunghezza", "txtfrequenza txtlunghezza txtvelocita",
      "lblelettrica lblonde lblritardo lblmezze lblquarti lblonda");
  expect("14.1|18.5|0.66",
         "LUNGHEZZA ELETTRICA = 28,030 mt.|PARI A 1,318 LAMBDA  -  474,6 GRADI|"
         "RITARDO = 93,50 ns|TAGLIO A MEZZE ONDE : 3 x 1/2 = 21,049 mt.|"
         "TAGLIO A QUARTI D'ONDA DISPARI : 7 x 1/4 = 24,557 mt.|"
         "1/4 = 3,508 mt.  -  1/2 = 7,016 mt.  -  1 LAMBDA = 14,033 mt.");
  expect("145|10|0.82",
         "LUNGHEZZA ELETTRICA = 12,195 mt.|PARI A 5,898 LAMBDA  -  2.123,4 GRADI|"
         "RITARDO = 40,68 ns|TAGLIO A MEZZE ONDE : 12 x 1/2 = 10,172 mt.|"
         "TAGLIO A QUARTI D'ONDA DISPARI : 25 x 1/4 = 10,596 mt.|"
         "1/4 = 0,424 mt.  -  1/2 = 0,848 mt.  -  1 LAMBDA = 1,695 mt.");
  expect_refusal("14.1|0|0.66", "txtlunghezza");
  // A whole wave of 2.99792458 m needs no further half; much less than a quarter takes one.
  for (const auto& [typed, cuts] :
       {std::pair{"100|2.99792458|1",
                  "TAGLIO A MEZZE ONDE : 2 x 1/2 = 2,998 mt.|"
                  "TAGLIO A QUARTI D'ONDA DISPARI : 5 x 1/4 = 3,747 mt."},
        {"100|0.001|1",
         "TAGLIO A MEZZE ONDE : 1 x 1/2 = 1,499 mt.|"
         "TAGLIO A QUARTI D'ONDA DISPARI : 1 x 1/4 = 0,749 mt."}}) {
    enter(typed);
    EXPECT_EQ(window.text("lblmezze lblquarti"), cuts);
  }
}

}  // namespace
}  // namespace eterlab::test
