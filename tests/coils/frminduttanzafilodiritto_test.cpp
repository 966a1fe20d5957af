#include "support/window_test.h"

namespace eterlab {
namespace {

using test::WindowTest;
using Boxes = std::vector<test::Box>;

class frminduttanzafilodiritto : public WindowTest {
 protected:
  test::Driven window = choose("mnuinduttanzafilodiritto");
  const std::string hint = "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO";

  void compute(const char* diameter, const char* length) const {
    window.type("txtdiametro", diameter);
    window.type("txtlunghezza", length);
    window.click("cmdcalcola");
  }
};

TEST_F(frminduttanzafilodiritto, MicrohenryFromOneOn) {
  set_regional_settings(test::italian());
  struct Expected {
    const char* diameter;
    const char* length;
    const char* result;
  };
  const Expected table[] = {
      {"1", "1", "L'INDUTTANZA DEL FILO E' microHenry 1,509"},
      {"1", "0.7", "L'INDUTTANZA DEL FILO E' microHenry 1,006"},
      {"1", "0.69", "L'INDUTTANZA DEL FILO E' nanoHenry 989,872"},
      {"1", "0.05", "L'INDUTTANZA DEL FILO E' nanoHenry 45,483"},
      {"100", "0.05", "L'INDUTTANZA DEL FILO E' nanoHenry -0,569"},
      {"-1", "-1", "L'INDUTTANZA DEL FILO E' nanoHenry -1.508,810"},
  };
  for (const Expected& expected : table) {
    compute(expected.diameter, expected.length);
    EXPECT_EQ(window.text("lblinduttanza"), expected.result);
  }
  EXPECT_EQ(boxes(), Boxes{});
}

TEST_F(frminduttanzafilodiritto, HintStandsInThePlaceOfTheResult) {
  EXPECT_EQ(window.text("lblinduttanza"), hint);
  for (const char* box : {"txtdiametro", "txtlunghezza"}) {
    compute("1", "1");
    EXPECT_NE(window.text("lblinduttanza"), hint);
    window.type(box, "2");
    EXPECT_EQ(window.text("lblinduttanza"), hint);
  }
}

TEST_F(frminduttanzafilodiritto, MissingData) {
  compute("1", "");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtlunghezza");
  compute("1", "-1");
  EXPECT_EQ(boxes(), Boxes{test::error("MANCANO DATI")});
  EXPECT_EQ(window.text("lblinduttanza"), hint);
}

}  // namespace
}  // namespace eterlab
