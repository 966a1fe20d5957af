#pragma once

#include <QList>
#include <QWidget>
#include <string>
#include <vector>

namespace eterlab::test {

/// The controls of a window that the user sees: those that the design names.
QList<QWidget*> visible_controls(const QWidget& window);

/// The visible ones of one kind, also in lists.
template <class Control>
std::vector<Control*> visible(const QWidget& window) {
  std::vector<Control*> controls;
  for (QWidget* each : window.findChildren<QWidget*>()) {
    if (auto* control = dynamic_cast<Control*>(each); control != nullptr && each->isVisible()) {
      controls.push_back(control);
    }
  }
  return controls;
}

/// What a user with tired eyes would complain of: texts cut off, controls over each other or beyond
/// the edge, letters of a drawing or plot over its lines, over each other or beyond its edge, a
/// window larger than the screen. One line each.
std::vector<std::string> layout_faults(const QWidget& window);

}  // namespace eterlab::test
