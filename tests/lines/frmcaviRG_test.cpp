#include "support/window_test.h"

namespace eterlab {
namespace {

using test::Texts;

class frmcaviRG : public test::WindowTest {
 protected:
  test::Driven window = choose("mnucavi");

  [[nodiscard]] Texts values() const {
    return window.texts({"lbl1", "lbl2", "lbl3", "lbl4", "lbl5", "lbl6", "lbl7", "lbl8"});
  }
};

// The commas are those of the catalogue, not of the settings.
TEST_F(frmcaviRG, Rg6HasItsVelocityInThePlaceOfItsPower) {
  constexpr int rg6 = 2;
  constexpr int rg86 = 41;
  window.pick("Combo1", rg6);
  EXPECT_EQ(values(), (Texts{"75", "66", "8,4", "8,9", "19,4", "2,7", "0,66", ""}));
  window.pick("Combo1", rg86);
  EXPECT_EQ(values(),
            (Texts{"200", "25", "7,2x17", "1,9", "ignota", "ignota", "ignota", "0,66 ?"}));
  window.pick("Combo1", rg6);
  EXPECT_EQ(values(), (Texts{"75", "66", "8,4", "8,9", "19,4", "2,7", "0,66", "0,66 ?"}));
}

TEST_F(frmcaviRG, CursorKeysChooseAndTypingDoesNot) {
  EXPECT_EQ(window.text("Combo1"), "CAVI RG");
  window.enter({{"Combo1", "RG 58"}});
  window.control("cmdesci").setFocus();
  EXPECT_EQ(values(), Texts(8));
  EXPECT_EQ(window.text("Combo1"), "RG 58");
  window.control("Combo1").setFocus();
  window.press(Qt::Key_Down);
  EXPECT_EQ(window.text("Combo1"), "RG 4");
  EXPECT_EQ(values(), (Texts{"50", "99", "5,7", "8,7", "17,3", "1,9", "480", "0,66"}));
  window.type("Combo1", "RG 58");
  window.pick("Combo1", 0);  // the entry chosen last, shown again
  EXPECT_EQ(window.text("Combo1"), "RG 4");
}

}  // namespace
}  // namespace eterlab
