#include "ui/result_table.h"

#include <QEvent>
#include <QGridLayout>
#include <algorithm>
#include <string>
#include <utility>

#include "ui/laid_text.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

class Cell : public Label {
 public:
  Cell(Parent parent, std::string_view name, ResultTable::Kind kind) : Label{parent, name} {
    set_role(Role::cell);
    const bool is_text = kind == ResultTable::Kind::text;
    setAlignment((is_text ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
  }
  using Label::operator=;

  /// Columns keep their width whichever row is marked; what is wrapped takes the room there is.
  [[nodiscard]] QSize sizeHint() const override {
    if (wordWrap()) {
      return Label::sizeHint();
    }
    if (measured_text_ != text() || measured_font_ != font()) {
      measured_text_ = text();
      measured_font_ = font();
      QFont bold = font();
      bold.setBold(true);
      marked_width_ = width_of_line(text(), bold);
    }
    return Label::sizeHint().expandedTo({marked_width_, 0});
  }

 private:
  // Every layout asks for the size repeatedly.
  mutable QString measured_text_;
  mutable QFont measured_font_;
  mutable int marked_width_ = 0;
};

class ResultCell final : public Cell, public Blankable {
 public:
  using Cell::Cell;
  void blank() override { *this = ""; }
  using Cell::operator=;
};

}  // namespace

ResultTable::ResultTable(Parent parent, std::string_view name, int rows,
                         std::initializer_list<Column> columns)
    : QWidget{parent.widget()},
      rows_{rows},
      columns_{static_cast<int>(columns.size())},
      grid_{new QGridLayout{this}} {
  set_up(*this, name, {});
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(theme::spacing() * 3 / 2);
  grid_->setVerticalSpacing(theme::spacing() / 6);
  int place = 0;
  for (const Column& column : columns) {
    const std::string head_name =
        std::string{column.head_name.empty() ? column.name : column.head_name} +
        (column.head_name.empty() ? "_head" : "");
    heads_.push_back(std::make_unique<Label>(this, head_name, column.head));
    heads_.back()->set_role(Label::Role::note);
    heads_.back()->setWordWrap(false);
    const bool is_text = column.kind == Kind::text;
    grid_->addWidget(heads_.back().get(), 0, place++, is_text ? Qt::AlignLeft : Qt::AlignRight);
  }
  for (int row = 0; row < rows; ++row) {
    place = 0;
    for (const Column& column : columns) {
      const std::string cell = std::string{column.name} + "_" + std::to_string(row);
      if (column.kind == Kind::result) {
        cells_.push_back(std::make_unique<ResultCell>(this, cell, column.kind));
      } else {
        cells_.push_back(std::make_unique<Cell>(this, cell, column.kind));
      }
      grid_->addWidget(cells_.back().get(), row + 1, place++);
    }
    describe(row);
  }
  grid_->setRowStretch(rows + 1, 1);
  grid_->setColumnStretch(columns_ + 1, 1);
}

ResultTable::~ResultTable() = default;

Label& ResultTable::at(int row, int column) const {
  const int index = row * columns_ + column;
  return *cells_[static_cast<std::size_t>(index)];
}

QStringList ResultTable::heads() const {
  QStringList heads;
  for (const auto& head : heads_) {
    heads += head->text();
  }
  return heads;
}

void ResultTable::reserve(int column, std::string_view longest_text) const {
  at(0, column).reserve(longest_text);
}

void ResultTable::wrap(int column, int width_in_characters) const {
  // Lines of one row stand closer together than rows.
  grid_->setVerticalSpacing(theme::spacing() * 2 / 3);
  for (int row = 0; row < rows_; ++row) {
    at(row, column).setWordWrap(true);
    at(row, column).setFixedWidth(theme::characters(width_in_characters));
  }
}

void ResultTable::mark(const std::vector<int>& rows) {
  const std::vector<int> before = std::exchange(marked_, rows);
  for (int row = 0; row < rows_; ++row) {
    const bool was_marked = std::ranges::find(before, row) != before.end();
    if (was_marked == is_marked(row)) {
      continue;
    }
    QFont font = theme::font_of(Label::Role::cell);
    font.setBold(is_marked(row));
    for (int column = 0; column < columns_; ++column) {
      at(row, column).setFont(font);
    }
    describe(row);
  }
}

bool ResultTable::is_marked(int row) const {
  return std::ranges::find(marked_, row) != marked_.end();
}

void ResultTable::add_behind(int row, QWidget& widget) {
  grid_->addWidget(&widget, row + 1, columns_);
}

bool ResultTable::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) {  // cells have new texts
    for (int row = 0; row < rows_; ++row) {
      describe(row);
    }
  }
  return QWidget::event(event);
}

void ResultTable::describe(int row) const {
  for (int column = 0; column < columns_; ++column) {
    QString description = heads_[static_cast<std::size_t>(column)]->text();
    if (column > 0) {
      description = at(row, 0).text() + ' ' + description;
    }
    at(row, column)
        .setAccessibleDescription(
            (is_marked(row) ? description + ", riga evidenziata" : description).trimmed());
  }
}

}  // namespace eterlab::ui
