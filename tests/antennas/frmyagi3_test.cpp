#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;
using Texts = std::vector<std::string>;

class frmyagi3 : public WindowTest {
 protected:
  test::Driven window = choose("mnuyagi3");

  [[nodiscard]] Texts results() const {
    Texts texts;
    for (const char* label : {"lblriflettore", "lblradiatore", "lbldirettore", "lblspazriflettore",
                              "lblspazdirettore"}) {
      texts.push_back(window.text(label));
    }
    return texts;
  }
  [[nodiscard]] bool shows_results() const {
    const bool shows = window.shows("Frame1");
    for (const char* label : {"lblspazriflettore", "lblspazdirettore"}) {
      EXPECT_EQ(window.shows(label), shows) << label;
    }
    return shows;
  }
};

TEST_F(frmyagi3, ComputesAsTheUserTypes) {
  window.type("txtfrequenza", "28.5");
  EXPECT_EQ(results(), (Texts{"IL RIFLETTORE E' LUNGO  521 cm.", "IL RADIATORE E' LUNGO  495 cm.",
                              "IL DIRETTORE E' LUNGO  470 cm.", "211 cm.", "105 cm."}));
  window.type("txtfrequenza", "1000");
  EXPECT_EQ(results(), (Texts{"IL RIFLETTORE E' LUNGO  15 cm.", "IL RADIATORE E' LUNGO  14 cm.",
                              "IL DIRETTORE E' LUNGO  13 cm.", "6 cm.", "3 cm."}));
}

TEST_F(frmyagi3, OnlyTheLastValuesAreNotGrouped) {
  set_regional_settings(test::italian());
  window.type("txtfrequenza", "1");
  EXPECT_EQ(results(),
            (Texts{"IL RIFLETTORE E' LUNGO  14.850 cm.", "IL RADIATORE E' LUNGO  14.100 cm.",
                   "IL DIRETTORE E' LUNGO  13.400 cm.", "6.000 cm.", "3000 cm."}));
}

TEST_F(frmyagi3, ResultsAreHiddenWithoutAPositiveFrequency) {
  EXPECT_FALSE(shows_results());
  window.type("txtfrequenza", "28.5");
  EXPECT_TRUE(shows_results());
  for (const char* text : {"", "0", "-28.5", "abc"}) {
    SCOPED_TRACE(text);
    window.type("txtfrequenza", text);
    EXPECT_FALSE(shows_results());
  }
  EXPECT_EQ(boxes(), Boxes{});
  window.type("txtfrequenza", "1000");
  EXPECT_TRUE(shows_results());
}

TEST_F(frmyagi3, GammaMatchStandsBeside) {
  for (int click = 0; click < 2; ++click) {
    window.click("cmdgamma");
    EXPECT_EQ(window.window().pos(), QPoint(23, 23));
    ASSERT_TRUE(is_open("frmgammamatch"));
    QWidget& gamma_match = driven("frmgammamatch").window();
    EXPECT_FALSE(gamma_match.isModal());
    EXPECT_EQ(gamma_match.pos(), QPoint(533, 533));
    window.window().move(100, 100);
    gamma_match.move(100, 100);
  }
  window.click("cmdesci");
  EXPECT_FALSE(is_open("frmyagi3"));
  EXPECT_TRUE(is_open("frmgammamatch"));
}

}  // namespace
}  // namespace eterlab
