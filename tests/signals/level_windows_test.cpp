#include <QWidget>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmdBW = FormTest;

TEST_F(frmdBW, EachFromEachOther) {
  use("mnudbw", "Option1 txtinput", "lblinput lblwatt lbldbw lbldbm lblvolt");
  expect("0|100",
         "POTENZA IN WATT :|POTENZA = 100 W|dBW = 20,00|dBm = 50,00|"
         "SU 50 OHM = 70,71 V efficaci");
  expect("2|-73",
         "LIVELLO IN dBm :|POTENZA = 50,12 pW|dBW = -103,00|dBm = -73,00|"
         "SU 50 OHM = 50,06 µV efficaci");
  expect("1|-10",
         "LIVELLO IN dBW :|POTENZA = 100 mW|dBW = -10,00|dBm = 20,00|"
         "SU 50 OHM = 2,236 V efficaci");
  expect("1|0",
         "LIVELLO IN dBW :|POTENZA = 1 W|dBW = 0,00|dBm = 30,00|SU 50 OHM = 7,071 V efficaci");
  window.click("Option1_1");
  EXPECT_EQ(window.text("txtinput lblwatt lblvolt"), "||");
  expect("0|1e-30",
         "POTENZA IN WATT :|POTENZA = 1E-15 fW|dBW = -300,00|dBm = -270,00|"
         "SU 50 OHM = 7,071 fV efficaci");
  for (const char* unusable : {"0|", "0|-5", "0|0", "0|1.1e30", "0|9e-31"}) {
    expect(unusable, "POTENZA IN WATT :||||");
  }
  for (const char* unusable : {"1|", "1|-", "1|300.1", "1|-300.1"}) {
    expect(unusable, "LIVELLO IN dBW :||||");
  }
}

using frmsmeterhf = FormTest;

TEST_F(frmsmeterhf, ReadsLevelsAndMarksTheirRow) {
  use("mnusmeter", "Option1 txtinput", "lblsmeter lbldbm lblmicrovolt");
  const auto marked = [this] {
    std::string rows;
    for (int row = 0; row < 15; ++row) {
      const QWidget& cell = window.control("lblpunti_" + std::to_string(row));
      EXPECT_EQ(cell.font().bold(), cell.accessibleDescription().contains("evidenziata"));
      rows += cell.font().bold() ? window.text(cell.objectName().toStdString()) : "";
    }
    return rows;
  };
  const char* const table[][3] = {
      {"0|-73", "S-METER : S 9,0|LIVELLO = -73,0 dBm|SU 50 OHM = 50,1 µV", "S 9"},
      {"0|-53", "S-METER : S 9 + 20,0 dB|LIVELLO = -53,0 dBm|SU 50 OHM = 501 µV", "S 9 + 20 dB"},
      {"1|1", "S-METER : S 3,3|LIVELLO = -107,0 dBm|SU 50 OHM = 1 µV", "S 3"},
      {"0|-127", "S-METER : S 0,0|LIVELLO = -127,0 dBm|SU 50 OHM = 0,0999 µV", ""},
      {"0|-127.1", "S-METER : SOTTO S 0|LIVELLO = -127,1 dBm|SU 50 OHM = 0,0987 µV", ""},
      {"0|-121", "S-METER : S 1,0|LIVELLO = -121,0 dBm|SU 50 OHM = 0,199 µV", "S 1"},
      {"0|0", "S-METER : S 9 + 73,0 dB|LIVELLO = 0,0 dBm|SU 50 OHM = 224000 µV", "S 9 + 60 dB"},
      // S 9 as a voltage: sqrt(50 x 1E-10.3) V, its level -73 to the last digits
      {"1|50.0593263", "S-METER : S 9,0|LIVELLO = -73,0 dBm|SU 50 OHM = 50,1 µV", "S 8"},
      {"1|50.05932648504", "S-METER : S 9,0|LIVELLO = -73,0 dBm|SU 50 OHM = 50,1 µV", "S 9"},
      {"1|0", "||", ""},
      {"1|2e-5", "||", ""},  // -201 dBm
      {"0|-201", "||", ""},
      {"0|101", "||", ""},
      {"0|", "||", ""}};
  for (const auto& [typed, results, row] : table) {
    expect(typed, results);
    EXPECT_EQ(marked(), row) << typed;
  }
  enter("0|-73");
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblinput txtinput lblsmeter"), "TENSIONE IN MICROVOLT :||");
  EXPECT_EQ(marked(), "");
}

using frmsmetervhf = FormTest;

TEST_F(frmsmetervhf, StandsTwentyDecibelsLower) {
  use("mnudbmsmetervhf", "Option1 txtinput", "lblsmeter lbldbm lblmicrovolt");
  expect("0|-93", "S-METER : S 9,0|LIVELLO = -93,0 dBm|SU 50 OHM = 5,01 µV");
  expect("0|-73", "S-METER : S 9 + 20,0 dB|LIVELLO = -73,0 dBm|SU 50 OHM = 50,1 µV");
  expect("1|1", "S-METER : S 6,7|LIVELLO = -107,0 dBm|SU 50 OHM = 1 µV");
  EXPECT_EQ(window.text("lblpunti_0 lbltabdbm_0 lbltabvolt_0"), "S 1|-141|0,0199 µV");
  EXPECT_EQ(window.text("lblpunti_5 lbltabdbm_5 lbltabvolt_5"), "S 6|-111|0,63 µV");
  EXPECT_EQ(window.text("lblpunti_14 lbltabdbm_14 lbltabvolt_14"), "S 9 + 60 dB|-33|5010 µV");
}

using frmERP = FormTest;

TEST_F(frmERP, FromTransmitterToWaves) {
  use("mnuerp", "Option1 txtwatt txtattenuazione txtlunghezza txtaltre txtguadagno",
      "lblperdita lblantenna lblerp lbleirp lbldbm");
  expect("0|100|8.5|30|0.5|7",
         "PERDITA NELLA LINEA = 3,05 dB, 50,45 W|ALL'ANTENNA ARRIVANO 49,55 W (49,5 %)|"
         "ERP (RISPETTO AL DIPOLO) = 248,3 W|EIRP (RISPETTO ALL'ISOTROPICO) = 407,4 W|"
         "EIRP = 56,1 dBm");
  EXPECT_EQ(window.text("lblvaloretx lblvaloreperdita lblvaloreantenna lblvaloreerp"),
            "100 W|3,05 dB|49,55 W|248,3 W");
  expect("1|5||||2.15",
         "PERDITA NELLA LINEA = 0,00 dB, 0 W|ALL'ANTENNA ARRIVANO 5 W (100,0 %)|"
         "ERP (RISPETTO AL DIPOLO) = 5 W|EIRP (RISPETTO ALL'ISOTROPICO) = 8,203 W|"
         "EIRP = 39,1 dBm");
  window.click("Option1_0");
  EXPECT_EQ(results(), "||||");
  enter("0|1|100|100||-10");
  EXPECT_EQ(window.text("lblperdita lblerp"),
            "PERDITA NELLA LINEA = 100,00 dB, 1 W|ERP (RISPETTO AL DIPOLO) = 10 pW");
  const char* const negative = "IL VALORE NON PUO' ESSERE NEGATIVO";
  expect_refusal("0||-1|30||", "txtwatt");
  expect_refusal("0|100|-1|30||", "txtattenuazione", negative);
  expect_refusal("0|100|1|-30|-1|", "txtlunghezza", negative);
  expect_refusal("0|100|1|30|-1|", "txtaltre", negative);
  expect_refusal("0|100|1e13|30|1|", "txtattenuazione", "VALORI AMMESSI: DA 0 A 1000000000000");
  expect_refusal("0|100|100|100|0.01|", "txtattenuazione", "PERDITA SUPERIORE A 100 dB");
  expect_refusal("0|100||||-100.1", "txtguadagno", "VALORI AMMESSI: DA -100 A 100");
}

using frmsegnalidipolo = FormTest;

TEST_F(frmsegnalidipolo, FromTheFieldToTheReceiver) {
  use("mnusegnalidipolo", "txtcampo txtfrequenza",
      "lbleffettiva lblvuoto lblcarico lblpotenza lblricevitore lblvalorericevitore");
  expect("100|14.2",
         "LUNGHEZZA EFFICACE DEL DIPOLO = 6,72 mt.|TENSIONE A VUOTO = 672 µV|"
         "TENSIONE SUL CARICO ADATTATO (73 OHM) = 336 µV|POTENZA RICEVUTA = 1,545 nW, -58,1 dBm|"
         "TENSIONE SU UN RICEVITORE DA 50 OHM ADATTATO = 277,9 µV|277,9 µV");
  expect_refusal("0|14.2", "txtcampo");
  expect_refusal("100|", "txtfrequenza");
}

using frmsegnaligenerica = FormTest;

TEST_F(frmsegnaligenerica, FromTheFieldToTheReceiver) {
  use("mnusegnaligenerica", "Option1 txtcampo txtfrequenza txtguadagno txtohm",
      "lblarea lbldensita lblpotenza lbltensione lblfattore");
  EXPECT_EQ(window.text("txtohm"), "50");
  const char* const results =
      "AREA EFFICACE = 5,581 mq|DENSITA' DI POTENZA = 26,54 pW/mq|"
      "POTENZA RICEVUTA = 148,1 pW, -68,3 dBm|TENSIONE AL RICEVITORE = 86,06 µV|"
      "FATTORE D'ANTENNA = 1,3 dB/mt.";
  expect("0|100|145|10|50", results);
  expect("1|100|145|12.15|50", results);
  expect_refusal("1|100|145|150|50", "txtguadagno", "VALORI AMMESSI: DA -100 A 100");
  expect_refusal("1|100|145|150|", "txtohm");
}

}  // namespace
}  // namespace eterlab::test
