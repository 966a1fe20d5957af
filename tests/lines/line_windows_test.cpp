#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmcaviRG = FormTest;

// The commas are those of the catalogue, not of the settings. RG 6 has its velocity in the place of
// its power, and none of its own: the last one stays.
TEST_F(frmcaviRG, TellsOfChosenCables) {
  use("mnucavi", "Combo1", "Combo1 lbl1 lbl2 lbl3 lbl4 lbl5 lbl6 lbl7 lbl8");
  window.type("Combo1", "RG 4");
  EXPECT_EQ(results(), "RG 4||||||||");  // typing does not choose
  window.press(Qt::Key_Return);
  EXPECT_EQ(results(), "RG 4|50|99|5,7|8,7|17,3|1,9|480|0,66");
  window.type("Combo1", "86");
  window.press(Qt::Key_Return);
  EXPECT_EQ(window.text("Combo1 lbl1"), "RG 86|200");
  const std::pair<int, const char*> rows[] = {
      {41, "RG 86|200|25|7,2x17|1,9|ignota|ignota|ignota|0,66 ?"},
      {2, "RG 6|75|66|8,4|8,9|19,4|2,7|0,66|0,66 ?"},
      {19, "RG 23|125|39|16x24|5,7|15,6|3,0|950|0,66 ?"},
      {40, "RG 85|75|71|39,5|2,8|6,40|10,0|ignota|0,66 ?"},
      {71, "RG 302|75|ignota|5,3|10,8|22,6|ignota|ignota|0,69"},
  };
  for (const auto& [entry, row] : rows) {
    window.pick("Combo1", entry);
    EXPECT_EQ(results(), row);
  }
}

using frmgammamatch = FormTest;

// 299.793, 6.25 x 299.793, 0.7 x 299.793 and 2100 over the frequency, by Python's decimal.
TEST_F(frmgammamatch, OfAPositiveFrequencyThatIsNotTooLow) {
  use("mnugammamatch", "txtfrequenza",
      "lbllunghezza lbldistanza lbllambda lblpf lblcavo lbldiametri lblc");
  for (const char* nothing : {"", "-14", "abc"}) {
    expect_refusal(nothing, "txtfrequenza", "MANCA INPUT");
    EXPECT_EQ(results(), "STUB||||||");
  }
  enter("5000");
  EXPECT_EQ(window.text("lbldistanza"), "spaziatura cm 0,");
  enter("50");
  EXPECT_EQ(window.text("lbllambda"), "VALORE DI LAMBDA = mt. 6,");
  enter("0.0641");
  EXPECT_FALSE(has_ended());
  expect_end("0.064");
  expect("0.3",
         "cm. 6245,7|spaziatura cm 699,5|VALORE DI LAMBDA = mt. 999,3|CONDENSATORE = pF  7000|"
         "USANDO L'RG 8/213 COME CONDENSATORE LA LUNGHEZZA E' cm. 7217|"
         "IL DIAMETRO DEL RADIATORE E' 2 - 4 VOLTE IL DIAMETRO DELLO STUB|7000 pF");
}

using frmros = FormTest;

TEST_F(frmros, EveryKeystrokeCounts) {
  use("mnuros", "txtros",
      "lblimpedenza lblwattriflessi lblwattirradiati lblcoeffriflessione lblreturnloss");
  expect("2",
         "IMPEDENZA DELL'ANTENNA =  100,0 o 25,0 ohm|PERCENTUALE DELL'ENERGIA RIFLESSA =  11,1 %|"
         "PERCENTUALE DELL'ENERGIA IRRADIATA =  88,90 %|COEFFICIENTE DI RIFLESSIONE = 0,33|"
         "RETURN LOSS = 9,54");
  for (const char* below_one : {"0.9", "-2", "abc", ""}) {
    expect_edits_leave("||||", "3", below_one);
  }
  for (const char* infinite : {"1,5", "1."}) {  // a comma ends the number
    enter(infinite);
    EXPECT_EQ(window.text("lblreturnloss"), "RETURN LOSS TENDENTE A INFINITO");
  }
  window.press(Qt::Key_5);
  EXPECT_EQ(window.text("lblreturnloss"), "RETURN LOSS = 13,98");
  expect("1000",
         "IMPEDENZA DELL'ANTENNA =  50.000,0 o 0,1 ohm|PERCENTUALE DELL'ENERGIA RIFLESSA =  99,6 %|"
         "PERCENTUALE DELL'ENERGIA IRRADIATA =  0,40 %|COEFFICIENTE DI RIFLESSIONE = 1,00|"
         "RETURN LOSS = 0,02");
}

}  // namespace
}  // namespace eterlab::test
