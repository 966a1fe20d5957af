#include "support/window_test.h"

namespace eterlab {
namespace {

class frmdimcirclc : public test::WindowTest {
 protected:
  test::Driven window = choose("mnudimcirclc");

  [[nodiscard]] std::vector<std::string> results() const {
    return {window.text("lblcapacita"), window.text("lblinduttanza")};
  }
};

// C = 400 / f and L = 63.325 / f, which is 25330 / (f f C), by hand.
TEST_F(frmdimcirclc, ComputesAsTheUserTypes) {
  set_regional_settings(test::italian());
  struct Expected {
    const char* frequency;
    const char* capacitance;
    const char* inductance;
  };
  const Expected table[] = {
      {"7", "57,1", "9,0"},
      {"14", "28,6", "4,5"},
      {"0.2", "2.000,0", "316,6"},
      {"-7", "-57,1", "-9,0"},
  };
  for (const Expected& expected : table) {
    window.type("txtfrequenza", expected.frequency);
    EXPECT_EQ(results(),
              (std::vector<std::string>{
                  std::string{"LA CAPACITA' OTTIMALE E'  CIRCA pF "} + expected.capacitance,
                  std::string{"L'INDUTTANZA IN QUESTO CASO E' µH "} + expected.inductance}));
  }
  for (const char* nothing : {"", "0", "abc"}) {
    window.type("txtfrequenza", "7");
    window.type("txtfrequenza", nothing);
    EXPECT_EQ(results(), (std::vector<std::string>{"", ""}));
  }
  EXPECT_TRUE(boxes().empty());
}

TEST_F(frmdimcirclc, FrequencyWhoseSquareIsNothingEndsTheProgram) {
  window.type("txtfrequenza", "1e-200");
  EXPECT_TRUE(has_ended());
}

TEST_F(frmdimcirclc, BothMenuEntriesOpenIt) {
  close("frmdimcirclc");
  EXPECT_EQ(choose("mnudimcirclc1").window().objectName(), "frmdimcirclc");
}

}  // namespace
}  // namespace eterlab
