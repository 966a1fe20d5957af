#include "support/window_test.h"

namespace eterlab {
namespace {

class frmretiaTponte : public test::WindowTest {
 protected:
  test::Driven window = choose("mnureteTponte");

  void compute(const char* impedance, const char* loss) const {
    window.type("txtR0", impedance);
    window.type("txtattenuazione", loss);
    window.click("cmdcalcola");
  }

  [[nodiscard]] std::vector<std::string> results() const {
    return {window.text("lblR1"), window.text("lblR1a"), window.text("lblR2"),
            window.text("lblR3")};
  }
};

TEST_F(frmretiaTponte, OneDecimal) {
  set_regional_settings(test::italian());
  compute("50", "6");
  EXPECT_EQ(results(), (std::vector<std::string>{"50,0", "50,0", "50,2", "49,8"}));
  compute("600", "60.5");  // .3 with K in single precision, .2 in double
  EXPECT_EQ(results(), (std::vector<std::string>{"600,0", "600,0", "0,6", "634.952,3"}));
}

TEST_F(frmretiaTponte, OnlyMissingDataIsRefused) {
  compute("50", "");
  EXPECT_EQ(boxes(), std::vector{test::error("MANCANO DATI")});
  EXPECT_EQ(window.focus(), "txtR0");
  EXPECT_EQ(results(), std::vector<std::string>(4));

  compute("50", "0.0000001");
  EXPECT_TRUE(has_ended());
}

}  // namespace
}  // namespace eterlab
