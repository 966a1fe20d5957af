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

using frmattimpcost = FormTest;

TEST_F(frmattimpcost, EveryCellAndItsTable) {
  use("mnuattimpcost", "Option1 txtohm txtdb",
      "lblr1 lblr2 lblpotenza lbltabr1_4 lbltabr2_0 lblvalorer1a");
  expect("0|50|6",
         "R1 (DUE, IN SERIE) = 16,61 Ohm, E24 16 Ohm|R2 (VERSO MASSA) = 66,93 Ohm, E24 68 Ohm|"
         "POTENZA DISSIPATA 74,9 % DI QUELLA IN INGRESSO|25,97 Ohm|433,3 Ohm|16,61 Ohm");
  // 3 dB: 292.40 and 17.615 ohm in every table of 50 ohm pads.
  expect("1|50|3",
         "R1 (DUE, VERSO MASSA) = 292,4 Ohm, E24 300 Ohm|R2 (IN SERIE) = 17,61 Ohm, E24 18 Ohm|"
         "POTENZA DISSIPATA 49,9 % DI QUELLA IN INGRESSO|96,25 Ohm|5,769 Ohm|292,4 Ohm");
  expect("2|8|3",
         "R1 (IN SERIE) = 2,336 Ohm, E24 2,4 Ohm|"
         "R2 (IN PARALLELO AL CARICO) = 19,39 Ohm, E24 20 Ohm|"
         "POTENZA DISSIPATA 49,9 % DI QUELLA IN INGRESSO|5,47 Ohm|65,56 Ohm|");
  window.click("Option1_2");
  EXPECT_EQ(results(), "|||||");
  EXPECT_EQ(window.text("lbltabdb_0 lbltabdb_1 lbltabdb_2 lbltabdb_3 lbltabdb_4 lbltabdb_5"),
            "1 dB|2 dB|3 dB|5 dB|10 dB|20 dB");
  expect_refusal("1|50|120", "txtdb", "L'ATTENUAZIONE NON PUO' SUPERARE 100 dB", told);
  expect_refusal("1|50|2e12", "txtdb", "VALORI AMMESSI: DA 1E-12 A 1000000000000");
  expect_refusal("1||120", "txtohm");
  enter("1|50|100");
  EXPECT_EQ(window.text("lblr2"), "R2 (IN SERIE) = 2,5 MOhm, E24 2,4 MOhm");
}

using frmretiaTePgrecobilanciate = FormTest;

TEST_F(frmretiaTePgrecobilanciate, FromTheLeastLossOn) {
  use("mnureteTbilanc", "txtZI txtZO txtLD",
      "lblR1H lblR1Ha lblR2H lblR2Ha lblR3H lblR1O lblR2O lblR3O lblR3Oa lblperdita");
  expect("600|300|15",
         "241,7 Ohm|241,7 Ohm|81,89 Ohm|81,89 Ohm|155,8 Ohm|1,099 kOhm|372,4 Ohm|577,6 Ohm|"
         "577,6 Ohm|PERDITA MINIMA 7,66 dB");
  // 4 to 1: sqrt(4) + sqrt(3), an L on either drawing.
  expect("400|100|11.43895095067",
         "173,2 Ohm|173,2 Ohm|0 Ohm|0 Ohm|115,5 Ohm|NESSUNA|115,5 Ohm|173,2 Ohm|173,2 Ohm|"
         "PERDITA MINIMA 11,44 dB");
  // Far apart, what is small beside the input still counts at the output.
  expect("1000000000|1|100",
         "500 MOhm|500 MOhm|183,8 mOhm|183,8 mOhm|632,5 mOhm|2,721 GOhm|1 Ohm|790,6 MOhm|"
         "790,6 MOhm|PERDITA MINIMA 96,02 dB");
  expect_refusal("300|600|15", "txtZI", "IMPEDENZA IN < IMPEDENZA OUT", told);
  expect_refusal("600|300|5", "txtLD", "DATI NON CONGRUI", told);
  expect_refusal("400|100|11.438950949", "txtLD", "DATI NON CONGRUI", told);
  expect_refusal("300|600|120", "txtZI", "IMPEDENZA IN < IMPEDENZA OUT", told);
  expect_refusal("1e12|1e-12|101", "txtLD", "L'ATTENUAZIONE NON PUO' SUPERARE 100 dB", told);
  expect_refusal("1e12|1e-12|100", "txtLD", "DATI NON CONGRUI", told);
  expect_refusal("300|600|", "txtLD");
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
