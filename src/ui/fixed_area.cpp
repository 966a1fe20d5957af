#include "ui/fixed_area.h"

#include <QPainter>
#include <utility>

namespace eterlab::ui {

FixedArea::FixedArea(Parent parent, std::string_view name, TwipsSize size, Picture picture)
    : QWidget{parent.widget()}, picture_{std::move(picture)} {
  set_up(*this, name, {});
  setMinimumSize(size.pixels());
}

void FixedArea::place(QWidget& control, TwipsPoint corner) {
  control.move(corner.pixels());
  control.adjustSize();
}

void FixedArea::place(QWidget& control, TwipsPoint corner, TwipsSize size) {
  control.setGeometry({corner.pixels(), size.pixels()});
}

void FixedArea::paintEvent(QPaintEvent* /*event*/) {
  if (picture_) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    picture_(painter, size());
  }
}

}  // namespace eterlab::ui
