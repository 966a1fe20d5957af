#include "support/window_test.h"

namespace eterlab {
namespace {

class frmawg : public test::WindowTest {
 protected:
  test::Driven window = choose("mnuawg");

  static std::string diameter(const std::string& mm) {
    return "IL DIAMETRO DEL FILO CORRISPONDE A " + mm + " MILLIMETRI";
  }
};

TEST_F(frmawg, ConvertsAsTheUserTypes) {
  struct Expected {
    const char* typed;
    const char* mm;
  };
  // Diameters were computed with fifty decimals in Python and rounded.
  const Expected table[] = {
      {"0", "8.251"},   {"10", "2.588"},  {"18", "1.024"},  {"24", "0.511"},   {"30", "0.255"},
      {"36", "0.127"},  {"40", "0.080"},  {"80", "0.001"},  {"", "8.251"},     {"-", "8.251"},
      {"-3", "11.684"}, {"-2", "10.405"}, {"abc", "8.251"}, {"12,5", "2.053"},
  };
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.typed);
    window.type("txtawg", expected.typed);
    EXPECT_EQ(window.text("lbld"), diameter(expected.mm));
    EXPECT_EQ(window.text("txtawg"), expected.typed);
  }
  set_regional_settings(test::italian());
  window.type("txtawg", "24");
  EXPECT_EQ(window.text("lbld"), diameter("0,511"));
}

TEST_F(frmawg, GaugesAboveEightyBecomeEighty) {
  for (const char* typed : {"81", "100", "1e3", "80.5", " 9 9"}) {
    SCOPED_TRACE(typed);
    window.type("txtawg", typed);
    EXPECT_EQ(window.text("txtawg"), "80");
    EXPECT_EQ(window.text("lbld"), diameter("0.001"));
  }
  EXPECT_TRUE(boxes().empty());
}

TEST_F(frmawg, FirstChangeRevealsTheGaugesThatAreNoNumbers) {
  EXPECT_EQ(window.text("lbld"), "");
  EXPECT_FALSE(window.shows("lbl2"));
  window.type("txtawg", "5");
  EXPECT_TRUE(window.shows("lbl2"));
  EXPECT_EQ(window.text("lbl2"),
            "VALORI PARTICOLARI:    AWG  OOOO = 11,684 mm     AWG  OOO = 10,45 mm      AWG  OO = "
            "9,266 mm  ");
  window.clear("txtawg");
  EXPECT_TRUE(window.shows("lbl2"));
  EXPECT_EQ(window.tooltip("txtawg"), "VALORI AMMESSI DA 0 a  80");

  window.click("cmdesci");
  EXPECT_FALSE(is_open("frmawg"));
  EXPECT_FALSE(choose("mnuawg").shows("lbl2"));
}

}  // namespace
}  // namespace eterlab
