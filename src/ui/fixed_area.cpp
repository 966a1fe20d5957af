#include "ui/fixed_area.h"

#include <QBoxLayout>
#include <QPainter>
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "ui/theme.h"

namespace eterlab::ui {

/// The toolkit's view of it: a layout of items at places.
class FixedArea::Places final : public QLayout {
 public:
  Places(QWidget* area, TwipsSize least) : QLayout{area}, least_{least} {
    setContentsMargins(0, 0, 0, 0);
  }

  void place(QWidget& control, TwipsPoint corner, TwipsSize size) {
    const auto found = std::find_if(places_.begin(), places_.end(), [&](const Place& place) {
      return place.item->widget() == &control;
    });
    if (found != places_.end()) {
      found->corner = corner;
      found->size = size;
    } else {
      addChildWidget(&control);
      places_.push_back({std::make_unique<QWidgetItem>(&control), corner, size});
    }
    invalidate();
  }

  void place(const Item& item, TwipsPoint corner, TwipsSize size) {
    auto holder = std::make_unique<QVBoxLayout>();
    item.add_to(*holder);
    addChildLayout(holder.get());
    places_.push_back({std::move(holder), corner, size});
    invalidate();
  }

  [[nodiscard]] int count() const override { return static_cast<int>(places_.size()); }

  [[nodiscard]] QLayoutItem* itemAt(int index) const override {
    return index >= 0 && index < count() ? at(index)->item.get() : nullptr;
  }

  QLayoutItem* takeAt(int index) override {
    if (index < 0 || index >= count()) {
      return nullptr;
    }
    QLayoutItem* taken = at(index)->item.release();
    places_.erase(at(index));
    return taken;
  }

  // The toolkit adds nothing by itself; everything comes with its place.
  void addItem(QLayoutItem* item) override { places_.push_back({Owned{item}, {}, {}}); }

  [[nodiscard]] bool hasHeightForWidth() const override {
    return std::any_of(places_.begin(), places_.end(),
                       [](const Place& place) { return place.item->hasHeightForWidth(); });
  }

  [[nodiscard]] int heightForWidth(int width) const override {
    int height = scaled(least_).height();
    for (const Place& place : places_) {
      height = std::max(height, geometry_of(place, width).bottom() + 1 + edge());
    }
    return height;
  }

  [[nodiscard]] QSize minimumSize() const override {
    int width = scaled(least_).width();
    for (const Place& place : places_) {
      width = std::max(width, scaled(place.corner).x() + least_width(place) + edge());
    }
    return {width, heightForWidth(width)};
  }

  [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }

  void setGeometry(const QRect& area) override {
    QLayout::setGeometry(area);
    for (const Place& place : places_) {
      const QRect geometry = geometry_of(place, area.width());
      if (QWidget* control = place.item->widget(); control != nullptr) {
        control->setGeometry(geometry);  // also a control that layouts may not enlarge
      } else {
        place.item->setGeometry(geometry);
      }
    }
  }

 private:
  using Owned = std::unique_ptr<QLayoutItem>;
  struct Place {
    Owned item;
    TwipsPoint corner;
    TwipsSize size;
  };

  [[nodiscard]] std::vector<Place>::const_iterator at(int index) const {
    return places_.begin() + index;
  }
  [[nodiscard]] std::vector<Place>::iterator at(int index) { return places_.begin() + index; }

  /// What is kept free along the edges of the area.
  static int edge() { return theme::margin() / 2; }

  static QPoint scaled(TwipsPoint corner) {
    return (QPointF{corner.pixels()} * theme::font_scale()).toPoint();
  }
  static QSize scaled(TwipsSize size) {
    return (QSizeF{size.pixels()} * theme::font_scale()).toSize();
  }

  static int least_width(const Place& place) {
    const int needed = place.item->hasHeightForWidth() ? place.item->minimumSize().width()
                                                       : place.item->sizeHint().width();
    return std::max(needed, scaled(place.size).width());
  }

  static QRect geometry_of(const Place& place, int area_width) {
    const QPoint corner = scaled(place.corner);
    const QSize given = scaled(place.size);
    int width = least_width(place);
    int height = place.item->sizeHint().height();
    if (place.item->hasHeightForWidth()) {
      if (given.width() == 0) {
        width = std::max(width, area_width - edge() - corner.x());
      }
      height = place.item->heightForWidth(width);
    }
    return {corner, QSize{width, std::max(height, given.height())}};
  }

  TwipsSize least_;
  std::vector<Place> places_;
};

FixedArea::FixedArea(Parent parent, std::string_view name, TwipsSize size, Picture picture)
    : QWidget{parent.widget()}, places_{new Places{this, size}}, picture_{std::move(picture)} {
  set_up(*this, name, {});
}

FixedArea::~FixedArea() = default;

void FixedArea::place(QWidget& control, TwipsPoint corner, TwipsSize size) {
  places_->place(control, corner, size);
}

void FixedArea::place(const Item& item, TwipsPoint corner, TwipsSize size) {
  places_->place(item, corner, size);
}

void FixedArea::paintEvent(QPaintEvent* /*event*/) {
  if (picture_) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    picture_(painter, size());
  }
}

}  // namespace eterlab::ui
