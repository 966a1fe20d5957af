#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmriduzcondensatori : public WindowTest {
 protected:
  test::Driven window = choose("mnuriduzcondensatori");

  void compute(const char* given, const char* wanted) const {
    window.type("txtc1", given);
    window.type("txtc2", wanted);
    window.click("cmdcalcola");
  }
};

// 1 / (1 / wanted - 1 / given), by hand.
TEST_F(frmriduzcondensatori, NanofaradFromAThousandAndOnePicofarad) {
  set_regional_settings(test::italian());
  struct Expected {
    const char* given;
    const char* wanted;
    const char* result;
  };
  const Expected table[] = {
      {"100", "50", "CAPACITA' DA APPLICARE IN SERIE =  100,0  picoF"},
      {"2000", "1000", "CAPACITA' DA APPLICARE IN SERIE =  2,0  nanoF"},
      {"1000", "500", "CAPACITA' DA APPLICARE IN SERIE =  1.000,0  picoF"},
      {"1000.99", "500.495", "CAPACITA' DA APPLICARE IN SERIE =  1.001,0  picoF"},
      {"1001", "500.5", "CAPACITA' DA APPLICARE IN SERIE =  1,0  nanoF"},
      {"470", "150", "CAPACITA' DA APPLICARE IN SERIE =  220,3  picoF"},
      {"-50", "-100", "CAPACITA' DA APPLICARE IN SERIE =  100,0  picoF"},
  };
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.given);
    compute(expected.given, expected.wanted);
    EXPECT_EQ(window.text("lblriduzione"), expected.result);
  }
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(frmriduzcondensatori, Refuses) {
  const test::Box not_larger{"STAI ATTENTO", "IL PRIMO COND.RE HA SEMPRE LA CAPACITA' MAGGIORE"};
  struct Refused {
    const char* given;
    const char* wanted;
    test::Box box;
  };
  const Refused table[] = {
      {"", "50", test::error("MANCANO DATI")},
      {"100", "", test::error("MANCANO DATI")},
      {"100", "-50", test::error("MANCANO DATI")},
      {"50", "100", not_larger},
      {"100", "100", not_larger},
      {"-100", "-50", not_larger},
  };
  compute("100", "50");
  for (const Refused& refused : table) {
    SCOPED_TRACE(refused.given);
    compute(refused.given, refused.wanted);
    EXPECT_EQ(boxes(), Boxes{refused.box});
    EXPECT_EQ(window.focus(), "txtc1");
    EXPECT_EQ(window.text("lblriduzione"), "CAPACITA' DA APPLICARE IN SERIE =  100.0  picoF");
  }
}

TEST_F(frmriduzcondensatori, Texts) {
  EXPECT_EQ(window.text("lblc1"), "CAPACITA' in pF DEL  CONDENSATORE :");
  EXPECT_EQ(window.text("lblR2"), "CAPACITA' in pF CHE SI VUOLE OTTENERE :");
  EXPECT_EQ(window.tooltip("cmdcalcola"), "abilita il calcolo");
  EXPECT_EQ(window.tooltip("cmdesci"), "chiude l'applicazione");
  window.click("cmdesci");
  EXPECT_FALSE(is_open("frmriduzcondensatori"));
  EXPECT_FALSE(has_ended());
}

}  // namespace
}  // namespace eterlab
