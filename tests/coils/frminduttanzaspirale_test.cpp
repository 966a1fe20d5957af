#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frminduttanzaspirale : public WindowTest {
 protected:
  test::Driven window = choose("mnuinduttanzaspirale");

  void compute(const char* turns, const char* inner, const char* outer) const {
    window.type("txtnr", turns);
    window.type("txtr1", inner);
    window.type("txtr2", outer);
    window.click("cmdcalcola");
  }

  [[nodiscard]] std::vector<std::string> sketch() const {
    return {window.text("lblraggiointerno"), window.text("lblmedio"), window.text("lblspessore"),
            window.text("lblraggioesterno")};
  }
};

TEST_F(frminduttanzaspirale, ComputesAndMarksTheSketch) {
  EXPECT_EQ(sketch(), (std::vector<std::string>{"raggio interno", "RAGGIO MEDIO", "SPESSORE",
                                                "raggio esterno"}));
  EXPECT_FALSE(window.shows("lblinduttanza"));
  set_regional_settings(test::italian());
  compute("20", "12.5", "40");
  EXPECT_TRUE(window.shows("lblinduttanza"));
  EXPECT_EQ(window.text("lblinduttanza"), "l'induttanza è µhenry    21,28");
  EXPECT_EQ(sketch(), (std::vector<std::string>{"raggio interno", "26,25 mm", "27,5 mm", "40 mm"}));
}

TEST_F(frminduttanzaspirale, ChangeKeepsTheOuterRadiusOnTheSketch) {
  for (const char* box : {"txtnr", "txtr1", "txtr2"}) {
    SCOPED_TRACE(box);
    compute("10", "10", "30");
    window.type(box, "5");
    EXPECT_FALSE(window.shows("lblinduttanza"));
    EXPECT_EQ(sketch(),
              (std::vector<std::string>{"raggio interno", "RAGGIO MEDIO", "SPESSORE", "30 mm"}));
  }
}

TEST_F(frminduttanzaspirale, RadiiMayBeEqualButNotSwapped) {
  compute("5", "20", "20");
  EXPECT_EQ(window.text("lblinduttanza"), "l'induttanza è µhenry    2.5");
  compute("10", "30", "10");
  EXPECT_EQ(boxes(), Boxes{test::error("IL RAGGIO ESTERNO E' SEMPRE MAGGIORE")});
  EXPECT_EQ(window.focus(), "txtr1");
  compute("", "30", "10");  // what is missing is told first
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtnr");
  EXPECT_FALSE(window.shows("lblinduttanza"));
}

TEST_F(frminduttanzaspirale, Texts) {
  EXPECT_EQ(window.text("Label1"),
            "BOBINA A SPIRALE SENZA NUCLEO                                FORMULA  APPROSSIMATIVA");
  EXPECT_EQ(window.tooltip("txtr1"), "diametro del supporto");
  EXPECT_EQ(window.text("cmdesci"), "E X I T");
}

}  // namespace
}  // namespace eterlab
