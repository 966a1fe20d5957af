#include <QComboBox>
#include <QString>

#include "support/form_test.h"

namespace eterlab {
namespace {

using test::english;
using test::FormTest;
using test::italian;
using test::Texts;

constexpr int t50_2 = 77;  // A_L 49
constexpr const char* no_data = "MANCANO DATI";

struct Toroids {
  const char* menu_entry;
  Texts hidden;  // as long as no core is chosen
};

// The list of cores and what is told about the chosen one, the same in all toroid windows.
class ToroidWindow : public test::WindowTest, public testing::WithParamInterface<Toroids> {
 protected:
  test::Driven window = choose(GetParam().menu_entry);
};

INSTANTIATE_TEST_SUITE_P(
    Windows, ToroidWindow,
    testing::Values(Toroids{"mnunucleitoro", {"txtinduttanza", "cmdcalcola", "lblhelp2"}},
                    Toroids{"mnusintoniatoro", {"Frame2"}},
                    Toroids{"mnuadattatoro",
                            {"Label2", "txtfrequenza", "Label3", "txtimpantenna", "Label4",
                             "txtimpcavo", "cmdcalcola", "lblpunto"}}),
    [](const auto& toroids) { return std::string{toroids.param.menu_entry}; });

TEST_P(ToroidWindow, AsksOnceACoreIsChosenAndTellsAboutIt) {
  const auto& list = dynamic_cast<QComboBox&>(window.control("cmbnucleo"));
  ASSERT_EQ(list.count(), 170);
  EXPECT_EQ(list.itemText(157), "T-225/ 6");
  for (const bool is_chosen : {false, true}) {
    EXPECT_EQ(window.shows("Frame1"), is_chosen);
    for (const std::string& control : GetParam().hidden) {
      EXPECT_EQ(window.shows(control), is_chosen) << control;
    }
    window.pick("cmbnucleo", 157);
  }
  EXPECT_EQ(window.text("lblcolore"),
            " 6               GIALLO             GRIGIO              10 / 50");
  EXPECT_EQ(window.text("lbldimensioni"), "DIAMETRO ESTERNO 57,15 mm - ALTEZZA 13,97 mm");
  window.pick("cmbnucleo", 169);
  EXPECT_EQ(window.text("lblcolore"),
            "26               GIALLO             BIANCO             50 HERTZ");
}

TEST_P(ToroidWindow, ColourCodeIsOfTheMix) {
  const auto& list = dynamic_cast<QComboBox&>(window.control("cmbnucleo"));
  for (int entry = 42; entry < 53; ++entry) {  // T-30 is made of every mix
    window.pick("cmbnucleo", entry);
    EXPECT_EQ(QString::fromStdString(window.text("lblcolore")).simplified().section(' ', 0, 0),
              list.itemText(entry).section('/', 1).trimmed());
  }
}

class frmamidon : public FormTest {
 protected:
  frmamidon() : FormTest{"mnunucleitoroidali", {"txtinduttanza"}, {"lblspire"}} {
    window.pick("cmbnucleo", t50_2);
  }
};

// 100 sqrt(L / A_L); there is no message box, the demand stands in the result's place.
TEST_F(frmamidon, TurnsOrTheDemandForAnInductance) {
  expect_computed({{english(), {"10"}, {"OCCORRONO 45.2 SPIRE"}},
                   {english(), {"-0"}, {"INSERIRE INDUTTANZA"}},
                   {italian(), {"1e6"}, {"OCCORRONO 14.285,7 SPIRE"}}});
  compute({"abc"});
  EXPECT_EQ(window.focus(), "txtinduttanza");
  expect_edits_leave({""}, {"10"});
  for (const int core : {t50_2, 157}) {
    compute({"10"});
    window.pick("cmbnucleo", core);
    EXPECT_EQ(results(), Texts{""});
  }
  expect_computed({{english(), {"10"}, {"OCCORRONO 10.3 SPIRE"}}});  // A_L 950
  compute({"-10"});
  EXPECT_TRUE(has_ended());
}

class frmadattatoritoroidali : public FormTest {
 protected:
  frmadattatoritoroidali()
      : FormTest{"mnuadattatoroidali",
                 {"txtfrequenza", "txtimpantenna", "txtimpcavo"},
                 {"lblspireprimario", "lblspiresecondario"}} {
    EXPECT_TRUE(window.shows("lblhelp"));
    window.pick("cmbnucleo", t50_2);
    EXPECT_FALSE(window.shows("lblhelp"));
  }
};

// L = 5 x 200 / 43.96 = 22.748 uH: 68.135 turns; the cable's side half of it.
TEST_F(frmadattatoritoroidali, TwoHundredOhmToFifty) {
  expect_computed(
      {{english(),
        {"7", "200", "50"},
        {"OCCORRONO 68.1 SPIRE VERSO L'ANTENNA", "INTERCALATE CON 34.1 SPIRE VERSO IL CAVO"}},
       {italian(),
        {"7e-6", "200", "50"},  // a thousand times as many
        {"OCCORRONO 68.135,4 SPIRE VERSO L'ANTENNA",
         "INTERCALATE CON 34.067,7 SPIRE VERSO IL CAVO"}},
       {english(), {"-7", "200", "50"}, {"", ""}}});
  expect_edits_leave({"", ""}, {"7", "200", "50"});
  compute({"7", "200", "50"});
  window.pick("cmbnucleo", t50_2);
  EXPECT_EQ(results(), (Texts{"", ""}));
}

TEST_F(frmadattatoritoroidali, MissingDataAndTwoNegativeImpedances) {
  expect_refused({{{"7", "200", ""}, test::error(no_data), "txtfrequenza"}});
  compute({"7", "-200", "-50"});
  EXPECT_TRUE(has_ended());
}

class frmsintoniatoro : public FormTest {
 protected:
  frmsintoniatoro()
      : FormTest{"mnusintoniatoro", {"txtinput1", "txtinput2"}, {"lblinput_3", "lblspire"}} {
    window.pick("cmbnucleo", t50_2);
  }
};

// 159 / sqrt(1000) = 5.02802, 25300 / 490 = 51.63265, 25300 / (51.633 x 49) = 9.99993; 10 uH are
// 100 sqrt(10 / 49) = 45.175 turns. 25300 / (2 x 0.01) = 1265000 pF; 100 sqrt(2 / 49) = 20.2 turns.
TEST_F(frmsintoniatoro, OptionsNameTheQuantitiesAndGiveTheThird) {
  struct Option {
    Texts prompts;
    test::Computed computed;
  };
  const Option options[] = {
      {{"INDUTTANZA :", " microH", "CAPACITA' :", " pF", "FREQUENZA :", " MHz"},
       {english(), {"10", "100"}, {"5.028", "OCCORRONO 45.2 SPIRE"}}},
      {{"FREQUENZA :", " MHz", "INDUTTANZA :", " microH", "CAPACITA' :", " pF"},
       {italian(), {"0.1", "2"}, {"1.265.000,000", "OCCORRONO 20,2 SPIRE"}}},
      {{"FREQUENZA :", " MHz", "CAPACITA' :", " pF", "INDUTTANZA :", " microH"},
       {english(), {"-7", "51.633"}, {"10.000", "OCCORRONO 45.2 SPIRE"}}},  // squared
  };
  EXPECT_FALSE(window.shows("txtinput1") || window.shows("cmdcalcola") || window.shows("lblhelp2"));
  for (int index = 0; index < 3; ++index) {
    window.click("Option1_" + std::to_string(index));
    Texts prompts;
    for (const char* place : {"0", "1", "2"}) {
      prompts.push_back(window.text("lblinput_" + std::string{place}));
      prompts.push_back(window.text("lblumisura_" + std::string{place}));
    }
    EXPECT_EQ(prompts, options[index].prompts);
    expect_computed({options[index].computed});
  }
  EXPECT_TRUE(window.shows("txtinput1") && window.shows("cmdcalcola") && window.shows("lblhelp2"));
  EXPECT_EQ(window.text("cmdcalcola"), "CALCOLA L'INDUTTANZA E LE SPIRE");
}

TEST_F(frmsintoniatoro, CoreAndOptionClearTheResultsWhichEditsAndRefusalsKeep) {
  const Texts found{"5.028", "OCCORRONO 45.2 SPIRE"};
  for (const bool by_core : {false, true}) {
    window.click("Option1_0");
    compute({"10", "100"});
    expect_refused({{{"11", "0"}, test::error(no_data), "txtinput1"}});
    EXPECT_EQ(results(), found);
    by_core ? window.pick("cmbnucleo", t50_2) : window.click("Option1_0");
    EXPECT_EQ(results(), (Texts{"", ""}));
  }
}

// 10 MHz and -10 pF: an inductance below zero, which no turns have.
TEST_F(frmsintoniatoro, TurnsOutOfANegativeRootEndTheProgram) {
  window.click("Option1_2");
  compute({"10", "-10"});
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
