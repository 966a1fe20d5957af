#include "support/form_test.h"

#include <utility>

namespace eterlab::test {

FormTest::FormTest(std::string_view menu_entry, Texts inputs, Texts outputs)
    : window{choose(menu_entry)}, inputs_{std::move(inputs)}, outputs_{std::move(outputs)} {}

void FormTest::compute(const Texts& typed) {
  ASSERT_EQ(typed.size(), inputs_.size());
  for (std::size_t i = 0; i < inputs_.size(); ++i) {
    window.type(inputs_[i], typed[i]);
  }
  window.press(Qt::Key_Return);
}

Texts FormTest::results() const {
  Texts texts;
  for (const std::string& output : outputs_) {
    texts.push_back(window.shows(output) ? window.text(output) : "");
  }
  return texts;
}

void FormTest::expect_computed(std::initializer_list<Computed> table) {
  for (const Computed& row : table) {
    SCOPED_TRACE(testing::PrintToString(row.typed));
    set_regional_settings(row.settings);
    compute(row.typed);
    EXPECT_EQ(results(), row.results);
    EXPECT_EQ(boxes(), Boxes{});
  }
}

void FormTest::expect_refused(std::initializer_list<Refused> table) {
  for (const Refused& row : table) {
    SCOPED_TRACE(testing::PrintToString(row.typed));
    compute(row.typed);
    EXPECT_EQ(boxes(), Boxes{row.box});
    EXPECT_EQ(window.focus(), row.focus);
  }
}

void FormTest::expect_edits_leave(const Texts& at_rest, const Texts& typed) {
  for (const std::string& input : inputs_) {
    SCOPED_TRACE(input);
    compute(typed);
    EXPECT_NE(results(), at_rest);
    window.type(input, "5");
    EXPECT_EQ(results(), at_rest);
  }
}

}  // namespace eterlab::test
