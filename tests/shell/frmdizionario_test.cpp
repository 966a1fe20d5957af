#include <QComboBox>

#include "shell/dictionary.h"
#include "support/window_test.h"
#include "ui/text.h"

namespace eterlab {
namespace {

class frmdizionario : public test::WindowTest {};

TEST_F(frmdizionario, OpensWithItsDesignTextOverTheWholeListEveryTime) {
  for (int opening = 0; opening < 2; ++opening) {
    const test::Driven window = choose("mnudizionario");
    const auto& list = dynamic_cast<QComboBox&>(window.control("cbodizionario"));
    EXPECT_EQ(list.mapTo(&window.window(), QPoint{}), QPoint(16, 16));
    EXPECT_GE(list.width(), 329);
    EXPECT_EQ(window.text("cbodizionario"), "A/D  =  convertitore da analogico a digitale");
    std::vector<std::string> entries;
    for (int i = 0; i < list.count(); ++i) {
      entries.push_back(ui::from_qt(list.itemText(i)));
    }
    const auto expected = shell::dictionary();
    EXPECT_EQ(entries, std::vector<std::string>(expected.begin(), expected.end()));
    window.pick("cbodizionario", list.count() - 1);
    EXPECT_EQ(window.text("cbodizionario"), "XTAL  = cristallo di quarzo ");
    window.click("cmdesci");
    EXPECT_FALSE(is_open("frmdizionario"));
  }
}

}  // namespace
}  // namespace eterlab
