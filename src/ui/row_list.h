#pragma once

#include <QListWidget>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"
#include "ui/label.h"

namespace eterlab::ui {

/// A list of which as many rows as have room are in sight; one of them is current while there are
/// any.
class RowList final : public QListWidget {
 public:
  RowList(Parent parent, std::string_view name);
  /// In a layout; its prompt names it for screen readers.
  RowList(Parent parent, std::string_view name, Label& prompt, int rows_in_sight,
          int width_in_characters);
  ~RowList() override;

  /// In place of what was listed; the first becomes current.
  void show_rows(const std::vector<std::string>& rows);
  /// The place of the current row, from 0; -1 in an empty list.
  [[nodiscard]] int current() const { return currentRow(); }
  /// So many rows down, or up, within the list.
  void step(int rows);
  [[nodiscard]] int rows_in_sight() const { return rows_in_sight_; }

  void on_current_change(const Handler& handler);
  void on_click(const Handler& handler);
  void on_double_click(const Handler& handler);

  /// With the frame, in pixels.
  [[nodiscard]] int height_of(int rows) const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  int rows_in_sight_ = 1;
  int characters_ = 1;
};

}  // namespace eterlab::ui
