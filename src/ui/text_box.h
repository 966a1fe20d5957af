#pragma once

#include <QLineEdit>
#include <functional>
#include <string>
#include <string_view>

#include "common/arithmetic.h"
#include "ui/control.h"

namespace eterlab::ui {

/// A line edit in which the decimal key of the numeric keypad types ".", whatever the keyboard
/// layout makes of it.
class PointLineEdit : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

/// A box for one value, of 32 767 characters at most; what is pasted beyond them is cut.
class TextBox : public PointLineEdit {
 public:
  TextBox(Parent parent, std::string_view name, Tooltip tip = {});

  /// Replaces the text; an edit like any other, so the change handler runs if it differs.
  TextBox& operator=(std::string_view text);
  [[nodiscard]] std::string content() const;
  /// The number that the text begins with, see leading_number.
  [[nodiscard]] Real number() const;

  /// A box that the window writes, to be read and copied; it looks so.
  void set_read_only(bool is_read_only) { setReadOnly(is_read_only); }

  /// Every change of the text: by key, by paste, by assignment.
  void on_change(Handler handler);
};

}  // namespace eterlab::ui
