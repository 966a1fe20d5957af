#include "support/window_test.h"

namespace eterlab {
namespace {

constexpr int t12_12 = 7;
constexpr int t44_12 = 71;
constexpr int t50_2 = 77;
constexpr int t50_15 = 83;
constexpr int t225_6 = 156;
constexpr int t225_6_again = 157;

class frmamidon : public test::WindowTest {
 protected:
  test::Driven window = choose("mnunucleitoroidali");
};

// 100 sqrt(10 / A_L), with the indices of the catalogue.
TEST_F(frmamidon, TurnsForTenMicrohenry) {
  struct Expected {
    int core;
    const char* turns;
  };
  const Expected table[] = {
      {t12_12, "111.8"},       // A_L 8
      {t44_12, "74.5"},        // 18
      {t50_2, "45.2"},         // 49
      {t50_15, "8.6"},         // 1354
      {t225_6, "31.6"},        // 100
      {t225_6_again, "10.3"},  // 950
  };
  for (const Expected& expected : table) {
    window.pick("cmbnucleo", expected.core);
    EXPECT_EQ(window.text("lblspire"), "");
    window.type("txtinduttanza", "10");
    window.press(Qt::Key_Enter);
    EXPECT_EQ(window.text("lblspire"), "OCCORRONO " + std::string{expected.turns} + " SPIRE");
  }
}

TEST_F(frmamidon, ItalianResult) {
  set_regional_settings(test::italian());
  window.pick("cmbnucleo", 0);
  window.type("txtinduttanza", "100000");  // A_L 3: 18257.4
  window.click("cmdcalcola");
  EXPECT_EQ(window.text("lblspire"), "OCCORRONO 18.257,4 SPIRE");
}

TEST_F(frmamidon, InputAppearsWithTheFirstCore) {
  for (const bool is_chosen : {false, true}) {
    for (const char* control : {"txtinduttanza", "cmdcalcola", "lblhelp2", "lblpunto"}) {
      EXPECT_EQ(window.shows(control), is_chosen) << control;
    }
    window.pick("cmbnucleo", t50_2);
  }
}

TEST_F(frmamidon, AsksForTheInductanceInItsResult) {
  window.pick("cmbnucleo", t50_2);
  for (const char* nothing : {"", "0", "abc", "-0"}) {
    window.type("txtinduttanza", nothing);
    window.click("cmdcalcola");
    EXPECT_EQ(window.text("lblspire"), "INSERIRE INDUTTANZA") << nothing;
    EXPECT_EQ(window.focus(), "txtinduttanza");
  }
  window.type("txtinduttanza", "1");
  EXPECT_EQ(window.text("lblspire"), "");
  EXPECT_TRUE(boxes().empty());
}

TEST_F(frmamidon, AnotherCoreOrTheSameOneClearsTheResult) {
  window.pick("cmbnucleo", t50_2);
  for (const int core : {t50_2, t50_15}) {
    window.type("txtinduttanza", "10");
    window.click("cmdcalcola");
    EXPECT_NE(window.text("lblspire"), "");
    window.pick("cmbnucleo", core);
    EXPECT_EQ(window.text("lblspire"), "");
    EXPECT_EQ(window.text("txtinduttanza"), "10");
  }
}

TEST_F(frmamidon, NegativeInductanceIsFatal) {
  window.pick("cmbnucleo", t50_2);
  window.type("txtinduttanza", "-10");
  window.click("cmdcalcola");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
