#pragma once

#include <QLabel>
#include <QMap>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "ui/control.h"

namespace eterlab::ui {

class LaidText;

/// Text on a window, shown exactly as stored. Its role decides how it looks.
class Label : public QLabel {
 public:
  enum class Role : std::uint8_t {
    text,     ///< as the user's font writes it, on one line
    heading,  ///< what a window or a part of it is about; wrapped
    note,     ///< explanation: quieter, wrapped
    result,   ///< what the window is for: stronger, wrapped, to be selected and copied
    drawing,  ///< on a drawing, centred, to be selected and copied
    cell,     ///< in a table, to be selected and copied
  };
  // A new text of results and on drawings is announced to screen readers.

  Label(Parent parent, std::string_view name, std::string_view text = {}, Tooltip tip = {});
  ~Label() override;

  Label& operator=(std::string_view text);
  [[nodiscard]] std::string content() const;

  /// Keeps the room that this text would take, for a label that is empty or shorter at first. Of
  /// several texts the widest counts.
  void reserve(std::string_view text);
  /// Names a box, or describes a value, for screen readers by this label, whatever it will say.
  void set_prompt_of(QWidget& control);
  void on_click(Handler handler);

  /// For a text whose font the design gives.
  void set_font(std::string_view family, double points, QFont::Weight weight = QFont::Normal);
  /// For a label of an array; the others say their role by their type.
  void set_role(Role role);
  [[nodiscard]] Role role() const { return role_; }
  /// A result, a value on a drawing or a cell of a table.
  [[nodiscard]] bool can_be_copied() const { return tells_result() || role_ == Role::cell; }

  /// A result that belongs to the inputs, for all that is known.
  [[nodiscard]] bool is_fresh_result() const { return can_be_copied() && is_fresh_; }
  /// The inputs have changed. Until a new text is written, even the same, it can be dimmed.
  void outdate() { is_fresh_ = false; }
  /// But for a label whose colour the design gives.
  void dim_if_outdated();

  /// Selects all of a text that can be copied.
  void select_all();

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] int heightForWidth(int width) const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  /// Of a result: to copy what is selected, or all of it.
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] bool tells_result() const;
  /// Room for what an empty label will say, so that the window keeps its size then.
  [[nodiscard]] int at_least_a_line(int height) const;
  void announce();
  void become_selectable();
  void copy() const;
  void name_prompted();

  /// The room that the text takes within this width, which limits only what is wrapped.
  [[nodiscard]] QSize measured(int width) const;
  /// The text in lines of this width, for as long as it stays.
  [[nodiscard]] const LaidText& laid(int width) const;
  /// What was measured of another text, or in another font.
  void forget_other_text() const;
  struct Measured {
    QString text;
    QFont font;
    QMap<int, QSize> sizes;  // by width
    std::unique_ptr<const LaidText> lines;
    int limit = -1;  // of these lines
  };

  Role role_ = Role::text;
  mutable Measured measured_;
  bool is_fresh_ = false;  // never before it is written
  bool is_dimmed_ = false;
  QWidget* prompted_ = nullptr;
  QString unprompted_name_;
  /// Written while it was hidden.
  bool is_to_be_announced_ = false;
  Handler click_handler_;
};

class Heading final : public Label {
 public:
  Heading(Parent parent, std::string_view name, std::string_view text = {}, Tooltip tip = {});
  ~Heading() override;
  using Label::operator=;
};

class Note final : public Label {
 public:
  Note(Parent parent, std::string_view name, std::string_view text = {}, Tooltip tip = {});
  ~Note() override;
  using Label::operator=;
};

class Result final : public Label, public Blankable {
 public:
  Result(Parent parent, std::string_view name, std::string_view text = {}, Tooltip tip = {});
  ~Result() override;
  using Label::operator=;
  void blank() override { *this = ""; }
};

/// A result at its place on a drawing, which is its parent. (A plain Label there is a fixed text.)
class Value final : public Label, public Blankable {
 public:
  /// Without a result it is empty, or shows a letter.
  Value(Parent drawing, std::string_view name, std::string_view letter = {}, Tooltip tip = {});
  ~Value() override;
  using Label::operator=;
  void blank() override { *this = letter_; }
  /// Shows another letter, also when it is blank again.
  void set_letter(std::string_view letter) {
    letter_ = letter;
    blank();
  }

 private:
  std::string letter_;
};

}  // namespace eterlab::ui
