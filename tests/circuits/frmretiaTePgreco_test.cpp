#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmretiaTePgreco : public WindowTest {
 protected:
  test::Driven window = choose("mnureteaT");

  void compute(const char* input, const char* output, const char* loss) const {
    window.type("txtZI", input);
    window.type("txtZO", output);
    window.type("txtLD", loss);
    window.click("cmdcalcola");
  }

  [[nodiscard]] std::vector<std::string> results() const {
    return {window.text("lblR1T"),    window.text("lblR2T"), window.text("lblR3T"),
            window.text("lblR1P"),    window.text("lblR2P"), window.text("lblR3P"),
            window.text("lblperdita")};
  }
};

// The values are those of the engineering's test; here it is who shows which, and how.
TEST_F(frmretiaTePgreco, WritesPlainNumbersBesideTheResistors) {
  set_regional_settings(test::italian());
  compute("75", "50", "10");
  EXPECT_EQ(results(), (std::vector<std::string>{"48,63", "18,08", "43,03", "207,43", "77,11",
                                                 "87,14", "PERDITA D'INSERZIONE 6 dB"}));
  compute("300", "75", "20");
  EXPECT_EQ(results(), (std::vector<std::string>{"275,76", "46,21", "30,3", "486,89", "81,59",
                                                 "742,5", "PERDITA D'INSERZIONE 15 dB"}));
}

TEST_F(frmretiaTePgreco, EqualImpedancesLoseNothing) {
  compute("50", "50", "6");
  EXPECT_EQ(results(), (std::vector<std::string>{"16.61", "16.61", "66.93", "150.48", "150.48",
                                                 "37.35", "PERDITA D'INSERZIONE 0 dB"}));
}

TEST_F(frmretiaTePgreco, SeriesResistorOfThePiHasTheSevenDigitsOfSinglePrecision) {
  compute("600", "50", "80");  // 866025.4 ohm: 866025.39512 to more digits
  EXPECT_EQ(window.text("lblR3P"), "866025.4");
}

TEST_F(frmretiaTePgreco, Refuses) {
  struct Refused {
    const char* input;
    const char* output;
    const char* loss;
    test::Box box;
    const char* focus;
  };
  const Refused table[] = {
      {"75", "50", "", test::error("MANCANO DATI"), "txtZI"},
      {"-75", "50", "10", test::error("MANCANO DATI"), "txtZI"},
      {"50", "75", "10", {"messaggio di errore", "IMPEDENZA IN < IMPEDENZA OUT"}, "txtZI"},
      {"75", "50", "6", {"messaggio di errore", "DATI NON CONGRUI"}, "txtLD"},
      {"75", "50", "6.8764", {"messaggio di errore", "DATI NON CONGRUI"}, "txtLD"},
  };
  for (const Refused& refused : table) {
    SCOPED_TRACE(refused.box.text);
    compute(refused.input, refused.output, refused.loss);
    EXPECT_EQ(boxes(), Boxes{refused.box});
    EXPECT_EQ(window.focus(), refused.focus);
    EXPECT_EQ(results(), std::vector<std::string>(7));
  }
  compute("75", "50", "6.8765");
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_NE(window.text("lblR1T"), "");
}

TEST_F(frmretiaTePgreco, LossThatChangesNothingEndsTheProgram) {
  compute("50", "50", "1e-16");
  EXPECT_TRUE(has_ended());
}

TEST_F(frmretiaTePgreco, Texts) {
  EXPECT_EQ(window.text("Label1"), "RETE a T");
  EXPECT_EQ(window.text("Label2"), "RETE a P GRECO");
  EXPECT_EQ(window.text("Label3"),
            "L'IMPEDENZA D' INGRESSO DEVE ESSERE MAGGIORE O UGUALE ALL'IMPEDENZA D' USCITA  QUANDO "
            "E' UGUALE NON SI HANNO PERDITE D' INSERZIONE");
}

}  // namespace
}  // namespace eterlab
