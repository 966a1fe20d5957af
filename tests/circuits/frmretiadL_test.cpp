#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmretiadL : public WindowTest {
 protected:
  test::Driven window = choose("mnuretel");

  void compute(const char* higher, const char* lower) const {
    window.type("txtRH", higher);
    window.type("txtRL", lower);
    window.click("cmdcalcola");
  }
};

TEST_F(frmretiadL, MatchesSeventyFiveToFifty) {
  set_regional_settings(test::italian());
  compute("75", "50");
  EXPECT_EQ(window.text("lblR1"), "43,3");
  EXPECT_EQ(window.text("lblR2"), "86,6");
  EXPECT_EQ(window.text("lblperdita"), "L'ATTENUAZIONE E' 5,72 dB");
  window.type("txtRH", "100");  // results stay until the next computation
  EXPECT_EQ(window.text("lblR1"), "43,3");
}

TEST_F(frmretiadL, ResistorsAreGroupedAndTheLossDropsItsZeros) {
  compute("12345", "50");
  EXPECT_EQ(window.text("lblR1"), "12,320.0");
  EXPECT_EQ(window.text("lblR2"), "50.1");
  EXPECT_EQ(window.text("lblperdita"), "L'ATTENUAZIONE E' 29.94 dB");
  compute("55", "50");
  EXPECT_EQ(window.text("lblperdita"), "L'ATTENUAZIONE E' 2.7 dB");  // 2.7029
}

TEST_F(frmretiadL, Refuses) {
  const test::Box not_higher{"messaggio di errore",
                             "L'impedenza IN deve essere maggiore dell'impedenza OUT"};
  struct Refused {
    const char* higher;
    const char* lower;
    test::Box box;
  };
  const Refused table[] = {
      {"", "50", test::error("MANCANO DATI")},
      {"75", "0", test::error("MANCANO DATI")},
      {"75", "-50", test::error("MANCANO DATI")},
      {"50", "50", not_higher},
      {"50", "75", not_higher},
      {"-75", "-50", not_higher},
  };
  for (const Refused& refused : table) {
    SCOPED_TRACE(refused.higher);
    compute(refused.higher, refused.lower);
    EXPECT_EQ(boxes(), Boxes{refused.box});
    EXPECT_EQ(window.focus(), "txtRH");
    EXPECT_EQ(window.text("lblR1"), "");
  }
}

TEST_F(frmretiadL, TwoNegativeImpedancesEndTheProgram) {
  compute("-50", "-75");
  EXPECT_TRUE(has_ended());
}

TEST_F(frmretiadL, Texts) {
  EXPECT_EQ(window.text("Label1"),
            "La rete a L è la più semplice rete idonea ad adattare due impedenze diverse ");
  EXPECT_EQ(window.text("Label2"), "lato impedenza maggiore");
  EXPECT_EQ(window.text("Label4"), "lato impedenza minore");
  EXPECT_EQ(window.text("Label3"),
            "L'IMPEDENZA D' INGRESSO DEVE ESSERE MAGGIORE DELL'IMPEDENZA D' USCITA");
  EXPECT_EQ(window.tooltip("txtRL"), "inserire i dati");
}

}  // namespace
}  // namespace eterlab
