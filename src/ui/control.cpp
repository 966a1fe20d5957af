#include "ui/control.h"

#include <QColor>
#include <QPalette>
#include <QSizePolicy>

#include "ui/text.h"

namespace eterlab::ui {

namespace {

void keep_place_when_hidden(QWidget& control, bool keep) {
  QSizePolicy policy = control.sizePolicy();
  policy.setRetainSizeWhenHidden(keep);
  control.setSizePolicy(policy);
}

}  // namespace

void set_up(QWidget& control, std::string_view name, Tooltip tip) {
  control.setObjectName(to_qt(name));
  control.setToolTip(to_qt(tip.text));
  keep_place_when_hidden(control, true);
}

void give_up_place_when_hidden(std::initializer_list<QWidget*> parts) {
  for (QWidget* part : parts) {
    keep_place_when_hidden(*part, false);
  }
}

void set_text_colour(QWidget& control, Colour colour) {
  QPalette palette = control.palette();
  palette.setColor(control.foregroundRole(), {colour.red, colour.green, colour.blue});
  control.setPalette(palette);
}

Colour text_colour(const QWidget& control) {
  const QColor colour = control.palette().color(control.foregroundRole());
  return {colour.red(), colour.green(), colour.blue()};
}

}  // namespace eterlab::ui
