#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;
using Texts = std::vector<std::string>;

class frmyagi5 : public WindowTest {
 protected:
  test::Driven window = choose("mnuyagi5");

  [[nodiscard]] Texts results() const {
    Texts texts;
    for (const char* label :
         {"lblriflettore", "lblradiatore", "lbl1direttore", "lbl2direttore", "lbl3direttore",
          "lblspazriflettore", "lblspaz1direttore", "lblspaz2direttore", "lblspaz3direttore"}) {
      texts.push_back(window.text(label));
    }
    return texts;
  }
  [[nodiscard]] bool shows_results() const {
    const bool shows = window.shows("Frame1");
    for (const char* label :
         {"lblspazriflettore", "lblspaz1direttore", "lblspaz2direttore", "lblspaz3direttore"}) {
      EXPECT_EQ(window.shows(label), shows) << label;
    }
    return shows;
  }
};

TEST_F(frmyagi5, ComputesAsTheUserTypes) {
  window.type("txtfrequenza", "28.5");
  EXPECT_EQ(
      results(),
      (Texts{"IL RIFLETTORE E' LUNGO  526 cm.", "IL RADIATORE E' LUNGO  498 cm.",
             "IL 1 DIRETTORE E' LUNGO  467 cm.", "IL 2 DIRETTORE E' LUNGO  460 cm.",
             "IL 3 DIRETTORE E' LUNGO  453 cm.", "211 cm.", "105 cm.", "158 cm.", "211 cm."}));
  window.type("txtfrequenza", "144.5");
  EXPECT_EQ(results(),
            (Texts{"IL RIFLETTORE E' LUNGO  104 cm.", "IL RADIATORE E' LUNGO  98 cm.",
                   "IL 1 DIRETTORE E' LUNGO  92 cm.", "IL 2 DIRETTORE E' LUNGO  91 cm.",
                   "IL 3 DIRETTORE E' LUNGO  89 cm.", "42 cm.", "21 cm.", "31 cm.", "42 cm."}));
}

TEST_F(frmyagi5, OnlyTheLastValuesAreNotGrouped) {
  set_regional_settings(test::italian());
  window.type("txtfrequenza", "1");
  EXPECT_EQ(results(),
            (Texts{"IL RIFLETTORE E' LUNGO  15.000 cm.", "IL RADIATORE E' LUNGO  14.200 cm.",
                   "IL 1 DIRETTORE E' LUNGO  13.300 cm.", "IL 2 DIRETTORE E' LUNGO  13.100 cm.",
                   "IL 3 DIRETTORE E' LUNGO  12900 cm.", "6.000 cm.", "3.000 cm.", "4.500 cm.",
                   "6000 cm."}));
}

TEST_F(frmyagi5, ResultsAreHiddenWithoutAPositiveFrequency) {
  EXPECT_FALSE(shows_results());
  window.type("txtfrequenza", "28.5");
  EXPECT_TRUE(shows_results());
  for (const char* text : {"", "0", "-28.5", "abc"}) {
    SCOPED_TRACE(text);
    window.type("txtfrequenza", text);
    EXPECT_FALSE(shows_results());
  }
  EXPECT_EQ(boxes(), Boxes{});
  window.type("txtfrequenza", "144.5");
  EXPECT_TRUE(shows_results());
}

TEST_F(frmyagi5, GammaMatchStandsBeside) {
  for (int click = 0; click < 2; ++click) {
    window.click("cmdgamma");
    EXPECT_EQ(window.window().pos(), QPoint(13, 13));
    ASSERT_TRUE(is_open("frmgammamatch"));
    QWidget& gamma_match = driven("frmgammamatch").window();
    EXPECT_FALSE(gamma_match.isModal());
    EXPECT_EQ(gamma_match.pos(), QPoint(533, 533));
    window.window().move(100, 100);
    gamma_match.move(100, 100);
  }
  window.click("cmdesci");
  EXPECT_FALSE(is_open("frmyagi5"));
  EXPECT_TRUE(is_open("frmgammamatch"));
}

}  // namespace
}  // namespace eterlab
