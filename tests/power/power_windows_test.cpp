#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frm78xx = FormTest;

TEST_F(frm78xx, EveryTypeAtTwentyFiveVolt) {
  use("mnu78xx", "txtvu", "lblr1 lblr2 lblvin lblvout lbl78xx Label7");
  const std::string note = "|USARE PER R1 E R2 I VALORI COMMERCIALI PIU' VICINI";
  expect_refusal("", "txtvu", "DATO NON CONGRUO");
  EXPECT_EQ(results(), "|||||");
  expect("9", "0 Ohm|360 Ohm|12,6 Volt Input|9 Volt Out|" + note);  // without a type
  const char* const table[][2] = {{"7805", "200 Ohm|800 Ohm"}, {"7808", "320 Ohm|680 Ohm"},
                                  {"7812", "480 Ohm|520 Ohm"}, {"7815", "600 Ohm|400 Ohm"},
                                  {"7818", "720 Ohm|280 Ohm"}, {"7824", "960 Ohm|40 Ohm"}};
  for (int index = 0; const auto& [type, divider] : table) {
    window.click("Option1_" + std::to_string(index++));
    EXPECT_EQ(window.text("lbl78xx lblr1 lblr2 txtvu"), std::string{type} + "|R1|R2|");
    expect("25", std::string{divider} + "|35 Volt Input|25 Volt Out|" + type + note);
  }
  expect_refusal("24", "txtvu", "DATO NON CONGRUO");
  expect_refusal("36", "txtvu", "DATO NON CONGRUO");
  window.click("Option1_0");
  expect("9", "200 Ohm|160 Ohm|12,6 Volt Input|9 Volt Out|7805" + note);
  expect("35", "200 Ohm|1200 Ohm|49 Volt Input|35 Volt Out|7805" + note);
}

using frmlm317 = FormTest;

TEST_F(frmlm317, ComputesAndKeepsTheResultsWhenItRefuses) {
  use("mnu317", "txtvu", "lblr1 lblr2 lblvout lblvin lblvmax");
  expect("5.001",
         "220 Ohm|660,176 Ohm|5,001 Volt Out|6,5013 Volt Input|LA TENSIONE OTTIMALE IN ENTRATA E' "
         "6,5013 VOLT   -  LA MASSIMA APPLICABILE E' 35,001 VOLT");
  enter("100");
  for (const char* out_of_range : {"1.25", "100.001", ""}) {
    expect_refusal(out_of_range, "txtvu", "DATO NON CONGRUO");
  }
  EXPECT_EQ(window.text("lblvin"), "130 Volt Input");
}

using frmlm317correntecost = FormTest;

TEST_F(frmlm317correntecost, ComputesAndKeepsTheResultsWhenItRefuses) {
  use("mnu317cc", "txtcorrente", "lblr1 lblrisultato");
  const char* const last = "1,3 Ohm|PER OTTENERE 1000 mA LA RESISTENZA DEVE ESSERE  1,3 OHM";
  expect("1000", last);
  for (const char* out_of_range : {"0", "1000.01", "-5"}) {
    expect_refusal(out_of_range, "txtcorrente", "DATO NON CONGRUO");
  }
  EXPECT_EQ(results(), last);
  expect("0.5", "2.500,0 Ohm|PER OTTENERE 0,5 mA LA RESISTENZA DEVE ESSERE  2.500,0 OHM");
}

}  // namespace
}  // namespace eterlab::test
