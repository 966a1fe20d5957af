#include "ui/list.h"

#include "ui/desktop.h"
#include "ui/text.h"

namespace eterlab::ui {

namespace {

constexpr int entries_in_sight = 20;

}  // namespace

List::List(Parent parent, std::string_view name, std::string_view prompt,
           std::initializer_list<std::string_view> entries, Tooltip tip)
    : QComboBox{parent.widget()},
      prompt_{std::make_unique<Label>(parent, std::string{name} + "_prompt", prompt)} {
  set_up(*this, name, tip);
  setSizeAdjustPolicy(AdjustToContents);
  setMaxVisibleItems(entries_in_sight);
  prompt_->set_prompt_of(*this);
  for (const std::string_view entry : entries) {
    add(entry);
  }
}

List::~List() = default;

void List::name_prompt(std::string_view name) { prompt_->setObjectName(to_qt(name)); }

void List::add(std::string_view entry) { addItem(to_qt(entry)); }

std::string List::content() const { return from_qt(currentText()); }

void List::choose(std::string_view entry) {
  const int index = findText(to_qt(entry));
  Q_ASSERT(index >= 0);
  choose(index);
}

void List::on_choose(const Handler& handler) {
  connect(this, &QComboBox::currentIndexChanged, this, [this, handler] {
    has_changed_ = true;
    Desktop::instance().run(handler);
  });
  connect(this, &QComboBox::activated, this, [this, handler] {
    if (!has_changed_) {
      Desktop::instance().run(handler);
    }
  });
}

void List::showPopup() {
  has_changed_ = false;
  QComboBox::showPopup();
}

}  // namespace eterlab::ui
