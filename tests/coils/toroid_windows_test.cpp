#include <QComboBox>
#include <QString>

#include "support/form_test.h"

namespace eterlab::test {
namespace {

constexpr int t50_2 = 77;    // A_L 49
constexpr int t225_6 = 157;  // A_L 950

// The list of cores and what is told about the chosen one, the same in all toroid windows.
using ToroidWindows = FormTest;

TEST_F(ToroidWindows, AskOnceACoreIsChosenAndTellAboutIt) {
  const char* const windows[][2] = {
      {"mnunucleitoro", "txtinduttanza cmdcalcola lblhelp2 Frame1"},
      {"mnusintoniatoro", "Frame2 Frame1"},
      {"mnuadattatoro",
       "Label2 txtfrequenza Label3 txtimpantenna Label4 txtimpcavo cmdcalcola lblpunto Frame1"},
  };
  for (const auto& [menu_entry, hidden] : windows) {
    use(menu_entry, "", "lblcolore lbldimensioni");
    EXPECT_EQ(window.shown(hidden), "");
    window.pick("cmbnucleo", t225_6);
    EXPECT_EQ(window.shown(hidden), hidden);
    EXPECT_EQ(window.text("cmbnucleo"), "T-225/ 6");
    EXPECT_EQ(results(),
              " 6               GIALLO             GRIGIO              10 / 50|"
              "DIAMETRO ESTERNO 57,15 mm - ALTEZZA 13,97 mm");
  }
  window.pick("cmbnucleo", 169);
  EXPECT_EQ(window.text("lblcolore"),
            "26               GIALLO             BIANCO             50 HERTZ");
  const auto& list = dynamic_cast<QComboBox&>(window.control("cmbnucleo"));
  EXPECT_EQ(list.count(), 170);
  for (int entry = 42; entry < 53; ++entry) {  // T-30 is made of every mix
    window.pick("cmbnucleo", entry);
    EXPECT_EQ(QString::fromStdString(window.text("lblcolore")).simplified().section(' ', 0, 0),
              list.itemText(entry).section('/', 1).trimmed());
  }
}

using frmamidon = FormTest;

// 100 sqrt(L / A_L); there is no message box, the demand stands in the result's place.
TEST_F(frmamidon, TurnsOrTheDemandForAnInductance) {
  use("mnunucleitoroidali", "txtinduttanza", "lblspire");
  window.pick("cmbnucleo", t50_2);
  window.click("cmdcalcola");
  EXPECT_EQ(results(), "INSERIRE INDUTTANZA");
  EXPECT_EQ(window.focus(), "txtinduttanza");
  expect_edits_leave("", "10");
  for (const int core : {t50_2, t225_6}) {
    expect("10", "OCCORRONO 45,2 SPIRE");
    window.pick("cmbnucleo", core);
    EXPECT_EQ(results(), "");
  }
  expect("10", "OCCORRONO 10,3 SPIRE");
  window.pick("cmbnucleo", t50_2);
  expect("1e6", "OCCORRONO 14.285,7 SPIRE");
  expect_end("-10");
}

using frmadattatoritoroidali = FormTest;

// L = 5 x 200 / 43.96 = 22.748 uH: 68.135 turns; the cable's side half of it.
TEST_F(frmadattatoritoroidali, TwoHundredOhmToFifty) {
  use("mnuadattatoroidali", "txtfrequenza txtimpantenna txtimpcavo",
      "lblspireprimario lblspiresecondario");
  EXPECT_TRUE(window.shows("lblhelp"));
  window.pick("cmbnucleo", t50_2);
  EXPECT_FALSE(window.shows("lblhelp"));
  expect_refusal("7|200|", "txtfrequenza");
  expect("-7|200|50", "|");
  expect_edits_leave("|", "7|200|50");
  expect("7|200|50",
         "OCCORRONO 68,1 SPIRE VERSO L'ANTENNA|INTERCALATE CON 34,1 SPIRE VERSO IL CAVO");
  window.pick("cmbnucleo", t50_2);
  EXPECT_EQ(results(), "|");
  expect("7e-6|200|50",  // a thousand times as many
         "OCCORRONO 68.135,4 SPIRE VERSO L'ANTENNA|INTERCALATE CON 34.067,7 SPIRE VERSO IL CAVO");
  expect_end("7|-200|-50");
}

using frmsintoniatoro = FormTest;

// 159 / sqrt(1000) = 5.02802, 25300 / 490 = 51.63265, 25300 / (51.633 x 49) = 9.99993; 10 uH are
// 100 sqrt(10 / 49) = 45.175 turns. 25300 / (2 x 0.01) = 1265000 pF; 100 sqrt(2 / 49) = 20.2 turns.
TEST_F(frmsintoniatoro, OptionsNameTheQuantitiesAndGiveTheThird) {
  use("mnusintoniatoro", "txtinput1 txtinput2",
      "lblinput_0 lblumisura_0 lblinput_1 lblumisura_1 lblinput_2 lblinput_3 lblumisura_2 "
      "lblspire");
  const std::string asked = "txtinput1 cmdcalcola lblhelp2";
  EXPECT_EQ(window.shown(asked), "");
  window.pick("cmbnucleo", t50_2);
  EXPECT_EQ(window.shown(asked), "");
  window.click("Option1_0");
  EXPECT_EQ(window.shown(asked), asked);
  const char* const found =
      "INDUTTANZA :| microH|CAPACITA' :| pF|FREQUENZA :|5,028| MHz|OCCORRONO 45,2 SPIRE";
  for (const bool by_core : {false, true}) {
    expect("10|100", found);
    expect_refusal("11|0", "txtinput1");  // keeps the results, as edits do
    EXPECT_EQ(results(), found);
    by_core ? window.pick("cmbnucleo", t50_2) : window.click("Option1_0");
    EXPECT_EQ(window.text("lblinput_3 lblspire"), "|");
  }
  window.click("Option1_2");
  EXPECT_EQ(window.text("cmdcalcola"), "CALCOLA L'INDUTTANZA E LE SPIRE");
  expect("-7|51.633",  // squared
         "FREQUENZA :| MHz|CAPACITA' :| pF|INDUTTANZA :|10,000| microH|OCCORRONO 45,2 SPIRE");
  window.click("Option1_1");
  expect(
      "0.1|2",
      "FREQUENZA :| MHz|INDUTTANZA :| microH|CAPACITA' :|1.265.000,000| pF|OCCORRONO 20,2 SPIRE");
  window.click("Option1_2");
  expect_end("10|-10");  // an inductance below zero, which no turns have
}

}  // namespace
}  // namespace eterlab::test
