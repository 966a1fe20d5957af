#include "support/window_test.h"

namespace eterlab {
namespace {

using Boxes = std::vector<test::Box>;
using Texts = std::vector<std::string>;

constexpr int t12_0 = 0;   // A_L 3
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
}

// Turns 34558.18 and a third of them.
TEST_F(frmadattatoritoroidali, ItalianResults) {
  set_regional_settings(test::italian());
  window.pick("cmbnucleo", t12_0);
  compute("0.001", "450", "50");
  EXPECT_EQ(results(), (Texts{"OCCORRONO 34.558,2 SPIRE VERSO L'ANTENNA",
                              "INTERCALATE CON 11.519,4 SPIRE VERSO IL CAVO"}));
}

TEST_F(frmadattatoritoroidali, InputsTakeThePlaceOfTheAdvice) {
  const char* const input[] = {"Label2", "txtfrequenza", "Label3",     "txtimpantenna",
                               "Label4", "txtimpcavo",   "cmdcalcola", "lblpunto"};
  EXPECT_TRUE(window.shows("lblhelp"));
  for (const char* control : input) {
    EXPECT_FALSE(window.shows(control)) << control;
  }
  window.pick("cmbnucleo", t50_2);
  EXPECT_FALSE(window.shows("lblhelp"));
  for (const char* control : input) {
    EXPECT_TRUE(window.shows(control)) << control;
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
