#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;
using Texts = std::vector<std::string>;

constexpr int t50_2 = 77;  // A_L 49

class frmadattatoritoroidali : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuadattatoroidali");

  void compute(const char* frequency, const char* antenna, const char* cable) {
    window.type("txtfrequenza", frequency);
    window.type("txtimpantenna", antenna);
    window.type("txtimpcavo", cable);
    window.press(Qt::Key_Return);
  }
  [[nodiscard]] Texts results() const {
    return {window.text("lblspireprimario"), window.text("lblspiresecondario")};
  }
};

// L = 5 x 200 / 43.96 = 22.748 uH: 68.135 turns; the cable's side half of it.
TEST_F(frmadattatoritoroidali, TwoHundredOhmToFifty) {
  window.pick("cmbnucleo", t50_2);
  compute("7", "200", "50");
  EXPECT_EQ(results(), (Texts{"OCCORRONO 68.1 SPIRE VERSO L'ANTENNA",
                              "INTERCALATE CON 34.1 SPIRE VERSO IL CAVO"}));
  set_regional_settings(test::italian());
  compute("7e-6", "200", "50");  // a thousand times as many
  EXPECT_EQ(results(), (Texts{"OCCORRONO 68.135,4 SPIRE VERSO L'ANTENNA",
                              "INTERCALATE CON 34.067,7 SPIRE VERSO IL CAVO"}));
}

TEST_F(frmadattatoritoroidali, InputsTakeThePlaceOfTheAdvice) {
  for (const bool is_chosen : {false, true}) {
    EXPECT_NE(window.shows("lblhelp"), is_chosen);
    for (const char* control : {"Label2", "txtfrequenza", "Label3", "txtimpantenna", "Label4",
                                "txtimpcavo", "cmdcalcola", "lblpunto"}) {
      EXPECT_EQ(window.shows(control), is_chosen) << control;
    }
    window.pick("cmbnucleo", t50_2);
  }
}

TEST_F(frmadattatoritoroidali, EditsAndChoicesClearTheResults) {
  window.pick("cmbnucleo", t50_2);
  for (const char* box : {"txtfrequenza", "txtimpantenna", "txtimpcavo"}) {
    compute("7", "200", "50");
    EXPECT_NE(results(), (Texts{"", ""}));
    window.type(box, "75");
    EXPECT_EQ(results(), (Texts{"", ""})) << box;
  }
  compute("7", "200", "50");
  window.pick("cmbnucleo", t50_2);
  EXPECT_EQ(results(), (Texts{"", ""}));
}

TEST_F(frmadattatoritoroidali, MissingDataAndNegativeProducts) {
  window.pick("cmbnucleo", t50_2);
  compute("7", "200", "");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtfrequenza");
  compute("-7", "200", "50");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(results(), (Texts{"", ""}));
  EXPECT_FALSE(has_ended());
}

TEST_F(frmadattatoritoroidali, TwoNegativeImpedancesAreFatal) {
  window.pick("cmbnucleo", t50_2);
  compute("7", "-200", "-50");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
