#include "ui/scrolled_table.h"

#include <QHeaderView>
#include <QScrollBar>

#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

ScrolledTable::ScrolledTable(Parent parent, std::string_view name, const Row& heads,
                             const std::vector<Row>& rows, int rows_in_sight)
    : QTableWidget{static_cast<int>(rows.size()), static_cast<int>(heads.size()), parent.widget()} {
  set_up(*this, name, {});
  int column = 0;
  for (const std::string& head : heads) {
    auto* cell = new QTableWidgetItem{to_qt(head)};
    cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setHorizontalHeaderItem(column++, cell);
  }
  int place = 0;
  for (const Row& row : rows) {
    column = 0;
    for (const std::string& text : row) {
      auto* cell = new QTableWidgetItem{to_qt(text)};
      cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      setItem(place, column++, cell);
    }
    ++place;
  }
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  verticalHeader()->hide();
  const int row_height = theme::spacing() * 5 / 4;
  verticalHeader()->setMinimumSectionSize(row_height);
  verticalHeader()->setDefaultSectionSize(row_height);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  resizeColumnsToContents();
  for (column = 0; column < columnCount(); ++column) {
    setColumnWidth(column, columnWidth(column) + theme::spacing() / 2);
  }
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  const int frame = 2 * frameWidth();
  setFixedSize(horizontalHeader()->length() + verticalScrollBar()->sizeHint().width() + frame,
               horizontalHeader()->sizeHint().height() + rows_in_sight * row_height + frame);
}

ScrolledTable::~ScrolledTable() = default;

void ScrolledTable::select(int row) {
  if (row < 0) {
    clearSelection();
    return;
  }
  selectRow(row);
  scrollToItem(item(row, 0), PositionAtCenter);
}

}  // namespace eterlab::ui
