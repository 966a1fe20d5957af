#include <string>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmrettificatori = FormTest;

TEST_F(frmrettificatori, ExamplesAndLimits) {
  use("mnurettificatori", "Option1 txtveff txtrs txtcorrente txtcond",
      "lblvuoto lblvmedia lblvmin lblripple lblpiv lbldiodo lbltipo lblsecondario lblicond");
  expect("2|13.8|0.9|1|2200",
         "TENSIONE A VUOTO = 17,7 V|TENSIONE MEDIA SOTTO CARICO = 14,0 V|TENSIONE MINIMA = 12,5 V|"
         "RIPPLE = 2,87 V PICCO-PICCO A 100 Hz|TENSIONE INVERSA SU OGNI DIODO = 20 V|"
         "CORRENTE IN OGNI DIODO: MEDIA 0,50 A   DI PICCO 3,84 A   ALL'ACCENSIONE 20 A|"
         "DIODI ADATTI: 1N4001|SECONDARIO: 1,75 A EFF.   24 VA|"
         "CORRENTE DI RIPPLE NEL CONDENSATORE = 1,43 A EFF.");
  expect("0|9.5|1.5|0.1|1000",
         "TENSIONE A VUOTO = 12,5 V|TENSIONE MEDIA SOTTO CARICO = 10,9 V|TENSIONE MINIMA = 10,0 V|"
         "RIPPLE = 1,70 V PICCO-PICCO A 50 Hz|TENSIONE INVERSA SU OGNI DIODO = 27 V|"
         "CORRENTE IN OGNI DIODO: MEDIA 0,10 A   DI PICCO 0,98 A   ALL'ACCENSIONE 8 A|"
         "DIODI ADATTI: 1N4001|SECONDARIO: 0,28 A EFF.   3 VA|"
         "CORRENTE DI RIPPLE NEL CONDENSATORE = 0,26 A EFF.");
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblveff txtveff lblvuoto"),
            "TENSIONE A VUOTO DI MEZZO SECONDARIO in VOLT EFF.|9.5|");
  expect_refusal("0|9.5|1.5|1|100", "txtcorrente",
                 "LA TENSIONE SCENDE A ZERO: DIMINUIRE LA CORRENTE O AUMENTARE IL CONDENSATORE");
  expect_refusal("1|9.5|0.001|1|100", "txtrs", "VALORI AMMESSI: DA 0.01 A 1000");
}

// Which family the current asks for, which type the voltage, and what no type bears.
TEST_F(frmrettificatori, Diodes) {
  use("mnurettificatori", "Option1 txtveff txtrs txtcorrente txtcond", "lbltipo");
  expect("2|230|20|0.1|100", "DIODI ADATTI: 1N4005");  // 1.5 x 325 V
  expect("1|24|0.5|2|4700", "DIODI ADATTI: 1N5402");   // 33 V / 0.5 ohm, 1.5 x 68 V
  expect("2|24|0.1|6|22000", "DIODI DA ALMENO 4 A  51 V");
  expect("0|500|10|0.1|100", "DIODI DA ALMENO 1 A  2.122 V");
}

using frm78xxbis = FormTest;

TEST_F(frm78xxbis, ExamplesAndLimits) {
  const std::string congruous = "DATO NON CONGRUO";
  use("mnu78xxbis", "Option2 Option1 txtdato1 txtdato2 txtvin",
      "lblparte lbluscita lblpotenza lblaltra");
  EXPECT_EQ(window.text("lbl78xx lbldato1 lbldato2"),
            "7805|TENSIONE DI USCITA in VOLT|CORRENTE DI CARICO in A");
  expect("0|2|13.8|0.5|18",
         "3 DIODI 1N4148|TENSIONE DI USCITA = 14,1 V|POTENZA SULL'INTEGRATO = 2,0 W   DISSIPATORE "
         "DA 35,9 GRADI/W O MENO|POTENZA DI OGNI DIODO = 4 mW");
  EXPECT_EQ(window.text("lbl78xx"), "7812");
  expect(
      "0|0|9|0.3|14",
      "ZENER DA 3,9 V|TENSIONE DI USCITA = 8,9 V|POTENZA SULL'INTEGRATO = 1,6 W   DISSIPATORE DA "
      "47,8 GRADI/W O MENO|POTENZA DELLO ZENER = 20 mW");
  expect("0|0|5.35|0.01|8.2",  // the least lift, and the least input
         "1 DIODO 1N4148|TENSIONE DI USCITA = 5,7 V|POTENZA SULL'INTEGRATO = 0,1 W   NON OCCORRE "
         "DISSIPATORE|POTENZA DI OGNI DIODO = 4 mW");
  enter("0|5|37.5|0.1|40");  // as near to 12 as to 15
  EXPECT_EQ(window.text("lblparte"), "ZENER DA 13 V");
  expect_refusal("0|0|5.34|0.3|14", "txtdato1", congruous);
  expect_refusal("0|0|35.1|0.3|14", "txtdato1", congruous);
  expect_refusal("0|0|9|0.3|11.39", "txtvin", congruous);
  expect_refusal("0|0|9|0.3|35.1", "txtvin", congruous);
  expect_refusal("0|0|9|1.1|14", "txtdato2", "VALORI AMMESSI: DA 0.001 A 1");

  expect("2|2|5|40|18",
         "2,2 Ohm|CORRENTE NELL'INTEGRATO = 0,48 A   NEL PNP = 4,53 A|POTENZA SULL'INTEGRATO = 2,5 "
         "W   DISSIPATORE DA 27,5 GRADI/W O MENO|"
         "POTENZA SUL PNP = 27,3 W   SULLA RESISTENZA = 0,3 W");
  expect_refusal("2|2|10|15|18", "txtdato2", "HFE TROPPO BASSO: OCCORRE ALMENO 24");
  expect_refusal("2|2|5|40|15.2", "txtvin", congruous);
  window.click("Option2_1");
  EXPECT_EQ(window.text("lbl78xx lbldato1 txtdato1 txtdato2 txtvin"),
            "7812|CORRENTE COSTANTE in mA|||");
}

TEST_F(frm78xxbis, ConstantCurrent) {
  use("mnu78xxbis", "Option2 Option1 txtdato1 txtvin", "lblparte lbluscita lblpotenza lblaltra");
  expect(
      "1|0|500|12",
      "10 Ohm|CORRENTE COSTANTE = 505 mA FINO A 4,5 V SUL CARICO|POTENZA SULL'INTEGRATO = 3,6 W  "
      " DISSIPATORE DA 17,9 GRADI/W O MENO|POTENZA DELLA RESISTENZA = 2,5 W");
  expect_refusal("1|0|1000|25", "txtvin",
                 "POTENZA ECCESSIVA PER UN SOLO INTEGRATO: ABBASSARE LA TENSIONE DI INGRESSO",
                 "MESSAGGIO DI AVVISO");
  EXPECT_EQ(results(), "|||");
  expect_refusal("1|0|500|8.4", "txtvin", "DATO NON CONGRUO");
}

using frmlm317variab = FormTest;

TEST_F(frmlm317variab, ExamplesAndLimits) {
  use("mnu317variabile", "Option1 txtvmin txtvmax txtcorrente",
      "lblr1 lblr2 lblpot lblcampo lblvin lblpotenza lblcorr lblcarico");
  expect("3|1.25|30|1",
         "200 Ohm|PONTICELLO|4,7 kOhm|CAMPO DI REGOLAZIONE DA 1,25 A 30,86 V|"
         "TENSIONE DI INGRESSO = 33,0 V   (MASSIMA 40 V)|POTENZA MASSIMA SULL'INTEGRATO = 31,8 W|"
         "CORRENTE SEMPRE DISPONIBILE = 0,38 A CON DISSIPATORE DA 1 GRADO/W|"
         "CARICO MINIMO DA LASCIARE COLLEGATO = 3,8 mA");
  expect("3|5|15|1",
         "560 Ohm|1,6 kOhm|4,7 kOhm|CAMPO DI REGOLAZIONE DA 4,90 A 15,63 V|"
         "TENSIONE DI INGRESSO = 18,0 V   (MASSIMA 40 V)|POTENZA MASSIMA SULL'INTEGRATO = 13,0 W|"
         "CORRENTE SEMPRE DISPONIBILE = 0,93 A CON DISSIPATORE DA 1 GRADO/W|"
         "CARICO MINIMO DA LASCIARE COLLEGATO = 7,8 mA");
  expect_refusal("3|15|15|1", "txtvmax", "DATO NON CONGRUO");
  expect_refusal("0|5|5.46|1", "txtvmax",
                 "CAMPO TROPPO STRETTO: ALLARGARE LA DIFFERENZA TRA LE DUE TENSIONI");
  expect_refusal("4|5|14.9|1", "txtvmax",
                 "POTENZIOMETRO TROPPO GRANDE: SCEGLIERE UN VALORE MINORE");
  expect_refusal("1|1.25|30|1", "txtvmax",
                 "POTENZIOMETRO TROPPO PICCOLO: SCEGLIERE UN VALORE MAGGIORE");
  enter("0|5|5.47|1");  // the narrowest range, by the smallest potentiometer
  EXPECT_EQ(boxes(), Boxes{});
}

}  // namespace
}  // namespace eterlab::test
