#include "support/form_test.h"

namespace eterlab::test {
namespace {

const std::string tail = "lblcapacita lblinduttanza lblvelocita";
const std::string notice = "MESSAGGIO DI AVVISO";

using frmbifilareaperta = FormTest;

TEST_F(frmbifilareaperta, ImpedanceOrSpacing) {
  use("mnubifilareaperta", "Option1 txtdiametro txtinput txtfattore",
      "lblrisultato lblluce lblcapacita lblinduttanza lblquota1 lblquota2");
  EXPECT_EQ(window.text("txtfattore"), "1");
  expect("0|2|100|1",
         "IMPEDENZA = 552,2 Ohm|SPAZIO LIBERO TRA I FILI = 98,00 mm|CAPACITA' = 6,04 pF/metro|"
         "INDUTTANZA = 1,842 uH/metro|2 mm|100 mm");
  expect_refusal("0|3|3|1", "txtinput", "LA DISTANZA TRA I CENTRI DEVE SUPERARE IL DIAMETRO");
  EXPECT_EQ(results(), "||||d|D");
  expect("1|1.6|450|0.95",
         "DISTANZA TRA I CENTRI = 41,57 mm|SPAZIO LIBERO TRA I FILI = 39,97 mm|"
         "CAPACITA' = 7,80 pF/metro|INDUTTANZA = 1,580 uH/metro|1,6 mm|41,57 mm");
  // 0.01 cosh(pi 2000 / (eta0 0.97)) = 145 m, by Python.
  expect_refusal("1|0.01|2000|0.97", "txtinput",
                 "LA DISTANZA SUPERA 100 METRI: RIDURRE L'IMPEDENZA O IL DIAMETRO", notice);
}

TEST_F(frmbifilareaperta, ClickingAnOptionAsksAnew) {
  use("mnubifilareaperta", "txtdiametro txtinput", "lblrisultato lblquota2");
  const auto asked = [this] {
    return window.text("lblinput txtinput txtdiametro") + "|" +
           window.control("txtinput").toolTip().toStdString();
  };
  enter("2|100");
  window.click("Option1_0");  // chosen already
  EXPECT_EQ(asked(), "DISTANZA TRA I CENTRI in mm||2|da 0.01 a 100000");
  EXPECT_EQ(results(), "|D");
  window.click("Option1_1");
  EXPECT_EQ(asked(), "IMPEDENZA in Ohm||2|da 1 a 2000");
  expect_refusal("2|2001", "txtinput", "VALORI AMMESSI: DA 1 A 2000");
  EXPECT_EQ(window.control("txtfattore").toolTip(),
            "da 0.1 a 1: 0.95 con distanziatori, 0.9 piattina forata, 0.82 piattina");
}

using frmbifilareterra = FormTest;

TEST_F(frmbifilareterra, BalancedAndJoined) {
  use("mnubifilareterra", "txtdiametro txtdistanza txtaltezza",
      "lblimpedenza lbllibera lblcapacita lblparallelo lblquota3");
  expect("2|100|50",
         "IMPEDENZA BILANCIATA = 510,7 Ohm|SENZA IL PIANO = 552,2 Ohm  (-7,5 %)|"
         "CAPACITA' TRA I FILI = 6,53 pF/metro|I DUE FILI UNITI VERSO IL PIANO = 148,4 Ohm|50 mm");
  expect("1|25|3000",
         "IMPEDENZA BILANCIATA = 469,1 Ohm|SENZA IL PIANO = 469,1 Ohm  (0,0 %)|"
         "CAPACITA' TRA I FILI = 7,11 pF/metro|I DUE FILI UNITI VERSO IL PIANO = 445,9 Ohm|"
         "3000 mm");
  expect_refusal("2|100|3", "txtaltezza", "L'ALTEZZA DEVE ESSERE ALMENO 2 VOLTE IL DIAMETRO",
                 notice);
  expect_refusal("2|2.9|4", "txtdistanza", "LA DISTANZA DEVE ESSERE ALMENO 1,5 VOLTE IL DIAMETRO",
                 notice);
}

using frmbilanciataduepiani = FormTest;

TEST_F(frmbilanciataduepiani, Impedance) {
  use("mnubilanciataduepiani", "txtdiametro txtdistanza txtpiani txter",
      "lblimpedenza " + tail + " lblquota1 lblquota2 lblquota3");
  expect("3|15|20|1",
         "IMPEDENZA = 233,4 Ohm|CAPACITA' = 14,29 pF/metro|INDUTTANZA = 0,779 uH/metro|"
         "FATTORE DI VELOCITA' = 1,000|3 mm|15 mm|20 mm");
  expect("1|4|6|2.26",
         "IMPEDENZA = 142,1 Ohm|CAPACITA' = 35,29 pF/metro|INDUTTANZA = 0,713 uH/metro|"
         "FATTORE DI VELOCITA' = 0,665|1 mm|4 mm|6 mm");
  expect_refusal("4|5|20|1", "txtdistanza", "LA DISTANZA DEVE ESSERE ALMENO 1,5 VOLTE IL DIAMETRO",
                 notice);
  expect_refusal("4|6|5.9|1", "txtpiani",
                 "LA DISTANZA TRA I PIANI DEVE ESSERE ALMENO 1,5 VOLTE IL DIAMETRO", notice);
  enter("0.2|0.3|0.3|1");  // 1.5 times 0.2 is 0.30000000000000004
  EXPECT_NE(window.text("lblimpedenza"), "");
}

TEST_F(frmbilanciataduepiani, TheListWritesThePermittivity) {
  use("mnubilanciataduepiani", "txtdiametro txtdistanza txtpiani", "lblimpedenza");
  EXPECT_EQ(window.text("cmbdielettrico txter"), "DIELETTRICO|1");
  const char* const permittivities[] = {"1", "1.5", "2.1", "2.26", "2.55", "2.7", "4.4"};
  for (int entry = 6; entry >= 0; --entry) {
    enter("3|15|20");
    window.pick("cmbdielettrico", entry);
    EXPECT_EQ(window.text("txter lblimpedenza"), std::string{permittivities[entry]} + "|");
  }
  window.type("txter", "3");
  EXPECT_EQ(window.text("cmbdielettrico txter"), "ARIA|3");
}

using frmbilanciataschermata = FormTest;

TEST_F(frmbilanciataschermata, Impedance) {
  use("mnubilanciataschermata", "txtdiametro txtdistanza txtschermo txter",
      "lblimpedenza " + tail + " lblquota3");
  expect("2|8|16|1",
         "IMPEDENZA = 188,1 Ohm|CAPACITA' = 17,73 pF/metro|INDUTTANZA = 0,627 uH/metro|"
         "FATTORE DI VELOCITA' = 1,000|16 mm");
  expect("1|3.4|7|2.26",
         "IMPEDENZA = 114,5 Ohm|CAPACITA' = 43,78 pF/metro|INDUTTANZA = 0,574 uH/metro|"
         "FATTORE DI VELOCITA' = 0,665|7 mm");
  expect_refusal("2|2.9|16|1", "txtdistanza",
                 "LA DISTANZA DEVE ESSERE ALMENO 1,5 VOLTE IL DIAMETRO", notice);
  const char* const outside = "I FILI NON STANNO NELLO SCHERMO: AUMENTARE IL SUO DIAMETRO";
  expect_refusal("2|8|10|1", "txtschermo", outside);
  expect_refusal("0.1|0.7|0.8|1", "txtschermo", outside);  // their sum is 0.7999999999999999
  expect_refusal("2|8|10.9|1", "txtschermo",
                 "FILI TROPPO VICINI ALLO SCHERMO: AUMENTARE IL SUO DIAMETRO", notice);
}

using frmguidachiusa = FormTest;

TEST_F(frmguidachiusa, ImpedanceOrRod) {
  use("mnuguidachiusa", "Option1 txtlato txtinput txter",
      "lblrisultato lblcommerciale " + tail + " lblquota1 lblquota2");
  expect("0|20|8|1",
         "IMPEDENZA = 59,5 Ohm||CAPACITA' = 56,08 pF/metro|INDUTTANZA = 0,198 uH/metro|"
         "FATTORE DI VELOCITA' = 1,000|20 mm|8 mm");
  expect("1|21|35.4|1",
         "DIAMETRO DEL CONDUTTORE = 12,55 mm|CON IL TONDO DA 12 mm = 38,1 Ohm|"
         "CAPACITA' = 94,23 pF/metro|INDUTTANZA = 0,118 uH/metro|FATTORE DI VELOCITA' = 1,000|"
         "21 mm|12,55 mm");
  expect_refusal("0|20|20|1", "txtinput", "IL CONDUTTORE NON STA NELLA GUIDA: RIDURRE IL DIAMETRO");
  expect_refusal("0|20|18.2|1", "txtinput",
                 "CONDUTTORE TROPPO GROSSO: IL LATO DEVE ESSERE ALMENO 1,1 VOLTE IL DIAMETRO",
                 notice);
  expect_refusal("0|2001|2|1", "txtinput",
                 "CONDUTTORE TROPPO SOTTILE: IL DIAMETRO DEVE ESSERE ALMENO 1/1000 DEL LATO",
                 notice);
  // 59.958 (ln(1.078705 r) - ..) for r = 1.1 and 1000, by Python: 9.450 and 418.721.
  const char* const limits = "IMPEDENZA NON REALIZZABILE: SCEGLIERE TRA 9,5 E 418,7 Ohm";
  expect_refusal("1|20|9.4|1", "txtinput", limits, notice);
  expect_refusal("1|20|418.8|1", "txtinput", limits, notice);
}

using frmsingoladuepiani = FormTest;

TEST_F(frmsingoladuepiani, ImpedanceOrRod) {
  use("mnusingoladuepiani", "Option1 txtpiani txtinput txter",
      "lblrisultato lblcommerciale " + tail + " lblquota1 lblquota2");
  expect("0|20|10|1",
         "IMPEDENZA = 55,7 Ohm||CAPACITA' = 59,87 pF/metro|INDUTTANZA = 0,186 uH/metro|"
         "FATTORE DI VELOCITA' = 1,000|20 mm|10 mm");
  expect("1|16|50|1",
         "DIAMETRO DEL CONDUTTORE = 8,78 mm|CON IL TONDO DA 8 mm = 55,7 Ohm|"
         "CAPACITA' = 66,71 pF/metro|INDUTTANZA = 0,167 uH/metro|FATTORE DI VELOCITA' = 1,000|"
         "16 mm|8,78 mm");
  const char* const limits = "IMPEDENZA NON REALIZZABILE: SCEGLIERE TRA 15,2 E 428,6 Ohm";
  expect_refusal("1|16|600|1", "txtinput", limits, notice);
  for (const char* limit : {"1|16|15.2|1", "1|16|428.6|1"}) {  // what it tells is taken
    enter(limit);
    EXPECT_EQ(boxes(), Boxes{});
  }
  EXPECT_EQ(window.text("lblcommerciale"), "");  // 0.016 mm
  expect_refusal("0|16|16|1", "txtinput", "IL CONDUTTORE NON STA TRA I PIANI: RIDURRE IL DIAMETRO");
  expect_refusal("0|16|15|1", "txtinput",
                 "CONDUTTORE TROPPO GROSSO: LA DISTANZA DEVE ESSERE ALMENO 1,1 VOLTE IL DIAMETRO",
                 notice);
  expect_refusal("0|16|0.015|1", "txtinput",
                 "CONDUTTORE TROPPO SOTTILE: IL DIAMETRO DEVE ESSERE ALMENO 1/1000 DELLA DISTANZA",
                 notice);
}

using frmimpedenza = FormTest;

TEST_F(frmimpedenza, ImpedanceOrDiameters) {
  use("mnuimpcoassiale", "Option1 txtinput_0 txtinput_1 txter txtlunghezza",
      "lblrisultato lblcommerciale " + tail + " lblfrequenza lbltratto lblquota1 lblquota2");
  expect("0|0.9|2.95|2.26|0.5",
         "IMPEDENZA = 47,3 Ohm||CAPACITA' = 105,91 pF/metro|INDUTTANZA = 0,237 uH/metro|"
         "FATTORE DI VELOCITA' = 0,665|FREQUENZA MASSIMA = 29.678 MHz|"
         "NEL TRATTO : 53,0 pF   0,119 uH|0,9 mm|2,95 mm");
  expect("1|13|75|1|",
         "DIAMETRO DEL CONDUTTORE INTERNO = 3,72 mm|CON IL TONDO DA 4 mm = 70,7 Ohm|"
         "CAPACITA' = 44,48 pF/metro|INDUTTANZA = 0,250 uH/metro|FATTORE DI VELOCITA' = 1,000|"
         "FREQUENZA MASSIMA = 10.272 MHz||3,72 mm|13 mm");
  expect("2|6|50|1|0.52",
         "DIAMETRO INTERNO DELLO SCHERMO = 13,81 mm||CAPACITA' = 66,71 pF/metro|"
         "INDUTTANZA = 0,167 uH/metro|FATTORE DI VELOCITA' = 1,000|"
         "FREQUENZA MASSIMA = 8.669 MHz|NEL TRATTO : 34,7 pF   0,087 uH|6 mm|13,81 mm");
  expect_refusal("0|5|5|1|", "txtinput_1",
                 "LO SCHERMO DEVE ESSERE PIU' GRANDE DEL CONDUTTORE INTERNO");
  expect_refusal("1|13|440|1|", "txtinput_1",
                 "CONDUTTORE PIU' SOTTILE DI 0,01 mm: RIDURRE L'IMPEDENZA", notice);
  expect_refusal("2|6|600|1|", "txtinput_1",
                 "SCHERMO PIU' GRANDE DI 100 METRI: RIDURRE L'IMPEDENZA", notice);
  expect_refusal("2|6|50|1|200000", "txtlunghezza", "VALORI AMMESSI: DA 0.001 A 100000");
  enter("2|6|50|1|-5");  // not told
  EXPECT_EQ(window.text("lblquota2 lbltratto"), "13,81 mm|");
  // The rod of 25 mm is the nearest to 24.6, but 27 / 1.1 is thinner.
  enter("1|27|5.6|1|");
  EXPECT_EQ(window.text("lblrisultato lblcommerciale"),
            "DIAMETRO DEL CONDUTTORE INTERNO = 24,59 mm|");
  enter("1|22|5.8|1|");  // 20 mm is just that much
  EXPECT_EQ(window.text("lblcommerciale"), "CON IL TONDO DA 20 mm = 5,7 Ohm");
}

using frmstrip = FormTest;

TEST_F(frmstrip, ImpedanceOrWidth) {
  use("mnustrip", "Option1 txtdistanza txtspessore txtinput txter",
      "lblrisultato " + tail + " lblquota1 lblquota2 lblquota3");
  expect("0|1.6|0.035|5|4.4",
         "IMPEDENZA = 43,2 Ohm|CAPACITA' = 148,25 pF/metro|INDUTTANZA = 0,277 uH/metro|"
         "FATTORE DI VELOCITA' = 0,521|1,6 mm|0,035 mm|5 mm");
  expect("1|10|2|100|1",
         "LARGHEZZA DELLE STRISCE = 22,43 mm|CAPACITA' = 33,36 pF/metro|"
         "INDUTTANZA = 0,334 uH/metro|FATTORE DI VELOCITA' = 1,000|10 mm|2 mm|22,43 mm");
  expect_refusal("0|4|3|20|1", "txtspessore", "LO SPESSORE NON PUO' SUPERARE META' DELLA DISTANZA",
                 notice);
  expect_refusal("0|4|2|1.9|1", "txtinput", "LA LARGHEZZA NON PUO' ESSERE MINORE DELLO SPESSORE",
                 notice);
  for (const char* width : {"0|4|0.1|0.19|1", "0|4|0.1|201|1"}) {
    expect_refusal(width, "txtinput", "LA LARGHEZZA DEVE STARE TRA 0,05 E 50 VOLTE LA DISTANZA",
                   notice);
  }
  enter("0|0.6|0.03|0.03|1");  // 0.05 times 0.6 is 0.030000000000000002
  EXPECT_NE(window.text("lblrisultato"), "");
  // 428.837 ohm as wide as thick, 7.212 ohm at 50 times the distance, by Python.
  expect_refusal("1|0.6|0.03|428.9|1", "txtinput",
                 "IMPEDENZA NON REALIZZABILE: SCEGLIERE TRA 7,3 E 428,8 Ohm", notice);
}

using frmlineaunifilare = FormTest;

TEST_F(frmlineaunifilare, InductanceAndCapacitance) {
  for (const char* entry : {"mnucapmonofilare", "mnuindunifilare"}) {
    use(entry, "txtdiametro txtaltezza txtlunghezza",
        "lblinduttanza lblcapacita lblmetro lblimpedenza lblquota1 lblquota2 lblquota3");
    expect("2|6|20",
           "INDUTTANZA = 35,516 uH|CAPACITA' = 125,3 pF|"
           "LINEA LUNGA, PER METRO : 1,879 uH   5,92 pF|IMPEDENZA = 563,2 Ohm|2 mm|6 mt.|20 mt.");
    close("frmlineaunifilare");
  }
  use("mnuindunifilare", "txtdiametro txtaltezza txtlunghezza",
      "lblinduttanza lblcapacita lblmetro lblimpedenza");
  expect("5|0.05|3",
         "INDUTTANZA = 2,194 uH|CAPACITA' = 45,6 pF|"
         "LINEA LUNGA, PER METRO : 0,738 uH   15,08 pF|IMPEDENZA = 221,1 Ohm");
  expect_refusal("50|3|2", "txtlunghezza", "LA LUNGHEZZA DEVE ESSERE ALMENO 50 VOLTE IL DIAMETRO",
                 notice);
  expect_refusal("50|0.049|2", "txtaltezza",
                 "L'ALTEZZA DEVE ESSERE ALMENO PARI AL DIAMETRO DEL FILO");
}

using frmlineabifilare = FormTest;

TEST_F(frmlineabifilare, AsPartOrFeeder) {
  use("mnuindbifilare", "txtdiametro txtdistanza txtlunghezza txtfattore txtfrequenza",
      "lblinduttanza lblcapacita lblimpedenza lblgradi lblcorto lblaperta");
  expect("3|40|0.5|1|50",
         "INDUTTANZA = 0,656 uH   (1,313 uH/metro)|CAPACITA' = 4,2 pF   (8,48 pF/metro)|"
         "IMPEDENZA = 393,6 Ohm|LUNGHEZZA ELETTRICA = 30,0 GRADI|"
         "CHIUSA IN CORTO : XL = 227,4 Ohm   PARI A 0,724 uH|"
         "APERTA : XC = 681,1 Ohm   PARI A 4,7 pF");
  expect("0.8|7.5|10|0.82|",
         "INDUTTANZA = 11,713 uH   (1,171 uH/metro)|CAPACITA' = 141,3 pF   (14,13 pF/metro)|"
         "IMPEDENZA = 287,9 Ohm|||");
  expect_refusal("2|50|0.2|1|", "txtlunghezza",
                 "LA LUNGHEZZA DEVE ESSERE ALMENO 5 VOLTE LA DISTANZA", notice);
  expect_refusal("2|2|0.2|1|", "txtdistanza", "LA DISTANZA TRA I CENTRI DEVE SUPERARE IL DIAMETRO");
  expect_refusal("2|50|1|1|0.0001", "txtfrequenza", "VALORI AMMESSI: DA 0.001 A 10000");
  enter("3|40|1|1|71");  // 85.26 degrees
  EXPECT_EQ(window.text("lblgradi lblcorto lblaperta"),
            "LUNGHEZZA ELETTRICA = 85,3 GRADI|"
            "OLTRE 85 GRADI NON EQUIVALE A UN'INDUTTANZA O A UNA CAPACITA'|");
}

using frmfiloverticale = FormTest;

TEST_F(frmfiloverticale, Capacitance) {
  use("mnucapverticale", "txtdiametro txtlunghezza txtbase",
      "lblcapacita lblmetro lblimpedenza lblquota1 lblquota2 lblquota3");
  expect("2|10|0.5",
         "CAPACITA' = 66,7 pF|PER METRO DI FILO = 6,67 pF|IMPEDENZA MEDIA = 500 Ohm|2 mm|10 mt.|"
         "0,5 mt.");
  expect("25|6|",
         "CAPACITA' = 64,5 pF|PER METRO DI FILO = 10,75 pF|IMPEDENZA MEDIA = 310 Ohm|25 mm|6 mt.|");
  expect_refusal("|6|", "txtdiametro");
  EXPECT_EQ(results(), "|||d|l|h");
  expect_refusal("25|1.2|", "txtlunghezza", "LA LUNGHEZZA DEVE ESSERE ALMENO 50 VOLTE IL DIAMETRO",
                 notice);
}

}  // namespace
}  // namespace eterlab::test
