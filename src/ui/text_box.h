#pragma once

#include <QLineEdit>
#include <QPointer>
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
  ~PointLineEdit() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

/// A box for one value, of 32 767 characters at most; what is pasted beyond them is cut. Where it
/// holds something that is not read, a comma say, its edge shows so and a bubble under it tells
/// what is read.
class TextBox : public PointLineEdit {
 public:
  TextBox(Parent parent, std::string_view name, Tooltip tip = {});
  ~TextBox() override;

  /// Replaces the text; an edit like any other, so the change handler runs if it differs.
  TextBox& operator=(std::string_view text);
  [[nodiscard]] std::string content() const;
  /// The number that the text begins with, see leading_number.
  [[nodiscard]] Real number() const;

  /// A box that the window writes, to be read and copied; it looks so.
  void set_read_only(bool is_read_only) { setReadOnly(is_read_only); }

  /// For a box that no number is read from.
  void hold_text() { holds_number_ = false; }
  /// Whether the edge is to show that not all of the text is read.
  [[nodiscard]] bool has_unread_text() const { return has_unread_text_; }

  /// Every change of the text: by key, by paste, by assignment.
  void on_change(Handler handler);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void tell_what_is_read();
  void show_bubble();

  bool holds_number_ = true;
  bool has_unread_text_ = false;
  QPointer<QWidget> bubble_;
};

}  // namespace eterlab::ui
