#pragma once

#include <QList>
#include <QWidget>
#include <string>
#include <vector>

namespace eterlab::test {

/// The controls of a window that the user sees: those that the design names.
QList<QWidget*> visible_controls(const QWidget& window);

/// What a user with tired eyes would complain of: texts cut off, controls over each other or beyond
/// the edge, letters over the lines of a drawing, a window larger than the screen. One line each.
std::vector<std::string> layout_faults(const QWidget& window);

}  // namespace eterlab::test
