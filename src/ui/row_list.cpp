#include "ui/row_list.h"

#include <QStringList>
#include <algorithm>

#include "ui/desktop.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

RowList::RowList(Parent parent, std::string_view name) : QListWidget{parent.widget()} {
  set_up(*this, name, {});
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

RowList::RowList(Parent parent, std::string_view name, Label& prompt, int rows_in_sight,
                 int width_in_characters)
    : RowList{parent, name} {
  rows_in_sight_ = rows_in_sight;
  characters_ = width_in_characters;
  prompt.set_prompt_of(*this);
}

void RowList::show_rows(const std::vector<std::string>& rows) {
  QStringList texts;
  for (const std::string& row : rows) {
    texts += to_qt(row);
  }
  clear();
  addItems(texts);
  setCurrentRow(rows.empty() ? -1 : 0);
}

void RowList::step(int rows) {
  if (count() > 0) {
    setCurrentRow(std::clamp(currentRow() + rows, 0, count() - 1));
  }
}

void RowList::on_current_change(const Handler& handler) {
  connect(this, &QListWidget::currentRowChanged, this,
          [handler] { Desktop::instance().run(handler); });
}

void RowList::on_click(const Handler& handler) {
  connect(this, &QListWidget::itemClicked, this, [handler] { Desktop::instance().run(handler); });
}

void RowList::on_double_click(const Handler& handler) {
  connect(this, &QListWidget::itemDoubleClicked, this,
          [handler] { Desktop::instance().run(handler); });
}

QSize RowList::sizeHint() const {
  return {theme::characters(characters_), height_of(rows_in_sight_)};
}

int RowList::height_of(int rows) const {
  const int row = count() > 0 ? sizeHintForRow(0) : fontMetrics().height() + 2;
  return rows * row + 2 * frameWidth();
}

}  // namespace eterlab::ui
