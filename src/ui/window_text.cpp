#include "ui/window_text.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStringList>

#include "common/regional_settings.h"
#include "ui/label.h"
#include "ui/layout.h"
#include "ui/result_table.h"
#include "ui/text.h"
#include "ui/window.h"

namespace eterlab::ui {

namespace {

bool tells_something(const QWidget& window, const Label& label) {
  return label.can_be_copied() && label.isVisibleTo(&window) && !label.text().trimmed().isEmpty();
}

/// "R1: 4,7 kOhm" where the label has a name, as on drawings.
QString line_of(const Label& label) {
  const QString name = label.accessibleDescription();
  const QString text = label.text().simplified();
  return name.isEmpty() ? text : name + ": " + text;
}

QString line_of(const ResultTable& table, int row) {
  QStringList cells;
  for (int column = 0; column < table.columns(); ++column) {
    cells += table.at(row, column).text().simplified();
  }
  return cells.join('\t');
}

/// A prompt may end with a colon of its own.
QString line_of(const QWidget& box, const QString& content) {
  QString prompt = box.accessibleName().trimmed();
  while (prompt.endsWith(':') || prompt.endsWith(' ')) {
    prompt.chop(1);
  }
  return prompt + ": " + content;
}

QStringList lines_of(const QWidget& window, QWidget& widget) {
  if (const auto* box = qobject_cast<QLineEdit*>(&widget); box != nullptr) {
    return {line_of(*box, box->text())};
  }
  if (const auto* list = qobject_cast<QComboBox*>(&widget); list != nullptr) {
    return {line_of(*list, list->currentText())};
  }
  if (const auto* option = qobject_cast<QRadioButton*>(&widget); option != nullptr) {
    return option->isChecked() ? QStringList{option->text()} : QStringList{};
  }
  if (const auto* table = dynamic_cast<ResultTable*>(&widget); table != nullptr) {
    QStringList lines{table->heads().join('\t')};
    for (int row = 0; row < table->rows(); ++row) {
      lines += line_of(*table, row);
    }
    return lines;
  }
  const auto* label = dynamic_cast<Label*>(&widget);
  if (label != nullptr && label->role() != Label::Role::cell && tells_something(window, *label)) {
    return {line_of(*label)};
  }
  return {};
}

}  // namespace

std::string window_text(const Window& window) {
  QStringList lines{window.windowTitle().simplified()};
  for (QWidget* widget : widgets_in_reading_order(window)) {
    if (widget->isVisibleTo(&window)) {
      lines += lines_of(window, *widget);
    }
  }
  return from_qt(lines.join('\n') + '\n');
}

std::vector<Label*> results_in_reading_order(const Window& window) {
  std::vector<Label*> results;
  for (QWidget* widget : widgets_in_reading_order(window)) {
    auto* label = dynamic_cast<Label*>(widget);
    if (label != nullptr && tells_something(window, *label)) {
      results.push_back(label);
    }
  }
  return results;
}

std::string number_in(std::string_view result) {
  const QString group = to_qt(regional_settings().group_separator);
  const QString decimal = to_qt(regional_settings().decimal_separator);
  const QString groups =
      group.isEmpty() ? QString{} : "(?:" + QRegularExpression::escape(group) + "\\d{2,3})*";
  // Not the digits of a name, such as those of E24.
  const QRegularExpression number{"(?<![A-Za-z0-9])-?\\d+" + groups + "(?:" +
                                  QRegularExpression::escape(decimal) + "\\d+)?(?:E[+-]?\\d+)?"};
  const QString text = to_qt(result);
  QString told = number.match(text, text.indexOf('=') + 1).captured();
  if (!group.isEmpty()) {
    told.remove(group);
  }
  return from_qt(told.replace(decimal, "."));
}

}  // namespace eterlab::ui
