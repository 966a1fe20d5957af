#include "ui/combo_box.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "ui/desktop.h"
#include "ui/row_list.h"
#include "ui/text.h"
#include "ui/text_box.h"
#include "ui/window.h"

namespace eterlab::ui {

namespace {

constexpr int entries_in_sight = 20;
constexpr int completions_in_sight = 10;

/// "rg58" is "RG 58".
QString without_blanks(QString text) { return text.remove(' '); }

}  // namespace

ComboBox::ComboBox(Parent parent, std::string_view name, std::string_view text, Tooltip tip)
    : QComboBox{parent.widget()} {
  set_up(*this, name, tip);
  setAccessibleName(toolTip());
  setLineEdit(new PointLineEdit);
  setCompleter(nullptr);
  setInsertPolicy(NoInsert);
  setMaxVisibleItems(entries_in_sight);
  // The toolkit would choose the entry whose text has been typed, on Enter and when the focus goes.
  lineEdit()->disconnect(SIGNAL(returnPressed()), this);
  lineEdit()->disconnect(SIGNAL(editingFinished()), this);
  connect(this, &QComboBox::activated, this, [this](int index) {
    hide_completions();
    chosen_ = index;
    at_rest_ = currentText();
    if (lineEdit()->hasFocus()) {
      lineEdit()->selectAll();  // what is typed next looks for another
    }
    outdate_results(*this);
  });
  connect(lineEdit(), &QLineEdit::textEdited, this, &ComboBox::complete);
  at_rest_ = to_qt(text);
  setEditText(to_qt(text));
}

ComboBox::~ComboBox() = default;

void ComboBox::complete() {
  const QString typed = without_blanks(lineEdit()->text());
  completions_.clear();
  for (int index = 0; index < count() && !typed.isEmpty(); ++index) {
    if (without_blanks(itemText(index)).contains(typed, Qt::CaseInsensitive)) {
      completions_.push_back(index);
    }
  }
  if (completions_.empty()) {
    return hide_completions();
  }
  if (completion_list_ == nullptr) {
    // Unlike a menu it leaves mouse and keys to the window.
    completion_list_ = new RowList{*this, from_qt(objectName() + "_elenco")};
    completion_list_->setWindowFlags(Qt::ToolTip);
    completion_list_->setFocusPolicy(Qt::NoFocus);
    completion_list_->on_click([this] { take_completion(); });
  }
  std::vector<std::string> rows;
  for (const int index : completions_) {
    rows.push_back(from_qt(itemText(index)));
  }
  completion_list_->show_rows(rows);
  const int in_sight = std::min(static_cast<int>(rows.size()), completions_in_sight);
  completion_list_->resize(width(), completion_list_->height_of(in_sight));
  completion_list_->move(mapToGlobal(QPoint{0, height()}));
  completion_list_->show();
}

bool ComboBox::is_completing() const {
  return completion_list_ != nullptr && completion_list_->isVisible();
}

void ComboBox::hide_completions() {
  if (completion_list_ != nullptr) {
    completion_list_->hide();
  }
}

void ComboBox::take_completion() {
  const int row = completion_list_->current();
  hide_completions();
  if (row >= 0) {
    choose(completions_[static_cast<std::size_t>(row)]);
  }
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers().testFlag(Qt::AltModifier)) {
    hide_completions();  // it opens the whole list
  } else if (is_completing()) {
    switch (event->key()) {
      case Qt::Key_Down:
        return completion_list_->step(1);
      case Qt::Key_Up:
        return completion_list_->step(-1);
      case Qt::Key_Return:
      case Qt::Key_Enter:
        return take_completion();
      case Qt::Key_Escape:
        return hide_completions();
      default:
        break;
    }
  }
  QComboBox::keyPressEvent(event);
}

void ComboBox::focusOutEvent(QFocusEvent* event) {
  QComboBox::focusOutEvent(event);
  hide_completions();
  if (event->reason() != Qt::PopupFocusReason) {
    setEditText(at_rest_);
  }
}

void ComboBox::add(std::string_view entry, int value) {
  const QString shown = currentText();
  const bool is_first = count() == 0;
  addItem(to_qt(entry), value);
  if (is_first) {  // the toolkit would show it
    setCurrentIndex(-1);
    setEditText(shown);
  }
}

std::string ComboBox::content() const { return from_qt(currentText()); }

QSize ComboBox::sizeHint() const {
  // The toolkit measures every entry for each of its hints, and all of them again when it is shown.
  if (measured_.entries != count() || measured_.font != font()) {
    measured_ = {count(), font(), QComboBox::sizeHint()};
  }
  return measured_.size;
}

void ComboBox::on_choose(const Handler& handler) {
  connect(this, &QComboBox::activated, this, [handler] { Desktop::instance().run(handler); });
}

void ComboBox::choose(int index) {
  setCurrentIndex(index);
  Q_EMIT activated(index);
}

void ComboBox::choose(std::string_view entry) {
  const int index = findText(to_qt(entry), Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (index >= 0) {
    choose(index);
  }
}

}  // namespace eterlab::ui
