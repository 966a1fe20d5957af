#pragma once

#include <QStringList>
#include <QWidget>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <vector>

#include "ui/control.h"
#include "ui/label.h"

class QGridLayout;

namespace eterlab::ui {

/// Rows of texts under the heads of their columns, in which rows can be marked. Screen readers are
/// told the head of the column with each cell, and the text in the row's first one.
class ResultTable final : public QWidget {
 public:
  enum class Kind : std::uint8_t {
    text,    ///< stays; to the left
    number,  ///< stays; to the right
    result,  ///< emptied with the results; to the right
  };
  struct Column {
    std::string_view name;  ///< of its cells, which get the row's index behind it: lbltabr1_0
    std::string_view head;
    Kind kind = Kind::result;
    std::string_view head_name = {};  ///< unless told, the cells' with "_head" behind it
  };

  ResultTable(Parent parent, std::string_view name, int rows,
              std::initializer_list<Column> columns);
  ~ResultTable() override;

  /// A cell, by its row and column.
  [[nodiscard]] Label& at(int row, int column) const;
  [[nodiscard]] int rows() const { return rows_; }
  [[nodiscard]] int columns() const { return columns_; }
  [[nodiscard]] QStringList heads() const;
  /// Keeps room for this text in a column.
  void reserve(int column, std::string_view longest_text) const;
  /// Breaks the texts of a column into lines of so many average characters.
  void wrap(int column, int width_in_characters) const;

  /// These rows stand out, and no other ones.
  void mark(const std::vector<int>& rows);
  /// One of them; none for -1.
  void mark(int row) { mark(row < 0 ? std::vector<int>{} : std::vector<int>{row}); }

  /// Puts something beside the last cell of a row, such as a patch of colour.
  void add_behind(int row, QWidget& widget);

 protected:
  bool event(QEvent* event) override;

 private:
  [[nodiscard]] bool is_marked(int row) const;
  void describe(int row) const;

  int rows_;
  int columns_;
  std::vector<int> marked_;
  QGridLayout* grid_;
  std::vector<std::unique_ptr<Label>> heads_;
  std::vector<std::unique_ptr<Label>> cells_;
};

}  // namespace eterlab::ui
