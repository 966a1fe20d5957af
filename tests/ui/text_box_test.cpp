#include "ui/text_box.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QMenu>
#include <QTest>
#include <memory>

namespace eterlab {
namespace {

void press(QWidget& box, int key, Qt::KeyboardModifiers modifiers, const char* text) {
  QKeyEvent event{QEvent::KeyPress, key, modifiers, text};
  QApplication::sendEvent(&box, &event);
}

TEST(TextBox, KeypadDecimalTypesAPoint) {
  struct Key {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    const char* typed;
  };
  const Key keys[] = {
      {Qt::Key_Comma, Qt::KeypadModifier, ",", "1.2"},
      {Qt::Key_Period, Qt::KeypadModifier, ".", "1.2"},
      {Qt::Key_Period, Qt::KeypadModifier, ",", "1.2"},
      {Qt::Key_Comma, Qt::NoModifier, ",", "1,2"},    // the main keyboard's comma is a comma
      {Qt::Key_Delete, Qt::KeypadModifier, "", "1"},  // the same key without Num Lock
      {Qt::Key_5, Qt::KeypadModifier, "5", "152"},
  };
  for (const Key& key : keys) {
    ui::TextBox box{nullptr, "txt"};
    box = "12";
    box.setCursorPosition(1);
    press(box, key.key, key.modifiers, key.text);
    EXPECT_EQ(box.content(), key.typed) << key.key << key.text;
  }
}

TEST(TextBox, KeypadDecimalReplacesTheSelectionAndCanBeUndone) {
  ui::TextBox box{nullptr, "txt"};
  QTest::keyClicks(&box, "12");
  box.selectAll();
  press(box, Qt::Key_Comma, Qt::KeypadModifier, ",");
  EXPECT_EQ(box.content(), ".");
  box.undo();
  EXPECT_EQ(box.content(), "12");
}

TEST(TextBox, ContextMenuIsItalian) {
  ui::TextBox box{nullptr, "txt"};
  const std::unique_ptr<QMenu> menu{box.createStandardContextMenu()};
  EXPECT_TRUE(menu->actions().constFirst()->text().startsWith("Ann&ulla"));
}

}  // namespace
}  // namespace eterlab
