#include "support/form_test.h"

namespace eterlab {
namespace {

using test::english;
using test::error;
using test::italian;
using test::Texts;

constexpr const char* no_data = "MANCANO DATI";

class frmbobine : public test::FormTest {
 protected:
  frmbobine()
      : FormTest{"mnubobine",
                 {"txtdiametro", "txtlunghezza", "txtinput"},
                 {"lbloutput", "lbllunghezzafilo", "lbll", "lbld"}} {}
  const Texts at_rest{"", "", "L", " D "};
};

// 62203.684 uH of 1234.5 turns; 5518.15 turns and 173271.48 cm.
TEST_F(frmbobine, TurnsOrInductanceOfWhichAloneIsGrouped) {
  EXPECT_EQ(results(), at_rest);
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblinput"), "numero di spire :");
  expect_computed(
      {{english(),
        {"20", "40", "35"},
        {"µHenry :   10.00", "lunghezza del conduttore 219 cm. con diametro max mm. 1.14", "40 mm",
         "20 mm "}},
       {italian(),
        {"100", "200", "1234.5"},
        {"µHenry :   62.203,68", "lunghezza del conduttore 38763 cm. con diametro max mm. 0,16",
         "200 mm", "100 mm "}}});
  compute({"-20", "-40", "10"});
  EXPECT_EQ(results()[0], "µHenry :   -0,82");
  window.click("Option1_0");
  EXPECT_EQ(results(), at_rest);
  EXPECT_EQ(window.text("txtinput"), "10");
  EXPECT_EQ(window.text("lblinput"), "induttanza in µH :");
  expect_computed({{italian(),
                    {"100", "3000", "100000"},
                    {"5.518,2 spire in aria, filo con diametro massimo di mm. 0,54",
                     "lunghezza del conduttore : 173271 cm.", "3000 mm", "100 mm "}}});
}

TEST_F(frmbobine, EditsWithdrawTheResultsAndOnlyTheSignOfTheProductIsChecked) {
  expect_edits_leave(at_rest, {"20", "40", "10"});
  expect_refused({{{"20", "", "10"}, error(no_data), "txtinput"},
                  {{"20", "40", "-10"}, error(no_data), "txtinput"}});
  EXPECT_EQ(results(), at_rest);
  compute({"20", "40", "0.000001"});  // turns that round to none
  EXPECT_TRUE(has_ended());
}

TEST_F(frmbobine, OpensTheWireGaugesBesideItselfAndAsksForTheVhfCoils) {
  window.click("cmdchiamaawg");
  EXPECT_EQ(window.window().pos(), QPoint(12, 12));
  expect_companion("frmawg", {273, 200});
  window.click("cmdaprevhf");
  EXPECT_EQ(boxes(), test::Boxes{test::notice("FINESTRA NON ANCORA DISPONIBILE")});
}

class frminduttanzaspirale : public test::FormTest {
 protected:
  frminduttanzaspirale()
      : FormTest{"mnuinduttanzaspirale",
                 {"txtnr", "txtr1", "txtr2"},
                 {"lblinduttanza", "lblmedio", "lblspessore", "lblraggioesterno"}} {}
};

TEST_F(frminduttanzaspirale, ComputesAndMarksTheSketchWhichKeepsTheOuterRadius) {
  EXPECT_EQ(results(), (Texts{"", "RAGGIO MEDIO", "SPESSORE", "raggio esterno"}));
  expect_computed(
      {{italian(),
        {"20", "12.5", "40"},
        {"l'induttanza è µhenry    21,28", "26,25 mm", "27,5 mm", "40 mm"}},
       {english(), {"5", "20", "20"}, {"l'induttanza è µhenry    2.5", "20 mm", "0 mm", "20 mm"}}});
  EXPECT_EQ(window.text("lblraggiointerno"), "raggio interno");
  expect_edits_leave({"", "RAGGIO MEDIO", "SPESSORE", "30 mm"}, {"10", "10", "30"});
}

TEST_F(frminduttanzaspirale, RadiiAreNotSwappedAndWhatIsMissingIsToldFirst) {
  expect_refused({{{"10", "30", "10"}, error("IL RAGGIO ESTERNO E' SEMPRE MAGGIORE"), "txtr1"},
                  {{"", "30", "10"}, error(no_data), "txtnr"}});
  EXPECT_FALSE(window.shows("lblinduttanza"));
}

class frmmultilayercoil : public test::FormTest {
 protected:
  frmmultilayercoil()
      : FormTest{"mnumultilayer",
                 {"txtspire", "txtlarghezza", "txtraggionucleo", "txtdiametrofilo"},
                 {"lblhenry", "lblnspirestrato", "lblnstrati", "lbllunghezzafilo", "lblrdc",
                  "lblr1", "lblr2", "lbllarg", "lblspessore"}} {}
};

// Texts of rounded values keep their zeros, others do not.
TEST_F(frmmultilayercoil, ResultsAndSketch) {
  expect_computed({{italian(),
                    {"100", "10", "10", "0.5"},
                    {"L'INDUTTANZA E' µHenry :   218,45", "LE SPIRE PER STRATO SONO 20,0",
                     "GLI STRATI SONO  5,0", "L'AVVOLGIMENTO E' LUNGO CIRCA METRI 7,07",
                     "LA RESISTENZA ALLA CORRENTE CONTINUA E' 0,65 OHMS", "1 cm ", "1,3 cm", "1 cm",
                     "0,25 cm"}}});
  set_regional_settings(english());
  compute({"250", "12", "7.5", "0.4"});
  EXPECT_EQ(results()[0], "L'INDUTTANZA E' µHenry :   842.60");
  compute({"300", "8", "6.4", "0.1"});  // 1067.2329 uH, rounded before it is divided
  EXPECT_EQ(results()[0], "L'INDUTTANZA E' milli Henry :   1.06723");
}

TEST_F(frmmultilayercoil, EditsWithdrawTheResultsAndOnlyTheProductIsChecked) {
  const Texts at_rest{"", "", "", "", "", "r", " R ", "larghezza", "Spessore"};
  EXPECT_EQ(results(), at_rest);
  expect_edits_leave(at_rest, {"100", "10", "10", "0.5"});
  expect_refused({{{"100", "10", "-10", "0.5"}, error(no_data), "txtdiametrofilo"}});
  EXPECT_EQ(results(), at_rest);
  compute({"-100", "-10", "10", "0.5"});
  EXPECT_EQ(results()[1], "LE SPIRE PER STRATO SONO -20.0");
}

TEST_F(frmmultilayercoil, WireGaugesStandAtTheirPlaceAndThisWindowStays) {
  const QPoint corner = window.window().pos();
  window.click("cmdchiamaawg");
  EXPECT_EQ(window.window().pos(), corner);
  expect_companion("frmawg", {273, 200});
  // The window of VHF coils would be moved, but not shown; that there is none is no matter.
  EXPECT_FALSE(is_open("frmmicrobobine"));
  EXPECT_EQ(boxes(), test::Boxes{});
}

}  // namespace
}  // namespace eterlab
