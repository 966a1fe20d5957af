#include <QComboBox>

#include "lines/coax_cables.h"
#include "support/window_test.h"

namespace eterlab {
namespace {

using Texts = std::vector<std::string>;

constexpr int rg4 = 0;
constexpr int rg6 = 2;
constexpr int rg58 = 31;
constexpr int rg86 = 41;

class frmcaviRG : public test::WindowTest {
 protected:
  test::Driven window = choose("mnucavi");

  [[nodiscard]] Texts values() const {
    Texts texts;
    for (int i = 1; i <= 8; ++i) {
      texts.push_back(window.text("lbl" + std::to_string(i)));
    }
    return texts;
  }
};

const Texts nothing(8);

TEST_F(frmcaviRG, ListsTheCatalogue) {
  const auto& list = dynamic_cast<QComboBox&>(window.control("Combo1"));
  ASSERT_EQ(list.count(), 78);
  for (int i = 0; i < list.count(); ++i) {
    EXPECT_EQ(list.itemText(i).toStdString(),
              lines::coax_cables()[static_cast<std::size_t>(i)].name);
  }
  EXPECT_EQ(window.text("Combo1"), "CAVI RG");
  EXPECT_EQ(values(), nothing);
}

TEST_F(frmcaviRG, ShowsTheTextsInEveryCountry) {
  const Texts rg58_values{"53", "91", "5,0", "15,1", "34,5", "1,9", "300", "0,66"};
  const Texts rg86_values{"200", "25", "7,2x17", "1,9", "ignota", "ignota", "ignota", "0,66 ?"};
  for (const RegionalSettings& settings : {test::english(), test::italian()}) {
    set_regional_settings(settings);
    window.pick("Combo1", rg58);
    EXPECT_EQ(window.text("Combo1"), "RG 58");
    EXPECT_EQ(values(), rg58_values);
    window.pick("Combo1", rg86);
    EXPECT_EQ(values(), rg86_values);
  }
}

TEST_F(frmcaviRG, Rg6HasItsVelocityInThePlaceOfItsPower) {
  window.pick("Combo1", rg6);
  EXPECT_EQ(values(), (Texts{"75", "66", "8,4", "8,9", "19,4", "2,7", "0,66", ""}));
  window.pick("Combo1", rg86);
  window.pick("Combo1", rg6);
  EXPECT_EQ(values(), (Texts{"75", "66", "8,4", "8,9", "19,4", "2,7", "0,66", "0,66 ?"}));
}

TEST_F(frmcaviRG, CursorKeysChooseAndTypingDoesNot) {
  window.type("Combo1", "RG 58");
  EXPECT_EQ(values(), nothing);
  window.press(Qt::Key_Return);
  window.control("cmdesci").setFocus();
  EXPECT_EQ(values(), nothing);
  EXPECT_EQ(window.text("Combo1"), "RG 58");
  window.control("Combo1").setFocus();
  window.press(Qt::Key_Down);
  EXPECT_EQ(window.text("Combo1"), "RG 4");
  EXPECT_EQ(values(), (Texts{"50", "99", "5,7", "8,7", "17,3", "1,9", "480", "0,66"}));
  window.type("Combo1", "RG 58");
  window.pick("Combo1", rg4);  // the entry chosen last, shown again
  EXPECT_EQ(window.text("Combo1"), "RG 4");
}

}  // namespace
}  // namespace eterlab
