#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmriduzcondensatori = FormTest;

// 1 / (1 / wanted - 1 / given), by hand.
TEST_F(frmriduzcondensatori, NanofaradFromAThousandAndOnePicofarad) {
  use("mnuriduzcondensatori", "txtc1 txtc2", "lblriduzione");
  expect("470|150", "CAPACITA' DA APPLICARE IN SERIE =  220,3  picoF");
  expect("-50|-100", "CAPACITA' DA APPLICARE IN SERIE =  100,0  picoF");
  expect_refusal("|50", "txtc1");
  expect_refusal("100|-50", "txtc1");
  const char* const not_larger = "IL PRIMO COND.RE HA SEMPRE LA CAPACITA' MAGGIORE";
  expect_refusal("100|100", "txtc1", not_larger, "STAI ATTENTO");
  expect_refusal("-100|-50", "txtc1", not_larger, "STAI ATTENTO");
  EXPECT_EQ(results(), "CAPACITA' DA APPLICARE IN SERIE =  100,0  picoF");
  expect("1000.99|500.495", "CAPACITA' DA APPLICARE IN SERIE =  1.001,0  picoF");
  expect("1001|500.5", "CAPACITA' DA APPLICARE IN SERIE =  1,0  nanoF");
}

}  // namespace
}  // namespace eterlab::test
