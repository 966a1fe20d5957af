#include <QComboBox>

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

using frmresistenzakm = FormTest;

TEST_F(frmresistenzakm, MetalAndTemperature) {
  use("mnuresistenzakm", "cmbmetallo txtdiametro txtlunghezza txttemperatura",
      "lblsezione lblkm lbloutput");
  EXPECT_EQ(window.text("cmbmetallo txttemperatura"), "RAME|20");
  const char* const range = "VALORI AMMESSI: DA -200 A 500";
  expect_refusal("RAME|1|100|900", "txttemperatura", range);
  expect_refusal("RAME|1|100|-200.1", "txttemperatura", range);
  expect_refusal("RAME|1|-5|900", "txtlunghezza");
  const char* const too_cold = "TEMPERATURA TROPPO BASSA PER QUESTO METALLO";
  expect_refusal("FERRO|1|100|-180", "txttemperatura", too_cold);  // 1 - 0.005 x 200
  expect_refusal("FERRO|1|100|-200", "txttemperatura", too_cold);
  expect("RAME|1|100|20",
         "SEZIONE = 0,7854 mmq|RESISTENZA AL Km = 21,95 Ohm|RESISTENZA DEL FILO = 2,195 Ohm");
  expect("ALLUMINIO|2|50|60",
         "SEZIONE = 3,142 mmq|RESISTENZA AL Km = 10,45 Ohm|RESISTENZA DEL FILO = 522,3 mOhm");
  // 21.952 x (1 - 0.00393 x 20) at 0 degrees.
  expect("RAME|1|1000|",
         "SEZIONE = 0,7854 mmq|RESISTENZA AL Km = 20,23 Ohm|RESISTENZA DEL FILO = 20,23 Ohm");
}

using frmresistenzarf = FormTest;

TEST_F(frmresistenzarf, SkinDepthAndResistances) {
  use("mnuresistenzarf", "cmbmetallo txtfrequenza txtdiametro txtlunghezza",
      "lblpelle lblcontinua lbloutput lblrapporto");
  EXPECT_EQ(window.text("cmbmetallo"), "RAME");
  EXPECT_EQ(dynamic_cast<QComboBox&>(window.control("cmbmetallo")).findText("FERRO"), -1);
  expect_refusal("RAME|7.1||10", "txtdiametro");
  expect_refusal("RAME|100001|1001|10", "txtfrequenza", "FREQUENZA FINO A 100000 MHz");
  expect_refusal("RAME|100000|1001|10", "txtdiametro", "DIAMETRO FINO A 1000 mm");
  expect("RAME|7.1|2|10",
         "SPESSORE DI PENETRAZIONE = 24,8 \u00b5m|RESISTENZA IN CONTINUA = 54,88 mOhm|"
         "RESISTENZA IN RF = 1,12 Ohm|RAPPORTO RF / CONTINUA = 20,41");
  expect("ALLUMINIO|144|10|1",
         "SPESSORE DI PENETRAZIONE = 7,051 \u00b5m|RESISTENZA IN CONTINUA = 359,8 \u00b5Ohm|"
         "RESISTENZA IN RF = 127,7 mOhm|RAPPORTO RF / CONTINUA = 354,8");
  EXPECT_EQ(window.text("lblvalorepelle lblvalorediametro"), "7,051 \u00b5m|10 mm");
  // A thread that the field fills: as in direct current.
  enter("NICHELCROMO|0.001|0.01|1");
  EXPECT_EQ(window.text("lblrapporto"), "RAPPORTO RF / CONTINUA = 1");
}

}  // namespace
}  // namespace eterlab::test
