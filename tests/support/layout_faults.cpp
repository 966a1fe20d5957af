#include "support/layout_faults.h"

#include <QBitmap>
#include <QLabel>
#include <QMenu>
#include <QPixmap>
#include <QRegion>

#include "support/window_test.h"
#include "ui/schematic.h"

namespace eterlab::test {

namespace {

constexpr QSize screen{1280, 1024};

std::string text_of(QSize size) {
  return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

QSize room_for_text(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  return label != nullptr && label->wordWrap() ? QSize{0, label->heightForWidth(label->width())}
                                               : control.minimumSizeHint();
}

/// What the lines and letters of a drawing take of it, without the labels that stand on it.
QRegion drawn(ui::Schematic& schematic) {
  QPixmap picture{schematic.size()};
  picture.fill(Qt::transparent);
  schematic.render(&picture, {}, {}, QWidget::RenderFlags{});
  return picture.mask();
}

/// The room that a control's contents take of its parent: an empty label takes none.
QRegion ink(QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  if (label != nullptr && label->text().isEmpty()) {
    return {};
  }
  if (auto* schematic = dynamic_cast<ui::Schematic*>(&control); schematic != nullptr) {
    return drawn(*schematic).translated(control.pos());
  }
  return control.geometry();
}

void add_drawing_faults(ui::Schematic& schematic, std::vector<std::string>& faults) {
  const QRegion lines = drawn(schematic);
  for (QLabel* label : schematic.findChildren<QLabel*>()) {
    // The letters themselves stand well inside.
    const QRect letters = ink(*label).boundingRect().adjusted(2, 3, -2, -3);
    if (label->isVisible() && lines.intersects(letters)) {
      faults.push_back(name_of(*label) + " stands on a line of " + name_of(schematic));
    }
  }
}

}  // namespace

QList<QWidget*> visible_controls(const QWidget& window) {
  QList<QWidget*> controls;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool is_internal = widget->objectName().isEmpty() ||
                             widget->objectName().startsWith("qt_") ||
                             qobject_cast<QMenu*>(widget) != nullptr;
    if (!is_internal && widget->isVisible()) {
      controls.append(widget);
    }
  }
  return controls;
}

std::vector<std::string> layout_faults(const QWidget& window) {
  std::vector<std::string> faults;
  if (window.width() > screen.width() || window.height() > screen.height()) {
    faults.push_back("the window is " + text_of(window.size()));
  }
  const QList<QWidget*> controls = visible_controls(window);
  for (QWidget* control : controls) {
    const QSize needed = room_for_text(*control);
    if (control->width() < needed.width() || control->height() < needed.height()) {
      faults.push_back(name_of(*control) + " has " + text_of(control->size()) + " and needs " +
                       text_of(needed));
    }
    if (!control->parentWidget()->rect().contains(control->geometry())) {
      faults.push_back(name_of(*control) + " leaves its parent");
    }
    for (QWidget* other : controls) {
      if (other > control && other->parentWidget() == control->parentWidget() &&
          ink(*control).intersects(ink(*other))) {
        faults.push_back(name_of(*control) + " overlaps " + name_of(*other));
      }
    }
    if (auto* schematic = dynamic_cast<ui::Schematic*>(control); schematic != nullptr) {
      add_drawing_faults(*schematic, faults);
    }
  }
  return faults;
}

}  // namespace eterlab::test
