#pragma once

#include <QTableWidget>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace eterlab::ui {

/// A catalogue of numbers with more rows than a window has room for: they scroll under the heads of
/// the columns. One row can be selected, by the window and by the user.
class ScrolledTable final : public QTableWidget {
 public:
  using Row = std::vector<std::string>;

  ScrolledTable(Parent parent, std::string_view name, const Row& heads,
                const std::vector<Row>& rows, int rows_in_sight);
  ~ScrolledTable() override;

  /// Selects one row, in sight; none for -1.
  void select(int row);
};

}  // namespace eterlab::ui
