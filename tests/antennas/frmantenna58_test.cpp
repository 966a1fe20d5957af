#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Texts = std::vector<std::string>;

class frmantenna58 : public WindowTest {
 protected:
  test::Driven window = choose("mnuantenna58");

  [[nodiscard]] Texts texts() const {
    return {window.text("lblaltezza"),   window.text("lblradiale"), window.text("lblcarico"),
            window.text("lblradiatore"), window.text("lblradiali"), window.text("lblbobina")};
  }
};

TEST_F(frmantenna58, NothingIsChosenAtFirst) {
  EXPECT_EQ(window.window().windowTitle(), "  ANTENNA VERTICALE 5/8 LAMBDA");
  EXPECT_EQ(window.text("Frame1"), "Banda");
  EXPECT_EQ(window.tooltip("Frame1"), "selezionare una frequenza");
  EXPECT_EQ(texts(), (Texts{"radiatore", "radiali", "bobina", "", "", ""}));
  for (const char* option : {"Option1_0", "Option1_1", "Option1_2"}) {
    EXPECT_FALSE(window.control(option).property("checked").toBool());
  }
}

TEST_F(frmantenna58, EachBandReplacesEveryText) {
  struct Expected {
    const char* option;
    const char* caption;
    Texts texts;
  };
  const Expected table[] = {
      {"Option1_0",
       "50 Mcs",
       {"340 cm.", "143 cm.", "9 sp.", "RADIATORE cm. 340     DIAMETRO 20 mm.",
        "N. 4 RADIALI cm. 143     DIAMETRO 5 mm.",
        "BOBINA n.9 spire 2 mm. su diametro 3 cm. lunga 3 cm."}},
      {"Option1_1",
       "145 Mcs",
       {"120 cm.", "50 cm.", "5 sp.", "RADIATORE cm. 120     DIAMETRO 10 mm.",
        "N. 4 RADIALI cm. 50     DIAMETRO 5 mm.",
        "BOBINA n.5 spire 2 mm. su diametro 2 cm. lunga 2 cm."}},
      {"Option1_2",
       "433 Mcs",
       {"42 cm.", "17 cm.", "2 sp.", "RADIATORE cm. 42     DIAMETRO 6 mm.",
        "N. 4 RADIALI cm. 17     DIAMETRO 5 mm.",
        "BOBINA n.2 spire 2 mm. su diametro 1.5 cm. lunga 2 cm."}},
  };
  for (const Expected& expected : table) {
    EXPECT_EQ(window.text(expected.option), expected.caption);
    window.click(expected.option);
    EXPECT_EQ(texts(), expected.texts);
  }
}

}  // namespace
}  // namespace eterlab
