#include <QApplication>
#include <QScreen>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

using frmawg = FormTest;

// Diameters were computed with fifty decimals in Python and rounded.
TEST_F(frmawg, GaugesUpToEighty) {
  use("mnuawg", "txtawg", "txtawg lbld");
  EXPECT_FALSE(window.shows("lbl2"));
  expect("24", "24|IL DIAMETRO DEL FILO CORRISPONDE A 0,511 MILLIMETRI");
  expect("-3", "-3|IL DIAMETRO DEL FILO CORRISPONDE A 11,684 MILLIMETRI");
  expect("-", "-|IL DIAMETRO DEL FILO CORRISPONDE A 8,251 MILLIMETRI");
  expect("80.5", "80|IL DIAMETRO DEL FILO CORRISPONDE A 0,001 MILLIMETRI");
  EXPECT_TRUE(window.shows("lbl2"));
}

using frmtemperatura = FormTest;

TEST_F(frmtemperatura, OnlyKelvinLosesTheTrailingSeparator) {
  use("mnutemperatura", "txtcentigradi", "lblfahr lblreau lblkelv");
  expect("-", "32,|0,|273");
  expect("36.6", "97,88|29,28|309,6");
  expect("2000", "3632,|1600,|2273");
  expect("-300", "-508,|-240,|-27");
}

using frmmils = FormTest;

TEST_F(frmmils, BothWaysWhereAnOptionStartsAfresh) {
  use("mnumils", "txtinput", "lblinput lblout");
  expect("62.5", "INSERIRE MILLIMETRI|CORRISPONDENTE A MILS : 2460,62991875");
  window.click("Option1_1");
  EXPECT_EQ(window.text("txtinput lblinput lblout"), "|INSERIRE MILS|");
  EXPECT_EQ(window.focus(), "txtinput");
  for (const char* none : {"", "0", "-1", ","}) {
    expect(none, "INSERIRE MILS|");
    expect("0.1", "INSERIRE MILS|CORRISPONDENTI A mm : 0,00254   PARI A 2,54 microMETRI");
  }
  window.click("Option1_0");
  expect("1e306", "INSERIRE MILLIMETRI|CORRISPONDENTE A MILS : 3,93700787E+307");
  expect_end("1e307");
}

using frmdBmicrovolt = FormTest;

// Negative microvolt count as one; levels out of range keep the result.
TEST_F(frmdBmicrovolt, BothWays) {
  use("mnudbmicrovolt", "txtin", "lbloutput lblout");
  EXPECT_FALSE(window.shows("lbloutput"));
  expect("0.5", "CORRISPONDE A dBmicrovolt : |-6,02");
  expect("0", "CORRISPONDE A dBmicrovolt : |0");
  expect("100", "CORRISPONDE A dBmicrovolt : |40");
  expect_refusal("-5", "txtin", "NON ESISTONO VALORI NEGATIVI");
  EXPECT_EQ(window.text("lblinput txtin lblout"), "DIGITARE I microvolt|-5|0");
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblinput txtin lblout"), "DIGITARE I dBmicrovolt|-5|0");
  expect("119.99", "CORRISPONDE A microvolt|998849,4");  // seven digits of 998849,37
  expect("", "CORRISPONDE A microvolt|1");
  expect_refusal("120.5", "txtin", "dBmicroV max = 120");
  EXPECT_EQ(results(), "CORRISPONDE A microvolt|1000000");  // of "120."
  expect_refusal("-5", "txtin", "NON ESISTONO VALORI NEGATIVI");
  EXPECT_EQ(results(), "CORRISPONDE A microvolt|1");  // of the minus sign alone
}

class frmdB : public FormTest {
 protected:
  void use_mode(int mode) {
    use("mnudb", mode == 0 ? "txtinput1" : "txtinput1 txtinput2",
        "lblinput1 lblinput2 lbloutput1 lblout1 lbloutput2 lblout2 lblvariazione");
    window.click("Option1_" + std::to_string(mode));
  }
};

TEST_F(frmdB, EachModeNamesItsValuesAndComputes) {
  use_mode(0);
  expect("0", "DECIBEL||RAPPORTO  in TENSIONE|1,|RAPPORTO in POTENZA|1,|");
  expect("6", "DECIBEL||RAPPORTO  in TENSIONE|1,995|RAPPORTO in POTENZA|3,981|");
  expect("70", "DECIBEL||RAPPORTO  in TENSIONE|3.162,278|RAPPORTO in POTENZA|10.000.000,|");
  EXPECT_EQ(window.shown("txtinput2 txtvoltesempio"), "txtvoltesempio");
  use_mode(1);
  EXPECT_EQ(window.shown("txtinput2 txtvoltesempio"), "txtinput2");
  EXPECT_EQ(results(), "TENSIONE ENTRATA|TENSIONE USCITA|DECIBEL||||");
  expect("2|7", "TENSIONE ENTRATA|TENSIONE USCITA|DECIBEL|10,88|||DB di GUADAGNO");
  use_mode(2);
  EXPECT_EQ(results(), "POTENZA ENTRATA|POTENZA USCITA|DECIBEL||||");
  expect("50|0.3", "POTENZA ENTRATA|POTENZA USCITA|DECIBEL|22,22|||DB di ATTENUAZIONE");
  expect("5|5", "POTENZA ENTRATA|POTENZA USCITA|DECIBEL|0,|||DB di GUADAGNO");
  use_mode(0);
  EXPECT_EQ(results(), "DECIBEL||RAPPORTO  in TENSIONE||RAPPORTO in POTENZA||");
}

TEST_F(frmdB, Refusals) {
  const char* const negative = "SOLO VALORI POSITIVI";
  use_mode(0);
  expect_refusal("-1", "txtinput1", negative);
  expect_refusal("70.01", "txtinput1", "MASSIMO DB CALCOLABILE = 70");
  EXPECT_FALSE(window.shows("txtvoltesempio"));
  use_mode(1);
  expect_refusal("0|1", "txtinput1", negative);
  expect_refusal("-1|-1", "txtinput1", negative);
  use_mode(2);
  expect_refusal("1|-1", "txtinput1", negative);
  EXPECT_EQ(window.text("lblout1"), "");
  use_mode(1);
  expect_end("1e200|1e200");
}

TEST_F(frmdB, ExampleGoesOnFromTheRatioAsShown) {
  use_mode(0);
  const char* const example = "lbldbesempio Label9 Label10";
  enter("37.5");
  window.type("txtvoltesempio", "5");
  EXPECT_EQ(window.text(example), "37,5|374,945|0,067");
  enter("6");
  // In single precision 123456.7890625; times and through 1.995, not 1.99526.
  window.type("txtvoltesempio", "123456.789");
  EXPECT_EQ(window.text(example), "6|246.296,294|61.883,102");
  window.type("txtinput1", "3");
  EXPECT_EQ(window.text(example), "|0,|0,");
}

TEST_F(frmdB, OpensAndClosesTheExampleWithTheWindow) {
  const QFont usual = QApplication::font();
  QFont small = usual;
  small.setPointSizeF(7);
  for (const QFont& font : {usual, small}) {
    QApplication::setFont(font);
    use_mode(0);
    const QSize closed = window.window().size();
    enter("6");
    settle();
    const QSize open = window.window().size();
    EXPECT_EQ(window.window().pos(), QPoint(140, 67));
    EXPECT_GT(open.height(), closed.height());
    EXPECT_EQ(open.width(), closed.width());
    use_mode(2);
    settle();
    EXPECT_EQ(window.window().pos(), QPoint(140, 133));
    EXPECT_EQ(window.window().size(), closed);
    // A small font leaves the window the sizes of its design.
    EXPECT_EQ(closed == QSize(526, 327), font == small);
    EXPECT_EQ(open == QSize(526, 447), font == small);
    close("frmdB");
  }
  QApplication::setFont(usual);
}

using LocatorWindows = FormTest;

// Computed apart from this code, in double precision with the latitude packed to four bytes.
TEST_F(LocatorWindows, CentresOfSubsquares) {
  use("mnucoordinate", "txtwwl", "lbllong lbllat");
  for (const char* locator : {"", "JN61F", "JN61FVA"}) {
    enter(locator);
    EXPECT_EQ(boxes(), Boxes{"! DATI MANCANTI: il WWL deve essere di 6 caratteri"});
    EXPECT_EQ(results(), "|");
  }
  expect("AA00AA", "LONGITUDINE = -180°  2'  49\"|LATITUDINE    = -90°  1'  25\"");
  expect("jn54aa", "LONGITUDINE = 10°  2'  49\"|LATITUDINE    = 44°  1'  24\"");
  expect("RR99XX", "LONGITUDINE = 179°  57'  50\"|LATITUDINE    = 89°  58'  74\"");
}

TEST_F(LocatorWindows, LocatorOfCoordinates) {
  use("mnucoordinate", "txtlongr txtlonpr txtlonse txtlatgr txtlatpr txtlatse", "lblwwl");
  window = driven("frmwwl");
  expect("|||||", "il WORLD WIDE LOCATOR è :  JJ00AA");
  expect("12|28|59|41|53|24", "il WORLD WIDE LOCATOR è :  JN61FV");
  // Minutes are added to the degrees, also to negative ones: 8.5 degrees west.
  expect("-9|30||45||", "il WORLD WIDE LOCATOR è :  IN55RA");
}

TEST_F(LocatorWindows, StandInTheMiddleOfTheScreenAndComeForwardTogether) {
  const QRect above = choose("mnucoordinate").window().frameGeometry();
  const Driven to_locator = driven("frmwwl");
  const QRect below = to_locator.window().frameGeometry();
  const int middle = to_locator.window().screen()->geometry().center().x();
  EXPECT_NEAR(above.center().x(), middle, 2);
  EXPECT_NEAR(below.center().x(), middle, 2);
  EXPECT_LT(above.bottom(), below.top());

  to_locator.type("txtlongr", "12");
  close("frmcoordinate");
  to_locator.window().showMinimized();
  choose("mnucoordinate");
  EXPECT_FALSE(to_locator.window().isMinimized());
  EXPECT_EQ(to_locator.text("txtlongr"), "12");
  close("frmwwl");
  choose("mnucoordinate");
  EXPECT_TRUE(is_open("frmwwl"));
  EXPECT_TRUE(driven("frmcoordinate").window().isActiveWindow());
}

}  // namespace
}  // namespace eterlab::test
