#include "ui/combo_box.h"

#include <QLineEdit>

#include "ui/desktop.h"
#include "ui/text.h"
#include "ui/text_box.h"

namespace eterlab::ui {

namespace {

constexpr int entries_in_sight = 20;

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
  connect(this, &QComboBox::activated, this, [this](int index) { chosen_ = index; });
  setEditText(to_qt(text));
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
