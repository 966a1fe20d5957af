#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmantenna58 = FormTest;

TEST_F(frmantenna58, EachBandReplacesEveryText) {
  use("mnuantenna58", "", "lblaltezza lblradiale lblcarico lblradiatore lblradiali lblbobina");
  const char* const bands[] = {
      "340 cm.|143 cm.|9 sp.|RADIATORE cm. 340     DIAMETRO 20 mm.|"
      "N. 4 RADIALI cm. 143     DIAMETRO 5 mm.|BOBINA n.9 spire 2 mm. su diametro 3 cm. lunga 3 "
      "cm.",
      "120 cm.|50 cm.|5 sp.|RADIATORE cm. 120     DIAMETRO 10 mm.|"
      "N. 4 RADIALI cm. 50     DIAMETRO 5 mm.|BOBINA n.5 spire 2 mm. su diametro 2 cm. lunga 2 cm.",
      "42 cm.|17 cm.|2 sp.|RADIATORE cm. 42     DIAMETRO 6 mm.|"
      "N. 4 RADIALI cm. 17     DIAMETRO 5 mm.|BOBINA n.2 spire 2 mm. su diametro 1.5 cm. lunga 2 "
      "cm.",
  };
  for (int band = 0; band < 3; ++band) {
    const std::string option = "Option1_" + std::to_string(band);
    EXPECT_FALSE(window.control(option).property("checked").toBool());
    window.click(option);
    EXPECT_EQ(results(), bands[band]);
  }
}

using frmdipoli = FormTest;

TEST_F(frmdipoli, ArmsOfAPositiveFrequencyInSinglePrecision) {
  use("mnudipoli", "txtfrequenza", "lbllunghezza lblbraccio lbllunghezzavert");
  expect("7.1", "10,04 mt.|LUNGHEZZA DEL BRACCIO in mt.: 10,04|10,00");
  // In double precision 101.857,14 and 101.428,57.
  expect("0.0007", "101.857,15 mt.|LUNGHEZZA DEL BRACCIO in mt.: 101.857,15|101.428,60");
  for (const char* none : {"0", "-3", "", ",5"}) {
    expect_edits_leave("||", "14.2", none);
  }
  expect_end("1E39");  // beyond single precision, and then the inverted V's arm
  expect_end("1E-37");
}

using frmdipoloripiegato = FormTest;

TEST_F(frmdipoloripiegato, LengthIsPlainTextAndHidesWithoutAPositiveFrequency) {
  use("mnufoldeddipole", "txtfrequenza txtd1 txtd2 txts", "lbllung lbllunghezza");
  // 142.5 / f; the last one has seven digits only.
  expect("300|1|2|3", "0,48 mt.|LUNGHEZZA DEL DIPOLO mt : 0,48");
  expect("0.1|1|2|3", "1425 mt.|LUNGHEZZA DEL DIPOLO mt : 1425");
  expect("0.0007|1|2|3", "203571,4 mt.|LUNGHEZZA DEL DIPOLO mt : 203571,4");
  expect("-3|1|2|3", "|");
}

// The ratios before rounding, with 30 digits: 5.4145, 7.6949, 4.
TEST_F(frmdipoloripiegato, ImpedanceOfCompatibleMeasures) {
  use("mnufoldeddipole", "txtd1 txtd2 txts", "lblrapporto lbloutputimpedenza lblimpedenza");
  const char* const captions = "lbld1 lbld2 lbls";
  expect("6|12|50", "RAPPORTO DI TRASFORMAZIONE = 5,4|IMPEDENZA RISULTANTE OHM : 405|Ohm 405");
  expect_refusal("6|12|0", "txtd2", "mancano dati", "messaggio di errore");
  expect_refusal("10|5|50", "txtd2", "MISURE NON COMPATIBILI");
  expect_refusal("-20|-30|50", "txtd2", "MISURE NON COMPATIBILI");
  expect_refusal("6|12|11.9", "txtd2", "MISURE NON COMPATIBILI");
  EXPECT_EQ(window.text(captions), "6|12|11,9");
  // Of two negative diameters nothing is said.
  expect("-6|12|50", "RAPPORTO DI TRASFORMAZIONE = 5,4|IMPEDENZA RISULTANTE OHM : 405|Ohm 405");
  expect_end("-3|-2|50");
  expect("2|10|40", "RAPPORTO DI TRASFORMAZIONE = 7,7|IMPEDENZA RISULTANTE OHM : 577,5|Ohm 577,5");
  // The spacing may be as small as the upper diameter.
  expect("3.5|3.5|3.5", "RAPPORTO DI TRASFORMAZIONE = 4,0|IMPEDENZA RISULTANTE OHM : 300|Ohm 300");
  EXPECT_EQ(window.text(captions), "3,5|3,5|3,5");
}

using frmlungharmonica = FormTest;

// 150 (N - 0.05) / f by hand; only the product of the inputs is checked.
TEST_F(frmlungharmonica, OfAPositiveProduct) {
  use("mnulungharmonica", "txtn txtf", "lbllunghezza");
  expect("1000|0.1", "L'ANTENNA E' LUNGA  1.499.925,00 METRI");
  expect("0.03|1", "L'ANTENNA E' LUNGA  -3,00 METRI");
  expect("-1|-7.5", "L'ANTENNA E' LUNGA  21,00 METRI");
  for (const char* incomplete : {"1|", "-1|7", "1|-7"}) {
    expect_refusal(incomplete, "txtf");
  }
  EXPECT_EQ(results(), "L'ANTENNA E' LUNGA  21,00 METRI");
}

using frmvertaccorciata = FormTest;

// Python's decimal with 50 digits, the coil's height and the wavelength narrowed by its struct.
TEST_F(frmvertaccorciata, ComputesAndRefusesInOrder) {
  use("mnuverticale", "txtlunghezza txtdistanza txtdiametro txtfrequenza",
      "lblinduttanza lblgradi lblRR lblind lbldist lbllung lblradiali");
  expect("5|0.5|20|3.6",
         "INDUTTANZA in micro HENRY : 37,18|LUNGHEZZA ANTENNA IN GRADI  :  21,60|"
         "RESISTENZA DI RADIAZIONE CIRCA ohm = 2,07|37,18|0,5 mt|5 mt|radiali mt 20,8");
  expect_refusal("2.5||10|7.05", "txtlunghezza");
  expect_refusal("2.5|-1|10|7.05", "txtlunghezza");
  const char* const notice = "MESSAGGIO DI AVVISO";
  const char* const too_long = "RADIATORE PIU' LUNGO DI 1/2 LAMBDA";
  expect_refusal("10|11|10|7.1", "txtlunghezza", too_long, notice);  // before the coil is looked at
  expect_refusal("2.5|2.5|10|7.05", "txtdistanza", "DISTANZA ECCESSIVA", notice);
  // Two negative inputs pass the first check, and some every check.
  expect_refusal("2.5|1|-10|-7.05", "txtlunghezza", too_long, notice);
  expect_refusal("-2.5|1|-10|7.05", "txtdistanza", "DISTANZA ECCESSIVA", notice);
  expect_end("2.5|-1|-10|7.05");
  enter("-2.5|-3|10|7.05");
  EXPECT_EQ(window.text("lblind lbldist"), "69,05|-3 mt");
  enter("1234.56789|1000.123456|30|0.05");  // the height in single precision, not grouped
  EXPECT_EQ(window.text("lblgradi lbldist lbllung lblradiali"),
            "LUNGHEZZA ANTENNA IN GRADI  :  74,07|1000,123 mt|1234,56789 mt|radiali mt 1.500,0");
}

using frmyagi3 = FormTest;

TEST_F(frmyagi3, OnlyTheLastSpacingIsNotGrouped) {
  use("mnuyagi3", "txtfrequenza",
      "lblriflettore lblradiatore lbldirettore lblspazriflettore lblspazdirettore");
  for (const char* none : {"", "0", "-28.5"}) {
    expect(none, "||||");
    expect("1",
           "IL RIFLETTORE E' LUNGO  14.850 cm.|IL RADIATORE E' LUNGO  14.100 cm.|"
           "IL DIRETTORE E' LUNGO  13.400 cm.|6.000 cm.|3000 cm.");
  }
}

using frmyagi5 = FormTest;

TEST_F(frmyagi5, OnlyTheLastLengthAndSpacingAreNotGrouped) {
  use("mnuyagi5", "txtfrequenza",
      "lblriflettore lblradiatore lbl1direttore lbl2direttore lbl3direttore lblspazriflettore "
      "lblspaz1direttore lblspaz2direttore lblspaz3direttore");
  for (const char* none : {"", "0", "-28.5"}) {
    expect(none, "||||||||");
    expect("1",
           "IL RIFLETTORE E' LUNGO  15.000 cm.|IL RADIATORE E' LUNGO  14.200 cm.|"
           "IL 1 DIRETTORE E' LUNGO  13.300 cm.|IL 2 DIRETTORE E' LUNGO  13.100 cm.|"
           "IL 3 DIRETTORE E' LUNGO  12900 cm.|6.000 cm.|3.000 cm.|4.500 cm.|6000 cm.");
  }
}

}  // namespace
}  // namespace eterlab::test
