#include "ui/text_box.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QMenu>
#include <QTest>
#include <memory>

namespace eterlab {
namespace {

TEST(TextBox, KeypadDecimalTypesAPoint) {
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    const char* typed;
  } keys[] = {
      {Qt::Key_Comma, Qt::KeypadModifier, ",", "1.2"},
      {Qt::Key_Period, Qt::KeypadModifier, ".", "1.2"},
      {Qt::Key_Period, Qt::KeypadModifier, ",", "1.2"},
      {Qt::Key_Comma, Qt::NoModifier, ",", "1,2"},    // the main keyboard's comma is a comma
      {Qt::Key_Delete, Qt::KeypadModifier, "", "1"},  // the same key without Num Lock
      {Qt::Key_5, Qt::KeypadModifier, "5", "152"},
  };
  for (const auto& [key, modifiers, text, typed] : keys) {
    ui::TextBox box{nullptr, "txt"};
    QTest::keyClicks(&box, "12");
    box.setCursorPosition(1);
    QKeyEvent event{QEvent::KeyPress, key, modifiers, text};
    QApplication::sendEvent(&box, &event);
    EXPECT_EQ(box.content(), typed) << key << text;
    box.undo();
    EXPECT_EQ(box.content(), "12");
  }
}

TEST(TextBox, SaysWhatIsReadWhereReadingStops) {
  QWidget window;
  window.resize(600, 100);
  ui::TextBox box{&window, "txt"};
  box.move(10, 10);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  box.setFocus();
  const std::pair<const char*, const char*> table[] = {
      {"7,1", "LETTO: 7  -  I DECIMALI VOGLIONO IL PUNTO"},
      {"7.1.2", "LETTO: 7.1"},
      {"15 m", "LETTO: 15"},
      {"abc", "LETTO: 0"},
      {" 1 000.5", ""},
      {"-", ""},
      {"1e3", ""},
      {"", ""},
      {"1e400 ?", ""},
  };
  for (const auto& [typed, told] : table) {
    box = typed;
    EXPECT_EQ(box.accessibleDescription().toStdString(), told) << typed;
    const auto* bubble = window.findChild<QWidget*>("txt_letto");
    ASSERT_EQ(bubble != nullptr, *told != 0) << typed;
    if (bubble != nullptr) {
      EXPECT_EQ(bubble->accessibleName().toStdString(), told);
      EXPECT_TRUE(bubble->isVisible() && window.rect().contains(bubble->geometry()) &&
                  !bubble->geometry().intersects(box.geometry()));
    }
  }
  box = "7,1";
  box.clearFocus();
  EXPECT_EQ(window.findChild<QWidget*>("txt_letto"), nullptr);
  EXPECT_TRUE(box.has_unread_text());  // its edge still shows it
  box.hold_text();
  box = "JN61,";
  EXPECT_FALSE(box.has_unread_text());
}

TEST(TextBox, ContextMenuIsItalian) {
  ui::TextBox box{nullptr, "txt"};
  const std::unique_ptr<QMenu> menu{box.createStandardContextMenu()};
  EXPECT_TRUE(menu->actions().constFirst()->text().startsWith("Ann&ulla"));
}

}  // namespace
}  // namespace eterlab
