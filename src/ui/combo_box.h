#pragma once

#include <QComboBox>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace eterlab::ui {

class RowList;

/// A drop-down list under a box that can also be typed in. Typing lists the entries that have the
/// letters in them, whatever blanks are between, and chooses nothing: only an entry picked from
/// either list, by mouse, cursor keys or Enter, counts as chosen, also when it is the one already
/// shown. Any other text gives way to that of the last choice when the focus goes.
class ComboBox final : public QComboBox {
 public:
  /// `text` stands in the box until an entry is chosen.
  ComboBox(Parent parent, std::string_view name, std::string_view text, Tooltip tip = {});
  ~ComboBox() override;

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

 protected:
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Lists the entries that have what is typed in them.
  void complete();
  [[nodiscard]] bool is_completing() const;
  void hide_completions();
  void take_completion();

  struct Measured {
    int entries = -1;
    QFont font;
    QSize size;
  };
  mutable Measured measured_;
  int chosen_ = -1;
  QString at_rest_;  // what stands in the box while nobody types
  RowList* completion_list_ = nullptr;
  std::vector<int> completions_;  // the places of the entries listed
};

}  // namespace eterlab::ui
