#pragma once

#include <QComboBox>
#include <string>
#include <string_view>

#include "ui/control.h"

namespace eterlab::ui {

/// A drop-down list under a box that can also be typed in. Typing completes nothing and chooses
/// nothing: only an entry picked from the list, by mouse or cursor keys, counts as chosen, also
/// when it is the one already shown.
class ComboBox final : public QComboBox {
 public:
  /// `text` stands in the box until an entry is chosen.
  ComboBox(Parent parent, std::string_view name, std::string_view text, Tooltip tip = {});

  /// Appends an entry, perhaps with a value of its own; what stands in the box stays.
  void add(std::string_view entry, int value = 0);

  /// The text in the box, chosen or typed.
  [[nodiscard]] std::string content() const;
  /// The place of the entry chosen last in the list, from 0; -1 before any choice.
  [[nodiscard]] int chosen() const { return chosen_; }
  /// The value of that entry.
  [[nodiscard]] int chosen_value() const { return itemData(chosen_).toInt(); }

  void on_choose(const Handler& handler);
  /// Chooses as the user does.
  void choose(int index);
  /// The first entry of that text; nothing happens when there is none.
  void choose(std::string_view entry);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  struct Measured {
    int entries = -1;
    QFont font;
    QSize size;
  };
  mutable Measured measured_;
  int chosen_ = -1;
};

}  // namespace eterlab::ui
