#include "support/form_test.h"

namespace eterlab::test {
namespace {

const char* const told = "messaggio di errore";
const char* const not_higher = "L'impedenza IN deve essere maggiore dell'impedenza OUT";

using frmretiadL = FormTest;

TEST_F(frmretiadL, FromTheHigherImpedanceToTheLower) {
  use("mnuretel", "txtRH txtRL", "lblR1 lblR2 lblperdita");
  expect_refusal("75|-50", "txtRH");
  expect_refusal("50|50", "txtRH", not_higher, told);
  expect_refusal("-75|-50", "txtRH", not_higher, told);
  EXPECT_EQ(results(), "||");
  expect("55|50", "16,6|165,8|L'ATTENUAZIONE E' 2,7 dB");  // 2.7029
  expect_end("-50|-75");
  expect("75|50", "43,3|86,6|L'ATTENUAZIONE E' 5,72 dB");
  window.type("txtRH", "100");
  EXPECT_EQ(window.text("lblR1"), "43,3");  // stays until the next computation
}

using frmretiadLbilanciata = FormTest;

TEST_F(frmretiadLbilanciata, HalvesTheSeriesResistorBeforeItIsRounded) {
  use("mnuLbilanciata", "txtRH txtRL", "lblR1 lblR1a lblR2 lblperdita");
  expect_refusal("50|50", "txtRH", not_higher, told);
  expect("300|50", "136,9|136,9|54,8|L'ATTENUAZIONE E' 13,42 dB");  // of 273.861
}

using frmretiaTePgreco = FormTest;

TEST_F(frmretiaTePgreco, FromTheLeastLossOn) {
  use("mnureteaT", "txtZI txtZO txtLD", "lblR1T lblR2T lblR3T lblR1P lblR2P lblR3P lblperdita");
  expect_refusal("75|50|", "txtZI");
  expect_refusal("-75|50|10", "txtZI");
  expect_refusal("50|75|10", "txtZI", "IMPEDENZA IN < IMPEDENZA OUT", told);
  expect_refusal("75|50|6.8764", "txtLD", "DATI NON CONGRUI", told);
  EXPECT_EQ(results(), "||||||");
  enter("75|50|6.8765");
  EXPECT_NE(results(), "||||||");
  // 866025.39512 to more digits than single precision has.
  expect("600|50|80", "599,97|49,97|0,03|600,42|50|866025,4|PERDITA D'INSERZIONE 23 dB");
  expect_end("50|50|1e-16");
  expect_end("-50|-75|10");
  expect("300|75|20", "275,76|46,21|30,3|486,89|81,59|742,5|PERDITA D'INSERZIONE 15 dB");
}

using frmretiaTponte = FormTest;

TEST_F(frmretiaTponte, HasItsVoltageRatioInSinglePrecision) {
  use("mnureteTponte", "txtR0 txtattenuazione", "lblR1 lblR1a lblR2 lblR3");
  expect_refusal("50|", "txtR0");
  expect_end("50|0.0000001");
  expect_end("50|800");
  expect("600|60.5", "600,0|600,0|0,6|634.952,3");  // .2 in double precision
  enter("-50|-6");
  EXPECT_EQ(window.text("lblR2"), "100,2");
}

}  // namespace
}  // namespace eterlab::test
