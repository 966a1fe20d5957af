#include "ui/layout.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <utility>

#include "ui/combo_box.h"
#include "ui/label.h"
#include "ui/option_array.h"
#include "ui/text_box.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

QVBoxLayout* new_column(std::span<const Item> items) {
  auto* column = new QVBoxLayout;
  column->setSpacing(theme::spacing() * 2 / 3);
  for (const Item& item : items) {
    item.add_to(*column);
  }
  return column;
}

QGridLayout* new_grid() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(theme::spacing() / 2);
  grid->setVerticalSpacing(theme::spacing() / 2);
  return grid;
}

/// What stands on a drawing.
QWidgetList read_by_place(const QWidget& drawing) {
  QList<QLabel*> labels = drawing.findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
  std::ranges::sort(labels, {}, [](const QLabel* label) {
    return std::pair{label->y(), label->x()};
  });
  return {labels.begin(), labels.end()};
}

/// The widgets of a layout in reading order, those that have a layout before what is in it.
void collect(const QLayout& layout, QWidgetList& widgets) {
  for (int i = 0; i < layout.count(); ++i) {
    QLayoutItem& item = *layout.itemAt(i);
    if (QLayout* inner = item.layout(); inner != nullptr) {
      collect(*inner, widgets);
    } else if (QWidget* widget = item.widget(); widget != nullptr) {
      widgets.append(widget);
      if (widget->layout() != nullptr) {
        collect(*widget->layout(), widgets);
      } else {
        widgets += read_by_place(*widget);
      }
    }
  }
}

}  // namespace

Item::Item(const OptionArray& options) {
  auto* column = new QVBoxLayout;
  column->setSpacing(theme::spacing() / 3);
  for (Option* button : options.buttons()) {
    // No wider than its text: a click beside it is not meant for it.
    column->addWidget(button, 0, Qt::AlignLeft);
  }
  layout_ = column;
}

void Item::add_to(QBoxLayout& box) const {
  if (place_ == Place::bottom) {
    box.addStretch(1);
  }
  if (widget_ != nullptr) {
    box.addWidget(widget_);
  } else if (layout_ != nullptr) {
    box.addLayout(layout_);
  } else {
    box.addStretch(1);
  }
}

void Item::fill(QWidget& container, int margin) const {
  auto* outer = new QVBoxLayout{&container};
  outer->setContentsMargins(margin, margin, margin, margin);
  add_to(*outer);
}

Item column(std::span<const Item> items) { return Item{new_column(items)}; }

Item row(std::span<const Item> items) {
  auto* row = new QHBoxLayout;
  row->setSpacing(theme::spacing());
  for (const Item& item : items) {
    item.add_to(*row);
  }
  return Item{row};
}

Item alternatives(std::span<const Item> items) {
  auto* place = new QGridLayout;
  for (const Item& item : items) {
    place->addLayout(new_column({&item, 1}), 0, 0);
  }
  return Item{place};
}

Item buttons(std::span<const Item> items) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  for (const Item& item : items) {
    item.add_to(*row);
  }
  return Item{row, Item::Place::bottom};
}

Item across(const OptionArray& options) {
  auto* row = new QHBoxLayout;
  row->setSpacing(theme::spacing());
  for (Option* button : options.buttons()) {
    row->addWidget(button);
  }
  row->addStretch(1);
  return Item{row};
}

Item stretch() { return Item{static_cast<QLayout*>(nullptr)}; }

Field field(Label& prompt, TextBox& box) {
  prompt.set_prompt_of(box);
  return {&prompt, &box, nullptr};
}

Field field(Label& prompt, TextBox& box, Label& unit) {
  prompt.set_prompt_of(box);
  return {&prompt, &box, &unit};
}

Field field(Label& prompt, ComboBox& box) {
  prompt.set_prompt_of(box);
  return {&prompt, &box, nullptr};
}

Field field(Label& name, Label& value) {
  name.set_prompt_of(value);
  return {&name, &value, nullptr};
}

Field field(Label& name, Label& value, Label& unit) {
  name.set_prompt_of(value);
  return {&name, &value, &unit};
}

void append(Fields& fields, const Field& line) { fields.push_back(line); }

void append(Fields& fields, const Fields& lines) {
  fields.insert(fields.end(), lines.begin(), lines.end());
}

Item form(const Fields& fields) {
  auto* grid = new_grid();
  int line = 0;
  for (const Field& field : fields) {
    field.prompt->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(field.prompt, line, 0);
    if (field.unit != nullptr) {
      grid->addWidget(field.value, line, 1);
      grid->addWidget(field.unit, line, 2);
    } else {
      grid->addWidget(field.value, line, 1, 1, 2);
    }
    ++line;
  }
  grid->setColumnStretch(2, 1);
  return Item{grid};
}

Item table(const std::vector<Label*>& column_heads, const std::vector<TableRow>& rows) {
  auto* grid = new_grid();
  int column = 1;
  for (Label* head : column_heads) {
    grid->addWidget(head, 0, column++, Qt::AlignHCenter);
  }
  int line = 1;
  for (const TableRow& row : rows) {
    row.head->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(row.head, line, 0);
    column = 1;
    for (TextBox* box : row.boxes) {
      const Label& column_head = *column_heads[static_cast<std::size_t>(column - 1)];
      box->setAccessibleName(row.head->text() + ' ' + column_head.text());
      grid->addWidget(box, line, column++);
    }
    ++line;
  }
  grid->setColumnStretch(column, 1);
  return Item{grid};
}

QWidgetList widgets_in_reading_order(const QWidget& window) {
  QWidgetList widgets;
  collect(*window.layout(), widgets);
  return widgets;
}

void set_tab_order(QWidget& window) {
  QWidgetList controls{&window};
  for (QWidget* widget : widgets_in_reading_order(window)) {
    if (widget->focusPolicy() != Qt::NoFocus) {
      controls.append(widget);
    }
  }
  // The toolkit passes over what takes no focus; the window is where the order begins.
  const Qt::FocusPolicy policy = window.focusPolicy();
  window.setFocusPolicy(Qt::TabFocus);
  for (qsizetype i = 1; i < controls.size(); ++i) {
    QWidget::setTabOrder(controls[i - 1], controls[i]);
  }
  window.setFocusPolicy(policy);
}

}  // namespace eterlab::ui
