#include <QApplication>
#include <QScreen>

#include "common/regional_settings.h"
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

using frmmisureinglesi = FormTest;

TEST_F(frmmisureinglesi, LengthsInEveryUnit) {
  use("mnumisureInglesi", "cmbunita txtinput",
      "lblvalore_0 lblvalore_1 lblvalore_2 lblvalore_3 lblvalore_4 lblvalore_5 lblvalore_6 "
      "lblvalore_7 lblvalore_8");
  EXPECT_EQ(window.text("cmbunita lblunita_4"), "POLLICI|MIGLIA NAUTICHE");
  expect("POLLICI|5.5",
         "5,5|0,45833333|0,15277778|8,6805556E-05|7,5431965E-05|139,7|13,97|0,1397|0,0001397");
  // The other unit computes at once; 66 feet to a chain.
  window.type("cmbunita", "IARDE");
  window.type("txtinput", "22");
  EXPECT_EQ(window.text("lblvalore_1 lblvalore_7"), "66|20,1168");
  window.type("cmbunita", "METRI");
  EXPECT_EQ(window.text("lblvalore_2 lblvalore_6"), "24,059493|2200");
  EXPECT_TRUE(window.control("lblvalore_7").font().bold());
  for (const char* typed : {"METRI|0", "METRI|-1", "METRI|1.1e15", "METRI|1e-13"}) {
    expect(typed, "||||||||");
  }
  expect("METRI|1e15",
         "3,9370079E+16|3,2808399E+15|1,0936133E+15|621371190000|539956800000|1E+18|1E+17|"
         "1E+15|1000000000000");
}

using frmaltreconversioni = FormTest;

TEST_F(frmaltreconversioni, OtherQuantities) {
  choose("mnumisureInglesi").click("cmdaltreconversioni");
  use_opened(driven("frmaltreconversioni"), "cmbgrandezza cmbunita txtinput",
             "lblvalore_0 lblvalore_1 lblvalore_2 lblvalore_3 lblvalore_4");
  EXPECT_EQ(window.text("cmbgrandezza cmbunita lblunita_2"), "PESO|ONCE|GRANI");
  expect("PESO|ONCE|10", "10|0,625|4375|283,4952|0,2834952");
  window.type("cmbgrandezza", "VOLUME");
  EXPECT_EQ(window.text("cmbunita txtinput lblunita_0 lblvalore_0"), "POLLICI CUBI||POLLICI CUBI|");
  expect("VOLUME|GALLONI U.S.A.|0", "||||");
  expect("VOLUME|GALLONI U.S.A.|1", "231|6,661393|0,8326742|1|3,785412");
  expect("SUPERFICIE|ACRI|1", "6272640|43560|1|40468560|4046,856");
  expect("PRESSIONE|ATMOSFERE|1", "14,69595|29,92125|1,01325|1|101325");
  expect("POTENZA|HORSEPOWER|1", "1|1,01387|2544,434|745,6999|0,7456999");
  expect("VELOCITA'|NODI|1", "1,150779|1|1,68781|1,852|0,5144444");
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

using frmfrequenzametri = FormTest;

TEST_F(frmfrequenzametri, EachFromEachOther) {
  use("mnufrequenzametri", "Option1 txtinput",
      "lblinput lblmetri lblfrequenza lblpulsazione lblperiodo");
  const auto wave = [](const std::string& prompt, const std::string& metres, const std::string& khz,
                       const std::string& pulsation, const std::string& ms) {
    return prompt + "|METRI : " + metres + "|FREQUENZA IN KHz : " + khz +
           "|PULSAZIONE/SECONDO : " + pulsation + "|PERIODO/millisecondi : " + ms;
  };
  EXPECT_EQ(window.text("lblinput"), "METRI :");
  expect("1|7100", wave("FREQUENZA IN KHz :", "42,2243", "7100", "44610600", "0,000140845"));
  expect("0|20", wave("METRI :", "20", "14989,6", "94182600", "6,67128E-05"));
  expect("3|20", wave("PERIODO/millisecondi:", "5995850", "0,05", "314,159", "20"));
  expect("2|314.159265", wave("PULSAZIONE/SECONDO :", "5995850", "0,05", "314,159", "20"));
  EXPECT_EQ(window.text("txtinput"), "314.159265");
  window.click("Option1_1");
  EXPECT_EQ(window.text("txtinput lblmetri lblperiodo"), "||");
  expect("1|1e15", wave("FREQUENZA IN KHz :", "2,99792E-10", "1E+15", "6,28319E+18", "1E-15"));
  for (const char* unusable : {"1|0", "1|-3", "1|1.1e15", "1|9e-13"}) {
    expect(unusable, "FREQUENZA IN KHz :||||");
  }
}

using frmradianti = FormTest;

TEST_F(frmradianti, EveryUnitSignAndRounding) {
  use("mnuradiant", "Option1 txtinput",
      "lblgradi lblsessagesimali lblradianti lblcentesimali lblgiri");
  const auto angle = [](const std::string& degrees, const std::string& sexagesimal,
                        const std::string& radians, const std::string& gons,
                        const std::string& turns) {
    return "GRADI DECIMALI = " + degrees + "|GRADI SESSAGESIMALI = " + sexagesimal +
           "|RADIANTI = " + radians + "|GRADI CENTESIMALI = " + gons + "|GIRI = " + turns;
  };
  expect("0|57.29578", angle("57,29578", "57° 17' 44,8\"", "1", "63,661978", "0,15915494"));
  EXPECT_EQ(window.text("lblvaloreseno lblvalorecoseno"), "0,8415|0,5403");
  expect("1|3.14159265", angle("180", "180° 0' 0,0\"", "3,1415927", "200", "0,5"));
  EXPECT_EQ(window.text("lblinput lblvaloreseno lblvalorecoseno"), "RADIANTI :|0,0000|-1,0000");
  expect("2|-50", angle("-45", "-45° 0' 0,0\"", "-0,78539816", "-50", "-0,125"));
  expect("0|0", angle("0", "0° 0' 0,0\"", "0", "0", "0"));
  enter("0|-0.00001");  // 0.036 seconds
  EXPECT_EQ(window.text("lblsessagesimali"), "GRADI SESSAGESIMALI = 0° 0' 0,0\"");
  enter("0|-0.000014");  // 0.0504 seconds
  EXPECT_EQ(window.text("lblsessagesimali"), "GRADI SESSAGESIMALI = -0° 0' 0,1\"");
  enter("0|1e9");
  EXPECT_EQ(window.text("lblsessagesimali lblvaloreseno"),
            "GRADI SESSAGESIMALI = 1000000000° 0' 0,0\"|-0,9848");  // of 280 degrees
  for (const char* unusable : {"0|", "0|-", "0|1.1e9", "0|-1.1e9"}) {
    expect(unusable, "||||");
    EXPECT_EQ(window.text("lblvaloreseno lblvalorecoseno"), "|");
  }
}

using frmprefissi = FormTest;

TEST_F(frmprefissi, FromOnePrefixToAnother) {
  use("mnuprefissi", "cmbda cmba txtinput", "lbloutput");
  EXPECT_EQ(window.text("cmbda cmba lbloutput"), "-|-|");
  const char* const table[][2] = {{"k|M|7100", "7,1"},
                                  {"p|n|-4700", "-4,7"},
                                  {"-|µ|0.00000047", "0,47"},
                                  {"da|d|1.5", "150"},
                                  {"-|-|0", "0"},
                                  {"Q|q|1", "1E+60"},
                                  {"-|k|1234567890123.5", ""},
                                  {"m|-|123456789012.5", "123456789,013"},
                                  {"-|-|", ""}};
  for (const auto& [typed, result] : table) {
    expect(typed, result);
  }
}

TEST_F(frmprefissi, WritesTheNumbersOutAsTheCountryDoes) {
  use("mnuprefissi", "txtinput", "lbloutput");
  EXPECT_EQ(window.text("lblprefisso_0 lblsimbolo_0 lblfattore_0 lblnumero_0"), "quetta|Q|10³⁰|");
  EXPECT_EQ(window.text("lblprefisso_23 lblsimbolo_23 lblfattore_23 lblnumero_23"),
            "quecto|q|10⁻³⁰|");
  EXPECT_EQ(window.text("lblnumero_5 lblnumero_6 lblnumero_9 lblnumero_11"),
            "|1 000 000 000 000|1 000|10");
  EXPECT_EQ(window.text("lblnumero_12 lblnumero_14 lblnumero_15 lblnumero_17 lblnumero_18"),
            "0,1|0,001|0,000 001|0,000 000 000 001|");
  window.click("cmdchiudi");
  set_regional_settings({});
  EXPECT_EQ(choose("mnuprefissi").text("lblnumero_15"), "0.000 001");
}

}  // namespace
}  // namespace eterlab::test
