#include "ui/combo_box.h"

#include <QLineEdit>
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
  EXPECT_EQ(box.chosen_value(), 10);
}

TEST_F(ComboBox, CursorKeysChooseFromTheFirstOn) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
    driven.press(key);
  }
  EXPECT_EQ(choices, (Choices{0, 1, 2, 1}));
  EXPECT_EQ(box.content(), "due");
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

TEST_F(ComboBox, TypingChoosesNothingWhateverFollows) {
  driven.type("box", "tr");
  EXPECT_EQ(box.content(), "tr") << "completed";
  driven.pick("box", 3);
  for (const char* typed : {"uno", "quattro", ""}) {
    driven.type("box", typed);
    driven.press(Qt::Key_Return);
    other.setFocus();
    box.setFocus();
    EXPECT_EQ(box.content(), typed);
  }
  EXPECT_EQ(box.count(), 4);
  EXPECT_EQ(box.chosen(), 3);
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
