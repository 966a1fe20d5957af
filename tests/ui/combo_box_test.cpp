#include "ui/combo_box.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "support/window_test.h"

namespace eterlab::test {
namespace {

class ComboBox : public WindowTest {
 protected:
  ComboBox() {
    for (const char* entry : {"uno", "due", "due", "tre"}) {
      box.add(entry, static_cast<int>(10 + box.count()));
    }
    box.on_choose([this] { choices.push_back(box.chosen()); });
    box.move(0, 50);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    box.setFocus();
  }

  QWidget window;
  QLineEdit other{&window};
  ui::ComboBox box{window, "box", "NUMERI"};
  Driven driven{window};
  std::vector<int> choices;  // by their places
};

using Choices = std::vector<int>;

TEST_F(ComboBox, MouseChoosesAlsoTheEntryShown) {
  EXPECT_EQ(box.content(), "NUMERI");
  EXPECT_EQ(box.chosen(), -1);
  for (const int entry : {2, 2, 0}) {
    driven.pick("box", entry);
  }
  EXPECT_EQ(choices, (Choices{2, 2, 0}));
  EXPECT_EQ(box.content(), "uno");
  EXPECT_EQ(box.lineEdit()->selectedText(), "uno") << "what is typed next looks for another";
  EXPECT_EQ(box.chosen_value(), 10);
}

TEST_F(ComboBox, CursorKeysChooseFromTheFirstOn) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
    driven.press(key);
  }
  EXPECT_EQ(choices, (Choices{0, 1, 2, 1}));
  EXPECT_EQ(box.content(), "due");
  EXPECT_EQ(box.lineEdit()->selectedText(), "due");
  EXPECT_EQ(box.chosen_value(), 11);
}

TEST_F(ComboBox, CursorKeysInTheOpenListChooseOnEnterOnly) {
  QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier);
  QWidget* list = QApplication::activePopupWidget();
  ASSERT_NE(list, nullptr);
  QTest::keyClick(list->focusWidget(), Qt::Key_Down);
  QTest::keyClick(list->focusWidget(), Qt::Key_Down);
  EXPECT_EQ(choices, Choices{});
  QTest::keyClick(list->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(choices.size(), 1U);
  EXPECT_EQ(box.content(), "due");
}

TEST_F(ComboBox, TypingListsWhatEnterOrAClickThenChooses) {
  driven.type("box", "RE");
  EXPECT_EQ(box.content(), "RE") << "completed in place";
  auto* list = box.findChild<QListWidget*>("box_elenco");
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->count(), 1);
  driven.press(Qt::Key_Return);
  EXPECT_EQ(choices, Choices{3});
  EXPECT_EQ(box.content(), "tre");
  EXPECT_EQ(box.lineEdit()->selectedText(), "tre");
  EXPECT_FALSE(list->isVisible());
  driven.type("box", "D u");
  EXPECT_EQ(list->count(), 2);
  driven.type("box", "u");
  driven.press(Qt::Key_Down);
  driven.press(Qt::Key_Down);
  driven.press(Qt::Key_Return);
  EXPECT_EQ(choices, (Choices{3, 2})) << "uno, due, due";
  driven.type("box", "n");
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualItemRect(list->item(0)).center());
  EXPECT_EQ(choices, (Choices{3, 2, 0}));
}

TEST_F(ComboBox, AnyOtherTextGivesWayToTheLastChoice) {
  driven.type("box", "tr");
  driven.press(Qt::Key_Escape);
  driven.press(Qt::Key_Return);
  EXPECT_EQ(box.content(), "tr");
  other.setFocus();
  EXPECT_EQ(box.content(), "NUMERI");
  driven.pick("box", 3);
  for (const char* typed : {"uno", "quattro", ""}) {
    driven.type("box", typed);
    EXPECT_EQ(box.content(), typed);
    other.setFocus();
    EXPECT_EQ(box.content(), "tre");
  }
  EXPECT_EQ(box.count(), 4);
  driven.type("box", "uno");
  driven.pick("box", 3);  // the choice is shown again
  EXPECT_EQ(box.content(), "tre");
  EXPECT_EQ(choices, (Choices{3, 3}));
}

TEST_F(ComboBox, ChoosesByTextAsAUserDoes) {
  for (const char* entry : {"due", "DUE", "sei"}) {
    box.choose(entry);
  }
  EXPECT_EQ(choices, Choices{1});
}

}  // namespace
}  // namespace eterlab::test
