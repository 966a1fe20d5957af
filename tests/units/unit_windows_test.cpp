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
