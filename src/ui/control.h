#pragma once

#include <QWidget>
#include <functional>
#include <initializer_list>
#include <string_view>

namespace eterlab::ui {

/// What runs when something happens to a control, behind Desktop::run.
using Handler = std::function<void()>;

/// What a control stands in: the window ("this") or one of its frames.
class Parent {
 public:
  Parent(QWidget* widget) : widget_{widget} {}
  Parent(QWidget& widget) : widget_{&widget} {}
  [[nodiscard]] QWidget* widget() const { return widget_; }

 private:
  QWidget* widget_;
};

/// The hint shown while the mouse rests on a control.
struct Tooltip {
  std::string_view text;
};
constexpr Tooltip tooltip(std::string_view text) { return {text}; }

struct Colour {
  int red = 0;
  int green = 0;
  int blue = 0;
  friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

/// What shows a result and can be emptied: labels of results, plots.
class Blankable {
 public:
  Blankable() = default;
  virtual ~Blankable() = default;
  Blankable(const Blankable&) = delete;
  Blankable& operator=(const Blankable&) = delete;
  Blankable(Blankable&&) = delete;
  Blankable& operator=(Blankable&&) = delete;

  virtual void blank() = 0;
};

/// Gives a control its name and hint, and keeps its place in the layout while it is hidden.
void set_up(QWidget& control, std::string_view name, Tooltip tip);

/// For parts that a window opens and closes: they take no room in the layout while they are hidden.
void give_up_place_when_hidden(std::initializer_list<QWidget*> parts);

/// Whether a control shows, or would if its window did.
inline bool is_shown(const QWidget& control) { return !control.isHidden(); }

void set_text_colour(QWidget& control, Colour colour);
Colour text_colour(const QWidget& control);

}  // namespace eterlab::ui
