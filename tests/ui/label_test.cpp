#include "ui/label.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

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
  choose(1);
  EXPECT_EQ(result.selectedText(), "MHz 123");
}

}  // namespace
}  // namespace eterlab
