#include "support/layout_faults.h"

#include <QBitmap>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QRegion>

#include "support/window_test.h"
#include "ui/plot.h"
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

/// Where the letters themselves stand: well inside the room of their text.
QRect core(const QRect& room) { return room.adjusted(2, 3, -2, -3); }

/// What fixed letters and labels on a drawing or plot do to each other and to its lines.
void add_faults_of_letters(const QWidget& drawing, const QRegion& lines,
                           const std::vector<ui::Letters>& fixed,
                           std::vector<std::string>& faults) {
  struct Text {
    std::string name;
    QRect room;
  };
  std::vector<Text> texts;
  for (const ui::Letters& letters : fixed) {
    texts.push_back({'"' + letters.text.toStdString() + '"', letters.room.toAlignedRect()});
    if (!drawing.rect().adjusted(-1, -1, 1, 1).contains(texts.back().room)) {
      faults.push_back(texts.back().name + " is cut off by " + name_of(drawing));
    }
  }
  const std::size_t fixed_count = texts.size();
  for (QLabel* label : drawing.findChildren<QLabel*>()) {
    if (label->isVisible() && !label->text().isEmpty()) {
      texts.push_back({name_of(*label), label->geometry()});
    }
  }
  for (const Text& text : texts) {
    if (lines.intersects(core(text.room))) {
      faults.push_back(text.name + " stands on a line of " + name_of(drawing));
    }
  }
  // Labels over labels are found among all controls.
  for (std::size_t i = 0; i < fixed_count; ++i) {
    for (std::size_t k = i + 1; k < texts.size(); ++k) {
      if (core(texts[i].room).intersects(core(texts[k].room))) {
        faults.push_back(texts[k].name + " stands on " + texts[i].name + " of " + name_of(drawing));
      }
    }
  }
}

QRegion lines_of(const ui::Schematic& schematic) {
  QPixmap picture{schematic.size()};
  picture.fill(Qt::transparent);
  QPainter painter{&picture};
  schematic.shapes().paint(painter, schematic.palette());
  return picture.mask();
}

}  // namespace

QList<QWidget*> visible_controls(const QWidget& window) {
  QList<QWidget*> controls;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool is_internal =
        widget->objectName().isEmpty() || widget->objectName().startsWith("qt_");
    // Menus and lists that open stand over the window, not in it.
    if (!is_internal && !widget->isWindow() && widget->isVisible()) {
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
      add_faults_of_letters(*schematic, lines_of(*schematic), schematic->letters(), faults);
    }
    if (const auto* plot = dynamic_cast<ui::Plot*>(control); plot != nullptr) {
      add_faults_of_letters(*plot, {}, plot->letters(), faults);
    }
  }
  return faults;
}

}  // namespace eterlab::test
