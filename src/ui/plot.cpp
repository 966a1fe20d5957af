#include "ui/plot.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>

#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

using Look = Shapes::Look;
using Fit = Shapes::Fit;

// In grid steps.
constexpr double tick_length = 0.5;
constexpr double gap = 0.5;  // between letters and what they belong to
constexpr double dot_radius = 0.4;
constexpr double sample_of_line = 4;  // in the legend

constexpr std::array<Look, 4> curve_looks{Look::curve, Look::dashed_curve, Look::dotted_curve,
                                          Look::dash_dotted_curve};

Look look_of(std::size_t curve) { return curve_looks[curve % curve_looks.size()]; }

/// Between pixels, as a shape on the grid.
QPainterPath segment(QPointF from, QPointF to) {
  QPainterPath path{from / grid_step()};
  path.lineTo(to / grid_step());
  return path;
}

QPainterPath dot() {
  QPainterPath path;
  path.addEllipse({}, dot_radius, dot_radius);
  return path;
}

QSizeF size_of(const QString& text, const QFontMetricsF& metrics) {
  return metrics.size(Qt::TextSingleLine, text);
}

QRectF room_centred_at(QPointF centre, QSizeF size) {
  QRectF room{{}, size};
  room.moveCenter(centre);
  return room;
}

bool is_clear_of(const QRectF& room, const std::vector<Letters>& others) {
  return std::none_of(others.begin(), others.end(),
                      [&](const Letters& other) { return other.room.intersects(room); });
}

/// Whether the letters of an axis leave so much room between each other.
bool stand_apart(const std::vector<Letters>& letters, double across, double down) {
  for (std::size_t i = 1; i < letters.size(); ++i) {
    if (letters[i].room.adjusted(-across, -down, across, down).intersects(letters[i - 1].room)) {
      return false;
    }
  }
  return true;
}

struct PlacedTicks {
  std::vector<Tick> ticks;
  std::vector<Letters> letters;
};

/// The ticks of an axis with as many numbers as have room.
PlacedTicks ticks_with_room(const Ruler& ruler, const QFontMetricsF& metrics,
                            const std::function<QPointF(double, QSizeF)>& centre_of) {
  constexpr int most = 12;
  constexpr int fewest = 2;
  const double line = metrics.height();
  PlacedTicks placed;
  for (int texts = most; texts >= fewest; --texts) {
    placed = {ruler.ticks(texts), {}};
    for (const Tick& tick : placed.ticks) {
      if (!tick.text.empty()) {
        const QString text = to_qt(tick.text);
        const QSizeF size = size_of(text, metrics);
        placed.letters.push_back({room_centred_at(centre_of(tick.value, size), size), text});
      }
    }
    if (stand_apart(placed.letters, line / 2, line / 3)) {
      break;
    }
  }
  return placed;
}

}  // namespace

Plot::Plot(Parent parent, std::string_view name, Axis x_axis, Axis y_axis, int columns, int rows,
           Tooltip tip)
    : QWidget{parent.widget()},
      x_axis_{std::move(x_axis)},
      y_axis_{std::move(y_axis)},
      columns_{columns},
      rows_{rows},
      readout_{this, std::string{name} + "_readout"} {
  set_up(*this, name, tip);
  setFixedSize(sizeHint());
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  readout_.set_role(Label::Role::drawing);
  readout_.setAutoFillBackground(true);
  readout_.setAttribute(Qt::WA_TransparentForMouseEvents);
  readout_.hide();
  tell_screen_readers();
}

Plot::~Plot() = default;

QSize Plot::sizeHint() const {
  return {static_cast<int>(std::ceil(columns_ * grid_step())),
          static_cast<int>(std::ceil(rows_ * grid_step()))};
}

Plot& Plot::curve(const Function& function, Real from, Real to, std::string_view name) {
  const Interval domain{std::min(from, to).value(), std::max(from, to).value()};
  if (domain.from < domain.to && (x_axis_.scale == Scale::linear || domain.from > 0)) {
    curves_.emplace_back(function, domain, x_axis_, y_axis_, Curve::Resolution{width(), height()},
                         std::string{name});
    last_function_ = function;
    changed();
  }
  return *this;
}

Plot& Plot::marker(Real x, std::string_view text) {
  if (curves_.empty()) {
    return *this;
  }
  curves_.back().refine_at(last_function_, x.value());
  try {
    return marker(x, last_function_(x), text);
  } catch (const ArithmeticFault&) {
    return *this;
  }
}

Plot& Plot::marker(Real x, Real y, std::string_view text) {
  markers_.push_back({x.value(), y.value(), to_qt(text)});
  changed();
  return *this;
}

Plot& Plot::axes(Axis x_axis, Axis y_axis) {
  x_axis_ = std::move(x_axis);
  y_axis_ = std::move(y_axis);
  changed();
  return *this;
}

void Plot::clear() {
  curves_.clear();
  markers_.clear();
  last_function_ = {};
  changed();
}

void Plot::changed() {
  picture_.reset();
  point_at({});
  tell_screen_readers();
  update();
}

Ruler Plot::x_ruler() const {
  if (x_axis_.range) {
    return {x_axis_, *x_axis_.range};
  }
  const double first = curves_.empty() ? markers_.front().x : curves_.front().domain().from;
  Interval range{first, first};
  for (const Curve& curve : curves_) {
    range.include(curve.domain().from);
    range.include(curve.domain().to);
  }
  for (const Marker& marker : markers_) {
    range.include(marker.x);
  }
  return {x_axis_, range};
}

Ruler Plot::y_ruler() const {
  if (y_axis_.range) {
    return {y_axis_, *y_axis_.range};
  }
  std::optional<Interval> range;
  const auto include = [&](Interval values) {
    if (!range) {
      range = values;
    }
    range->include(values.from);
    range->include(values.to);
  };
  for (const Curve& curve : curves_) {
    if (const auto values = curve.values(); values) {
      include(*values);
    }
  }
  for (const Marker& marker : markers_) {
    include({marker.y, marker.y});
  }
  return {y_axis_, rounded_out(range.value_or(Interval{}), y_axis_.scale)};
}

double Plot::Picture::x_at(double value) const {
  return frame.left() + x.share(value) * frame.width();
}

double Plot::Picture::y_at(double value) const {
  return frame.bottom() - y.share(value) * frame.height();
}

QPointF Plot::place_of(Real x, Real y) const { return picture().at(x.value(), y.value()); }

bool Plot::Picture::is_crossed(const QRectF& room) const {
  const double margin = gap / 2 * grid_step();
  const QRectF with_margin = room.adjusted(-margin, -margin, margin, margin);
  return std::any_of(on_curves.begin(), on_curves.end(),
                     [&](QPointF point) { return with_margin.contains(point); });
}

std::optional<QRectF> Plot::Picture::free_room(QPointF place, QSizeF size,
                                               const std::vector<Letters>& taken) const {
  // Better farther off than over a curve.
  const QRectF within = inside();
  std::optional<QRectF> best;
  double least_cost = 0;
  const int rows = static_cast<int>(frame.height() / size.height()) + 1;
  for (int row = -rows; row <= rows; ++row) {
    for (const double side : {1.0, -1.0, 0.0}) {
      const QPointF away{side * (size.width() / 2 + (0.5 + gap) * grid_step()),
                         (row - 0.4 * std::abs(side)) * size.height()};
      QRectF room = room_centred_at(place + away, size);
      room.moveLeft(std::clamp(room.left(), within.left(),
                               std::max(within.left(), within.right() - size.width())));
      room.moveTop(std::clamp(room.top(), within.top(),
                              std::max(within.top(), within.bottom() - size.height())));
      if (!within.contains(room) || !is_clear_of(room, taken)) {
        continue;
      }
      const QPointF from_place = room.center() - place;
      const double distance = std::hypot(from_place.x() / 2, from_place.y());
      if (best && distance >= least_cost) {
        continue;
      }
      const double cost = distance + (is_crossed(room) ? 4 * size.height() : 0);
      if (!best || cost < least_cost) {
        best = room;
        least_cost = cost;
      }
    }
  }
  return best;
}

const Plot::Picture& Plot::picture() const {
  if (!picture_) {
    picture_ = drawn();
  }
  return *picture_;
}

Plot::Picture Plot::drawn() const {
  const Interval none{};
  Picture picture{.x = is_empty() ? Ruler{x_axis_, none} : x_ruler(),
                  .y = is_empty() ? Ruler{y_axis_, none} : y_ruler()};
  picture.frame = QRectF{rect()}.adjusted(0, 0, -grid_step(), 0);
  add_header(picture);
  add_ticks(picture);
  add_curves(picture);
  add_markers(picture);
  return picture;
}

void Plot::add_header(Picture& picture) const {
  const QFontMetricsF metrics{font()};
  const double line = metrics.height();
  const double sample = sample_of_line * grid_step();
  const double between = 2 * grid_step();

  const QString title = to_qt(picture.y.title());
  const QSizeF title_size = size_of(title, metrics);
  picture.letters.push_back({{{0, 0}, title_size}, title});

  const auto width_of = [&](const Curve& curve) {
    return curve.name().empty() ? 0.0
                                : sample + gap * grid_step() + between +
                                      size_of(to_qt(curve.name()), metrics).width();
  };
  double legend_width = 0;
  for (const Curve& curve : curves_) {
    legend_width += width_of(curve);
  }
  // Beside the title where there is room, else in lines of its own.
  QPointF place{width() - legend_width, 0};
  if (place.x() < title_size.width()) {
    place = {0, line};
  }
  for (std::size_t i = 0; i < curves_.size(); ++i) {
    const double needed = width_of(curves_[i]);
    if (needed == 0) {
      continue;
    }
    if (place.x() > 0 && place.x() + needed > width()) {
      place = {0, place.y() + line};
    }
    const QPointF start = place + QPointF{between, line / 2};
    picture.dots.add(look_of(i), Fit::grid, segment(start, start + QPointF{sample, 0}));
    const QString name = to_qt(curves_[i].name());
    const QSizeF size = size_of(name, metrics);
    picture.letters.push_back({{place + QPointF{needed - size.width(), 0}, size}, name});
    place.rx() += needed;
  }
  // The uppermost number stands half a line above the frame.
  picture.frame.setTop(place.y() + 1.5 * line);
}

void Plot::add_ticks(Picture& picture) const {
  const QFontMetricsF metrics{font()};
  const double step = grid_step();
  const double line = metrics.height();
  QRectF& frame = picture.frame;
  // Numbers, then the title; the lowest number of the other axis stands half a line below the
  // frame.
  frame.setBottom(height() - 2.5 * line);
  const double outside = (tick_length + gap / 2) * step;
  PlacedTicks of_y;
  PlacedTicks of_x;
  if (!is_empty()) {
    of_y = ticks_with_room(picture.y, metrics, [&](double value, QSizeF /*size*/) {
      return QPointF{0, picture.y_at(value)};
    });
  }
  // An empty plot keeps room for the numbers to come.
  double numbers_width = theme::characters(5);
  for (const Letters& number : of_y.letters) {
    numbers_width = std::max(numbers_width, number.room.width());
  }
  frame.setLeft(numbers_width + outside);
  for (Letters& number : of_y.letters) {
    number.room.moveRight(frame.left() - outside);
  }
  if (!is_empty()) {
    const auto centre = [&](double value, QSizeF size) {
      return QPointF{picture.x_at(value), frame.bottom() + (line + size.height()) / 2};
    };
    of_x = ticks_with_room(picture.x, metrics, centre);
    // The last number may stand half beyond the frame.
    double beyond = 0;
    for (const Letters& number : of_x.letters) {
      beyond = std::max(beyond, number.room.right() - width());
    }
    frame.setRight(frame.right() - beyond);
    of_x = ticks_with_room(picture.x, metrics, centre);
  }

  const auto add_line = [&](QPointF from, QPointF to, QPointF outwards, const Tick& tick) {
    picture.ground.add(Look::faint_line, Fit::grid, segment(from, to));
    if (!tick.text.empty()) {
      picture.ground.add(Look::thin_line, Fit::grid, segment(from, from + outwards));
    }
  };
  for (const Tick& tick : of_x.ticks) {
    const double x = picture.x_at(tick.value);
    add_line({x, frame.bottom()}, {x, frame.top()}, {0, tick_length * step}, tick);
  }
  for (const Tick& tick : of_y.ticks) {
    const double y = picture.y_at(tick.value);
    add_line({frame.left(), y}, {frame.right(), y}, {-tick_length * step, 0}, tick);
  }
  QPainterPath outline;
  outline.addRect({frame.topLeft() / step, frame.size() / step});
  picture.ground.add(Look::thin_line, Fit::grid, outline);

  const QString title = to_qt(picture.x.title());
  const QSizeF size = size_of(title, metrics);
  const double middle =
      std::min(frame.center().x(), std::max(width() - size.width() / 2, size.width() / 2));
  picture.letters.push_back({room_centred_at({middle, height() - line / 2}, size), title});
  for (const PlacedTicks* placed : {&of_x, &of_y}) {
    picture.letters.insert(picture.letters.end(), placed->letters.begin(), placed->letters.end());
  }
}

void Plot::add_curves(Picture& picture) const {
  constexpr double beyond = 3;  // how far off the frame a line is still drawn towards
  for (std::size_t i = 0; i < curves_.size(); ++i) {
    QPainterPath path;
    double before = 0;
    bool is_drawing = false;
    for (const Curve::Sample& sample : curves_[i].samples()) {
      const double share = picture.y.share(sample.y);
      // From far above to far below in one step there is a pole between, not a line.
      const bool is_pole = is_drawing && ((before > 1 && share < 0) || (before < 0 && share > 1));
      if (std::isnan(share) || is_pole) {
        is_drawing = false;
      }
      if (std::isnan(share)) {
        continue;
      }
      const QPointF place{
          picture.x_at(sample.x),
          picture.frame.bottom() - std::clamp(share, -beyond, beyond) * picture.frame.height()};
      picture.on_curves.push_back(place);
      if (is_drawing) {
        path.lineTo(place / grid_step());
      } else {
        path.moveTo(place / grid_step());
      }
      is_drawing = true;
      before = share;
    }
    picture.curves.add(look_of(i), Fit::exact, path);
  }
}

void Plot::add_markers(Picture& picture) const {
  const QFontMetricsF metrics{font()};
  const double step = grid_step();
  const QRectF& frame = picture.frame;
  struct Standing {
    QPointF place;
    QString text;
  };
  std::vector<Standing> standing;
  std::vector<Letters> taken;  // by dots, then by texts
  for (const Marker& marker : markers_) {
    const QPointF place = picture.at(marker.x, marker.y);
    const bool is_beside = !(place.x() >= frame.left() - 1 && place.x() <= frame.right() + 1);
    if (is_beside || std::isnan(place.y())) {
      continue;
    }
    const QPointF visible{place.x(), std::clamp(place.y(), frame.top(), frame.bottom())};
    picture.ground.add(Look::dashed_line, Fit::grid, segment(visible, {place.x(), frame.bottom()}));
    if (visible == place) {
      picture.dots.add(Look::solid, Fit::exact, dot(), place / step);
    }
    standing.push_back({visible, marker.text});
    taken.push_back({room_centred_at(visible, QSizeF{step, step}), {}});
  }

  const double widest = picture.inside().width();
  for (const Standing& marker : standing) {
    const QString text = metrics.elidedText(marker.text, Qt::ElideRight, widest);
    const auto best = picture.free_room(marker.place, size_of(text, metrics), taken);
    if (best) {
      taken.push_back({*best, text});
      picture.letters.push_back(taken.back());
      picture.blanks.push_back(*best);
      const QPointF near{std::clamp(marker.place.x(), best->left(), best->right()),
                         std::clamp(marker.place.y(), best->top(), best->bottom())};
      if (QLineF{near, marker.place}.length() > metrics.height()) {
        picture.ground.add(Look::thin_line, Fit::exact, segment(marker.place, near));
      }
    }
  }
}

void Plot::tell_screen_readers() {
  const Ruler x{x_axis_, {}};
  const Ruler y{y_axis_, {}};
  setAccessibleName(to_qt("Grafico: " + y.title() + " in funzione di " + x.title()));
  if (is_empty()) {
    setAccessibleDescription("vuoto");
    return;
  }
  const auto extent = [](const Ruler& ruler) {
    return to_qt(" da " + ruler.told(ruler.range().from) + " a " + ruler.told(ruler.range().to));
  };
  QStringList parts{to_qt(x_axis_.title) + extent(x_ruler()),
                    to_qt(y_axis_.title) + extent(y_ruler())};
  for (const Curve& curve : curves_) {
    if (!curve.name().empty()) {
      parts << to_qt(curve.name());
    }
  }
  for (const Marker& marker : markers_) {
    parts << marker.text + ": " + to_qt(x.told(marker.x) + " ; " + y.told(marker.y));
  }
  setAccessibleDescription(parts.join(", "));
}

std::optional<Plot::Pointed> Plot::on_curve(std::size_t curve, double x) const {
  const Interval domain = curves_[curve].domain();
  const double within = std::clamp(x, domain.from, domain.to);
  const auto y = curves_[curve].at(within);
  return y ? std::optional{Pointed{curve, within, *y}} : std::nullopt;
}

void Plot::point_at(const std::optional<Pointed>& place) {
  pointed_ = place;
  update();
  if (!place) {
    readout_.hide();
    readout_ = "";
    return;
  }
  constexpr int digits_of_place = 6;  // few of them are used: it is a round value
  const std::string& name = curves_[place->curve].name();
  readout_ = (name.empty() ? "" : name + ": ") + picture().x.told(place->x, digits_of_place) +
             " ; " + picture().y.told(place->y);
  readout_.adjustSize();
  readout_.move(readout_room(picture().at(place->x, place->y), readout_.size()).toPoint());
  readout_.show();
}

QPointF Plot::readout_room(QPointF cross, QSizeF size) const {
  // At the corner of the cross where there is more room; where texts stand there, beside them.
  const QRectF& frame = picture().frame;
  const double aside = grid_step();
  const double left =
      cross.x() < frame.center().x() ? cross.x() + aside : cross.x() - aside - size.width();
  const double top =
      cross.y() > frame.center().y() ? cross.y() - aside - size.height() : cross.y() + aside;
  const QPointF usual{std::clamp(left, 0.0, std::max(0.0, width() - size.width())),
                      std::clamp(top, frame.top(), frame.bottom() - size.height())};
  const std::vector<Letters>& taken = picture().letters;
  if (is_clear_of({usual, size}, taken)) {
    return usual;
  }
  const auto free = picture().free_room(cross, size, taken);
  return free ? free->topLeft() : usual;
}

std::optional<Plot::Pointed> Plot::nearest(QPointF pixel) const {
  const QRectF& frame = picture().frame;
  if (curves_.empty() || !frame.adjusted(-1, -1, 1, 1).contains(pixel)) {
    return std::nullopt;
  }
  // As round as a pixel allows.
  const double share = (pixel.x() - frame.left()) / frame.width();
  const double x_exact = picture().x.value(share);
  const double pixel_width = std::abs(picture().x.value(share + 1 / frame.width()) - x_exact);
  const double x = rounded_to(x_exact, pixel_width);
  std::optional<Pointed> nearest;
  double least = 0;
  for (std::size_t i = 0; i < curves_.size(); ++i) {
    const std::optional<Pointed> place = on_curve(i, x);
    if (!place) {
      continue;
    }
    const QPointF away = picture().at(place->x, place->y) - pixel;
    const double distance = std::hypot(away.x(), away.y());
    if (!nearest || distance < least) {
      nearest = place;
      least = distance;
    }
  }
  return nearest;
}

void Plot::step(bool to_the_right) {
  constexpr double pixels_in_step = 4;
  const Ruler& ruler = picture().x;
  const double way = (to_the_right ? pixels_in_step : -pixels_in_step) / frame().width();
  const double beyond = std::abs(way);
  // Over gaps to the next value.
  for (double share = ruler.share(pointed_->x) + way; share > -beyond && share < 1 + beyond;
       share += way) {
    const double there = ruler.value(share);
    const double x = rounded_to(there, std::abs(there - ruler.value(share - way)));
    if (const auto place = on_curve(pointed_->curve, x); place) {
      point_at(place);
      return;
    }
  }
}

void Plot::point_at_start() {
  if (curves_.empty()) {
    return;
  }
  const Interval domain = curves_.front().domain();
  point_at(on_curve(0, markers_.empty() ? value_at(0.5, domain, x_axis_.scale) : markers_[0].x));
}

void Plot::keyPressEvent(QKeyEvent* event) {
  if (!pointed_) {
    point_at_start();
  }
  if (!pointed_) {
    QWidget::keyPressEvent(event);
    return;
  }
  const Interval domain = curves_[pointed_->curve].domain();
  const std::size_t count = curves_.size();
  // Nowhere, the cross stays.
  const auto go_to = [this](std::size_t curve, double x) {
    if (const auto place = on_curve(curve, x); place) {
      point_at(place);
    }
  };
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      step(event->key() == Qt::Key_Right);
      break;
    case Qt::Key_Home:
      go_to(pointed_->curve, domain.from);
      break;
    case Qt::Key_End:
      go_to(pointed_->curve, domain.to);
      break;
    case Qt::Key_Up:
      go_to((pointed_->curve + count - 1) % count, pointed_->x);
      break;
    case Qt::Key_Down:
      go_to((pointed_->curve + 1) % count, pointed_->x);
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

void Plot::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  if (!pointed_ && event->reason() != Qt::MouseFocusReason) {
    point_at_start();
  }
}

void Plot::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  point_at({});
}

void Plot::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  point_at({});
}

void Plot::mouseMoveEvent(QMouseEvent* event) { point_at(nearest(event->position())); }

void Plot::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  picture_.reset();
}

void Plot::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    picture_.reset();
  }
}

void Plot::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter{this};
  painter.setRenderHint(QPainter::Antialiasing);
  const Picture& shown = picture();
  shown.ground.paint(painter, palette());
  for (const QRectF& blank : shown.blanks) {
    painter.fillRect(blank, palette().window());
  }
  painter.save();
  painter.setClipRect(shown.frame.adjusted(-1, -1, 1, 1));
  shown.curves.paint(painter, palette());
  painter.restore();
  shown.dots.paint(painter, palette());
  paint(painter, palette(), shown.letters);
  if (pointed_) {
    const QPointF cross = shown.at(pointed_->x, pointed_->y);
    Shapes lines;
    lines.add(Look::thin_line, Fit::grid,
              segment({cross.x(), shown.frame.top()}, {cross.x(), shown.frame.bottom()}));
    lines.add(Look::thin_line, Fit::grid,
              segment({shown.frame.left(), cross.y()}, {shown.frame.right(), cross.y()}));
    painter.setClipRect(shown.frame);
    lines.paint(painter, palette());
    painter.setClipping(false);
  }
  if (hasFocus()) {
    QStyleOptionFocusRect around;
    around.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &around, &painter, this);
  }
}

}  // namespace eterlab::ui
