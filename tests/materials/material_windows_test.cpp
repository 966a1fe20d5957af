#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmlunghezzafilo = FormTest;

TEST_F(frmlunghezzafilo, FourResults) {
  use("mnulunghezzafilo", "txtd txtgrammi", "lblsezione lbllunghezza lblimax lblrtot");
  expect_refusal("1|", "txtd");
  expect_refusal("-1|100", "txtd");
  expect_edits_leave("|||", "1|100");
  expect("0.5|100",
         "LA SEZIONE DEL FILO E'  0,196 mmq|LA LUNGHEZZA DEL CONDUTTORE E'  57,29 metri|"
         "LA CORRENTE MASSIMA AMMESSA E'  0,4909 Amp|"
         " LA RESISTENZA TOTALE DEL CONDUTTORE E'  5,13525 OHM");
  const char* const table[][3] = {
      {"0.1|1000", "lbllunghezza", "LA LUNGHEZZA DEL CONDUTTORE E'  14.322,15 metri"},
      {"0.1|1000", "lblrtot", " LA RESISTENZA TOTALE DEL CONDUTTORE E'  32094,53 OHM"},
      {"3|0.5", "lblrtot", " LA RESISTENZA TOTALE DEL CONDUTTORE E'  2,5E-05 OHM"},  // 0.0000249
      {"0.7136|50", "lblimax", "LA CORRENTE MASSIMA AMMESSA E'  0,9999 Amp"},        // 0.99986
      {"0.714|50", "lblimax", "LA CORRENTE MASSIMA AMMESSA E'  1,00 Amp"},           // 1.00098
      {"-1|-100", "lbllunghezza", "LA LUNGHEZZA DEL CONDUTTORE E'  -14,32 metri"},
  };
  for (const auto& [typed, label, result] : table) {
    enter(typed);
    EXPECT_EQ(window.text(label), result);
  }
}

}  // namespace
}  // namespace eterlab::test
