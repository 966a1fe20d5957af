#include "support/form_test.h"

#include "ui/text.h"

namespace eterlab::test {

void FormTest::use(std::string_view menu_entry, std::string_view boxes, std::string_view results) {
  menu_entry_ = menu_entry;
  use_opened(choose(menu_entry), boxes, results);
}

void FormTest::use_opened(const Driven& opened, std::string_view boxes, std::string_view results) {
  boxes_ = boxes;
  results_ = results;
  window = opened;
}

void FormTest::enter(std::string_view typed) const {
  window.type(boxes_, typed);
  window.press(Qt::Key_Return);
}

void FormTest::expect(std::string_view typed, std::string_view results) {
  SCOPED_TRACE(typed);
  enter(typed);
  EXPECT_EQ(this->results(), results);
  EXPECT_EQ(boxes(), Boxes{});
}

void FormTest::expect_refusal(std::string_view typed, std::string_view focus, std::string_view text,
                              std::string_view title) {
  SCOPED_TRACE(typed);
  window.type(boxes_, typed);
  const std::string before = results();
  Boxes messages = boxes();
  if (messages.empty()) {  // none came as the user typed
    window.window().setFocus();
    window.press(Qt::Key_Return);
    messages = boxes();
  }
  EXPECT_EQ(messages, Boxes{std::string{title} + ": " + std::string{text}});
  EXPECT_EQ(window.focus(), focus);
  EXPECT_EQ(results(), before);
}

void FormTest::expect_end(std::string_view typed) {
  SCOPED_TRACE(typed);
  enter(typed);
  EXPECT_TRUE(has_ended());
  EXPECT_EQ(boxes().size(), 1U);
  start_anew();
  window = choose(menu_entry_);
}

void FormTest::expect_edits_leave(std::string_view results, std::string_view typed,
                                  std::string_view edit) {
  for (const QString& box : ui::to_qt(boxes_).split(' ')) {
    SCOPED_TRACE(box.toStdString());
    enter(typed);
    EXPECT_NE(this->results(), results);
    window.type(box.toStdString(), edit);
    EXPECT_EQ(this->results(), results);
  }
}

}  // namespace eterlab::test
