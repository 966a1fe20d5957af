#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmbobine : public WindowTest {
 protected:
  test::Driven window = choose("mnubobine");

  void compute(const char* diameter, const char* length, const char* input) const {
    window.type("txtdiametro", diameter);
    window.type("txtlunghezza", length);
    window.type("txtinput", input);
    window.click("cmdcalcola");
  }

  void expect_at_rest() const {
    EXPECT_FALSE(window.shows("lbloutput"));
    EXPECT_FALSE(window.shows("lbllunghezzafilo"));
    EXPECT_EQ(window.text("lbll"), "L");
    EXPECT_EQ(window.text("lbld"), " D ");
  }
};

TEST_F(frmbobine, FindsTheTurns) {
  expect_at_rest();
  EXPECT_EQ(window.text("lblinput"), "induttanza in \u00B5H :");
  compute("20", "40", "10");
  EXPECT_TRUE(window.shows("lbloutput"));
  EXPECT_TRUE(window.shows("lbllunghezzafilo"));
  EXPECT_EQ(window.text("lbloutput"), "35.0 spire in aria, filo con diametro massimo di mm. 1.14");
  EXPECT_EQ(window.text("lbllunghezzafilo"), "lunghezza del conduttore : 219 cm.");
  EXPECT_EQ(window.text("lbll"), "40 mm");
  EXPECT_EQ(window.text("lbld"), "20 mm ");
}

TEST_F(frmbobine, FindsTheInductance) {
  window.click("Option1_1");
  EXPECT_EQ(window.text("lblinput"), "numero di spire :");
  compute("20", "40", "35");
  EXPECT_EQ(window.text("lbloutput"), "\u00B5Henry :   10.00");
  EXPECT_EQ(window.text("lbllunghezzafilo"),
            "lunghezza del conduttore 219 cm. con diametro max mm. 1.14");
  window.click("Option1_0");
  expect_at_rest();
  EXPECT_EQ(window.text("lblinput"), "induttanza in \u00B5H :");
  EXPECT_EQ(window.text("txtinput"), "35");
}

// 5518.15 turns and 173271.48 cm; 62203.684 microhenry.
TEST_F(frmbobine, OnlyTurnsAndInductanceAreGrouped) {
  set_regional_settings(test::italian());
  compute("100", "3000", "100000");
  EXPECT_EQ(window.text("lbloutput"),
            "5.518,2 spire in aria, filo con diametro massimo di mm. 0,54");
  EXPECT_EQ(window.text("lbllunghezzafilo"), "lunghezza del conduttore : 173271 cm.");
  EXPECT_EQ(window.text("lbll"), "3000 mm");
  window.click("Option1_1");
  compute("100", "200", "1234.5");
  EXPECT_EQ(window.text("lbloutput"), "\u00B5Henry :   62.203,68");
  EXPECT_EQ(window.text("lbllunghezzafilo"),
            "lunghezza del conduttore 38763 cm. con diametro max mm. 0,16");
  compute("2.5", "10.25", "4");
  EXPECT_EQ(window.text("lbll"), "10,25 mm");
  EXPECT_EQ(window.text("lbld"), "2,5 mm ");
}

TEST_F(frmbobine, EveryChangeWithdrawsTheResult) {
  for (const char* box : {"txtdiametro", "txtlunghezza", "txtinput"}) {
    SCOPED_TRACE(box);
    compute("20", "40", "10");
    ASSERT_TRUE(window.shows("lbloutput"));
    window.type(box, "1");
    expect_at_rest();
  }
  window.press(Qt::Key_Return);
  EXPECT_TRUE(window.shows("lbloutput"));
  window.click("Option1_0");  // chosen already
  expect_at_rest();
}

TEST_F(frmbobine, OnlyTheSignOfTheProductIsChecked) {
  compute("20", "", "10");
  compute("20", "40", "-10");
  EXPECT_EQ(boxes(), (Boxes{test::error("MANCANO DATI"), test::error("MANCANO DATI")}));
  EXPECT_EQ(window.focus(), "txtinput");
  expect_at_rest();

  window.click("Option1_1");
  compute("-20", "-40", "10");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(window.text("lbloutput"), "\u00B5Henry :   -0.82");
  EXPECT_EQ(window.text("lbld"), "-20 mm ");
}

TEST_F(frmbobine, TurnsThatRoundToNoneEndTheProgram) {
  compute("20", "40", "0.000001");
  EXPECT_TRUE(has_ended());
}

TEST_F(frmbobine, Texts) {
  EXPECT_EQ(window.text("cmdesci"), "E X I T");
  EXPECT_EQ(window.text("cmdaprevhf"), "per bobine VHF clicca qui   \"Costr.Bobine VHF \"");
  EXPECT_EQ(window.text("lbllunghezza"), "lunghezza bobina  in millimetri");
  EXPECT_EQ(window.tooltip("lbldiametro"), "calcolato al centro spira");
}

TEST_F(frmbobine, StandsBesideTheWireGauges) {
  window.click("cmdchiamaawg");
  EXPECT_EQ(window.window().pos(), QPoint(12, 12));
  EXPECT_EQ(driven("frmawg").window().pos(), QPoint(273, 200));
  EXPECT_TRUE(is_open("frmawg"));
  EXPECT_FALSE(driven("frmawg").window().isModal());
}

TEST_F(frmbobine, AsksForTheVhfCoils) {
  window.click("cmdaprevhf");
  EXPECT_EQ(boxes(), Boxes{test::notice("FINESTRA NON ANCORA DISPONIBILE")});
}

}  // namespace
}  // namespace eterlab
