#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frmpassabasso2 : public WindowTest {
 protected:
  test::Driven window = choose("mnupassabanda2");

  std::vector<std::string> compute(const char* impedance, const char* frequency) {
    window.type("txtimpedenza", impedance);
    window.type("txtf", frequency);
    window.click("cmdcalcola");
    return {window.text("lblzin"), window.text("lblc1"),  window.text("lbll"),
            window.text("lblc2a"), window.text("lblc2b"), window.text("lblzout")};
  }
  const std::vector<std::string> at_first{"INPUT", "", "", "", "", "OUTPUT"};
};

// In 40 digits: L = 0.68244, C1 = 245.678, C2 = 272.975; then 573.2484, 5732.484, 6369.427.
TEST_F(frmpassabasso2, Computes) {
  EXPECT_EQ(compute("50", "7"), (std::vector<std::string>{"50 OHM", "245.7 pF", "0.682 \u00b5H",
                                                          "273 pF", "273 pF", "50 OHM"}));
  set_regional_settings(test::italian());
  EXPECT_EQ(compute("300", "0.05"),
            (std::vector<std::string>{"300 OHM", "5.732,5 pF", "573,248 \u00b5H", "6369,4 pF",
                                      "6369,4 pF", "300 OHM"}));
}

TEST_F(frmpassabasso2, ZeroIsReportedAndANegativeProductIsNot) {
  EXPECT_EQ(compute("50", ""), at_first);
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtimpedenza");
  EXPECT_EQ(compute("50", "-7"), at_first);
  EXPECT_EQ(boxes(), Boxes{});
  EXPECT_EQ(compute("-50", "-7")[2], "0.682 \u00b5H");
}

TEST_F(frmpassabasso2, CoilWindowMovesNothing) {
  const QPoint place = window.window().pos();
  window.click("cmdchiamabobine");
  EXPECT_EQ(window.window().pos(), place);
  EXPECT_NE(is_open("frmbobine"),
            boxes() == Boxes{test::notice("FINESTRA NON ANCORA DISPONIBILE")});
  EXPECT_EQ(window.window().windowTitle(), "ALTRO FILTRO \"  L C  \" PASSA BASSO");
  EXPECT_EQ(window.tooltip("cmdstampa"), "IMPOSTA STAMPANTE IN ORIZZONTALE");
}

}  // namespace
}  // namespace eterlab
