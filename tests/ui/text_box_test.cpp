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

TEST(TextBox, ContextMenuIsItalian) {
  ui::TextBox box{nullptr, "txt"};
  const std::unique_ptr<QMenu> menu{box.createStandardContextMenu()};
  EXPECT_TRUE(menu->actions().constFirst()->text().startsWith("Ann&ulla"));
}

}  // namespace
}  // namespace eterlab
