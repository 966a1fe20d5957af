#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmbobine = FormTest;

// 62203.684 uH of 1234.5 turns; 5518.15 turns and 173271.48 cm.
TEST_F(frmbobine, TurnsOrInductanceOfWhichAloneIsGrouped) {
  use("mnubobine", "txtdiametro txtlunghezza txtinput",
      "lblinput lbloutput lbllunghezzafilo lbll lbld");
  EXPECT_EQ(results(), "induttanza in µH :|||L| D ");
  window.click("Option1_1");
  expect_edits_leave("numero di spire :|||L| D ", "20|40|10");
  expect("100|200|1234.5",
         "numero di spire :|µHenry :   62.203,68|"
         "lunghezza del conduttore 38763 cm. con diametro max mm. 0,16|200 mm|100 mm ");
  enter("-20|-40|10");
  EXPECT_EQ(window.text("lbloutput"), "µHenry :   -0,82");
  window.click("Option1_0");
  EXPECT_EQ(results(), "induttanza in µH :|||L| D ");
  EXPECT_EQ(window.text("txtinput"), "10");
  expect("100|3000|100000",
         "induttanza in µH :|5.518,2 spire in aria, filo con diametro massimo di mm. 0,54|"
         "lunghezza del conduttore : 173271 cm.|3000 mm|100 mm ");
  expect_refusal("20||10", "txtinput");
  expect_refusal("20|40|-10", "txtinput");
  expect_end("20|40|0.000001");  // turns that round to none
  window.click("cmdaprevhf");
  EXPECT_TRUE(is_open("frmmicrobobine"));
}

using frminduttanzaspirale = FormTest;

TEST_F(frminduttanzaspirale, ComputesAndMarksTheSketchWhichKeepsTheOuterRadius) {
  use("mnuinduttanzaspirale", "txtnr txtr1 txtr2",
      "lblinduttanza lblmedio lblspessore lblraggioesterno lblraggiointerno");
  EXPECT_EQ(results(), "|RAGGIO MEDIO|SPESSORE|raggio esterno|raggio interno");
  expect_refusal("|30|10", "txtnr");
  expect_refusal("10|30|10", "txtr1", "IL RAGGIO ESTERNO E' SEMPRE MAGGIORE");
  expect("5|20|20", "l'induttanza è µhenry    2,5|20 mm|0 mm|20 mm|raggio interno");
  expect("20|12.5|40", "l'induttanza è µhenry    21,28|26,25 mm|27,5 mm|40 mm|raggio interno");
  expect_edits_leave("|RAGGIO MEDIO|SPESSORE|30 mm|raggio interno", "10|10|30");
}

using frmmultilayercoil = FormTest;

// Texts of rounded values keep their zeros, others do not.
TEST_F(frmmultilayercoil, ResultsAndSketch) {
  use("mnumultilayer", "txtspire txtlarghezza txtraggionucleo txtdiametrofilo",
      "lblhenry lblnspirestrato lblnstrati lbllunghezzafilo lblrdc lblr1 lblr2 lbllarg "
      "lblspessore");
  const char* const at_rest = "|||||r| R |larghezza|Spessore";
  EXPECT_EQ(results(), at_rest);
  expect_refusal("100|10|-10|0.5", "txtdiametrofilo");
  expect_edits_leave(at_rest, "100|10|10|0.5");
  expect("100|10|10|0.5",
         "L'INDUTTANZA E' µHenry :   218,45|LE SPIRE PER STRATO SONO 20,0|GLI STRATI SONO  5,0|"
         "L'AVVOLGIMENTO E' LUNGO CIRCA METRI 7,07|"
         "LA RESISTENZA ALLA CORRENTE CONTINUA E' 0,65 OHMS|1 cm |1,3 cm|1 cm|0,25 cm");
  enter("250|12|7.5|0.4");
  EXPECT_EQ(window.text("lblhenry"), "L'INDUTTANZA E' µHenry :   842,60");
  enter("300|8|6.4|0.1");  // 1067.2329 uH, rounded before it is divided
  EXPECT_EQ(window.text("lblhenry"), "L'INDUTTANZA E' milli Henry :   1,06723");
  enter("-100|-10|10|0.5");
  EXPECT_EQ(window.text("lblnspirestrato"), "LE SPIRE PER STRATO SONO -20,0");
}

using frminduttanzafilodiritto = FormTest;

TEST_F(frminduttanzafilodiritto, MicrohenryFromOneOnInThePlaceOfTheHint) {
  use("mnuinduttanzafilodiritto", "txtdiametro txtlunghezza", "lblinduttanza");
  const char* const hint = "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO";
  EXPECT_EQ(results(), hint);
  expect_refusal("1|", "txtlunghezza");
  expect_refusal("1|-1", "txtlunghezza");
  expect_edits_leave(hint, "1|1");
  expect("1|0.69", "L'INDUTTANZA DEL FILO E' nanoHenry 989,872");
  expect("1|0.7", "L'INDUTTANZA DEL FILO E' microHenry 1,006");
  expect("-1|-1", "L'INDUTTANZA DEL FILO E' nanoHenry -1.508,810");
  expect("2|100", "L'INDUTTANZA DEL FILO E' microHenry 229,121");
  window.click("cdmesci");
  EXPECT_FALSE(is_open("frminduttanzafilodiritto"));
}

}  // namespace
}  // namespace eterlab::test
