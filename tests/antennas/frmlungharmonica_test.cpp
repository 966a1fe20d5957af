#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmlungharmonica : public WindowTest {
 protected:
  test::Driven window = choose("mnulungharmonica");

  void compute(const char* half_waves, const char* frequency) const {
    window.type("txtn", half_waves);
    window.type("txtf", frequency);
    window.press(Qt::Key_Return);
  }
};

TEST_F(frmlungharmonica, Computes) {
  struct Expected {
    const char* half_waves;
    const char* frequency;
    const char* text;
  };
  // 150 (N - 0.05) / f by hand; only the product of the inputs is checked.
  const Expected table[] = {
      {"1", "7.1", "L'ANTENNA E' LUNGA  20,07 METRI"},
      {"3", "14.2", "L'ANTENNA E' LUNGA  31,16 METRI"},
      {"0.5", "10", "L'ANTENNA E' LUNGA  6,75 METRI"},
      {"1000", "0.1", "L'ANTENNA E' LUNGA  1.499.925,00 METRI"},
      {"-1", "-7.5", "L'ANTENNA E' LUNGA  21,00 METRI"},
      {"0.03", "1", "L'ANTENNA E' LUNGA  -3,00 METRI"},
  };
  set_regional_settings(test::italian());
  for (const Expected& expected : table) {
    compute(expected.half_waves, expected.frequency);
    EXPECT_EQ(window.text("lbllunghezza"), expected.text);
  }
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(frmlungharmonica, RefusesAProductThatIsNotPositive) {
  compute("3", "14.2");
  for (const auto& [half_waves, frequency] :
       {std::pair{"0", "7"}, std::pair{"1", ""}, std::pair{"-1", "7"}, std::pair{"1", "-7"}}) {
    window.click("txtn");
    compute(half_waves, frequency);
    EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
    EXPECT_EQ(window.focus(), "txtf");
    EXPECT_EQ(window.text("lbllunghezza"), "L'ANTENNA E' LUNGA  31.16 METRI");
  }
}

TEST_F(frmlungharmonica, ADoorLeadsOut) {
  EXPECT_EQ(window.text("cmdesci"), "");
  EXPECT_EQ(window.tooltip("cmdesci"), "chiude l'applicazione");
  window.click("cmdesci");
  EXPECT_FALSE(is_open("frmlungharmonica"));
}

}  // namespace
}  // namespace eterlab
