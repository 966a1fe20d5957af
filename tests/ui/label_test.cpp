#include "ui/label.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include "common/regional_settings.h"
#include "ui/window_text.h"

namespace eterlab {
namespace {

class ResultText : public ::testing::Test {
 protected:
  ResultText() {
    QApplication::clipboard()->clear();
    result.resize(result.sizeHint());
    result.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&result));
  }

  void double_click() { QTest::mouseDClick(&result, Qt::LeftButton, {}, {5, result.height() / 2}); }

  /// Chooses an entry of the context menu.
  void choose(int entry) {
    QContextMenuEvent event{QContextMenuEvent::Mouse, {}, result.mapToGlobal(QPoint{})};
    QApplication::sendEvent(&result, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    menu->actions()[entry]->trigger();
    menu->close();
  }

  static std::string copied() { return QApplication::clipboard()->text().toStdString(); }

  ui::Result result{nullptr, "lblout", "MHz 123"};
};

TEST_F(ResultText, IsSelectedByMouseAndCopiedByKeys) {
  double_click();
  QTest::keyClick(&result, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(copied(), "MHz");
}

TEST_F(ResultText, IsCopiedByContextMenuWholeOrAsSelected) {
  choose(0);
  EXPECT_EQ(copied(), "MHz 123");
  double_click();
  choose(0);
  EXPECT_EQ(copied(), "MHz");
  choose(2);
  EXPECT_EQ(result.selectedText(), "MHz 123");
}

TEST_F(ResultText, ItsNumberIsCopiedAsOneTypesIt) {
  set_regional_settings({",", ".", 3, 3, 2});
  const std::pair<const char*, const char*> table[] = {
      {"C1 = 1.234.567,25 pF", "1234567.25"},
      {"VALORE E24 = -4,7E-12 F", "-4.7E-12"},
      {"16 SPIRE, 3 STRATI", "16"},
      {"NUCLEO T50", ""},
      {"L = 12.", "12"},
      {"R1 = OLTRE 20", "20"},
  };
  for (const auto& [told, number] : table) {
    EXPECT_EQ(ui::number_in(told), number) << told;
  }
  set_regional_settings({",", "\u202f", 3, 3, 2});
  EXPECT_EQ(ui::number_in("= 1\u202f234,5"), "1234.5");
  set_regional_settings({});
  choose(1);
  EXPECT_EQ(copied(), "123");
}

}  // namespace
}  // namespace eterlab
