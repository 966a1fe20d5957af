#pragma once

#include <QWidget>
#include <array>
#include <concepts>
#include <span>
#include <vector>

class QBoxLayout;
class QLayout;

// How a window says what stands where: rows and columns of controls, forms of prompts and boxes,
// the buttons. Sizes follow the user's font. Reading order is tab order.

namespace eterlab::ui {

class ComboBox;
class Label;
class OptionArray;
class TextBox;

/// A control, or controls already laid out. Each is put into exactly one place.
class Item {
 public:
  enum class Place : unsigned char { normal, bottom };

  Item(QWidget& widget) : widget_{&widget} {}
  /// The buttons one under the other.
  Item(const OptionArray& options);
  explicit Item(QLayout* layout, Place place = Place::normal) : layout_{layout}, place_{place} {}

  void add_to(QBoxLayout& box) const;
  /// Makes this the whole contents of a window or frame, with a margin of so many pixels around it.
  void fill(QWidget& container, int margin) const;

 private:
  QWidget* widget_ = nullptr;
  QLayout* layout_ = nullptr;
  Place place_ = Place::normal;
};

Item column(std::span<const Item> items);
Item row(std::span<const Item> items);
/// In one place, where each shows while the others are hidden.
Item alternatives(std::span<const Item> items);
/// The buttons of a window: at its bottom, to the right.
Item buttons(std::span<const Item> items);

template <std::convertible_to<Item>... Items>
Item column(Items&&... items) {
  return column(std::array{Item{items}...});
}
template <std::convertible_to<Item>... Items>
Item row(Items&&... items) {
  return row(std::array{Item{items}...});
}
template <std::convertible_to<Item>... Items>
Item alternatives(Items&&... items) {
  return alternatives(std::array{Item{items}...});
}
template <std::convertible_to<Item>... Items>
Item buttons(Items&&... items) {
  return buttons(std::array{Item{items}...});
}

/// Option buttons side by side; an OptionArray by itself has them one under the other.
Item across(const OptionArray& options);

/// Room that grows, to keep neighbours together or apart.
Item stretch();

/// One line of a form.
struct Field {
  Label* prompt;
  QWidget* value;
  QWidget* unit;  ///< or what else stands behind the value
};
/// A box with its prompt, which also names it for screen readers, and perhaps its unit.
Field field(Label& prompt, TextBox& box);
Field field(Label& prompt, TextBox& box, Label& unit);
Field field(Label& prompt, ComboBox& box);
/// A value with its name, and perhaps its unit.
Field field(Label& name, Label& value);
Field field(Label& name, Label& value, Label& unit);

using Fields = std::vector<Field>;
void append(Fields& fields, const Field& line);
void append(Fields& fields, const Fields& lines);

/// Lines of prompts and boxes, aligned.
Item form(const Fields& fields);
/// Of fields, of inputs and lists, which are fields of their own, and of arrays of inputs.
template <class... Lines>
Item form(const Lines&... lines) {
  Fields fields;
  (append(fields, lines), ...);
  return form(fields);
}

/// One line of a table.
struct TableRow {
  Label* head;
  std::vector<TextBox*> boxes;
};
/// Boxes in rows under the heads of their columns, named for screen readers by both heads.
Item table(const std::vector<Label*>& column_heads, const std::vector<TableRow>& rows);

/// All that a laid-out window shows, also what stands on its drawings.
QWidgetList widgets_in_reading_order(const QWidget& window);

/// Makes the reading order of a laid-out window its tab order.
void set_tab_order(QWidget& window);

}  // namespace eterlab::ui
