#include "ui/schematic.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/desktop.h"
#include "ui/label.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

using At = Schematic::At;
using Side = Schematic::Side;

// Widths of lines, in grid steps.
constexpr double line_width = 0.19;
constexpr double rod_width = 0.5;
constexpr double thin_line_share = 0.63;  // of the width of the other lines

QPointF point(At at) { return {at.x, at.y}; }

QPainterPath polyline(std::initializer_list<At> corners) {
  QPainterPath path{point(*corners.begin())};
  for (const At& corner : corners) {
    path.lineTo(point(corner));
  }
  return path;
}

void add_line(QPainterPath& path, QPointF from, QPointF to) {
  path.moveTo(from);
  path.lineTo(to);
}

/// From the direction of the x axis to that from one point to another.
QTransform towards(At from, At to) {
  constexpr double degrees_in_radian = 57.29577951308232;
  const QPointF span = point(to) - point(from);
  return QTransform{}.rotate(std::atan2(span.y(), span.x()) * degrees_in_radian);
}

Side opposite(Side side) {
  switch (side) {
    case Side::above:
      return Side::below;
    case Side::below:
      return Side::above;
    case Side::left:
      return Side::right;
    case Side::right:
      return Side::left;
    case Side::centre:
      break;
  }
  return side;
}

QPainterPath ring(double radius) {
  QPainterPath path;
  path.addEllipse({}, radius, radius);
  return path;
}

/// A diode's triangle and the start of its bar, pointing along the x axis.
QPainterPath diode_outline() {
  QPainterPath outline;
  outline.addPolygon(QPolygonF{{{-0.9, -1}, {0.9, 0}, {-0.9, 1}, {-0.9, -1}}});
  add_line(outline, {0.9, -1}, {0.9, 1});
  return outline;
}

constexpr double diode_half = 0.9;

/// Of a screen. Straight lines cover whole ones, so that they are even and sharp. What is recorded
/// for a printer has no pixels yet.
class Pixels {
 public:
  explicit Pixels(bool exist) : exist_{exist} {}

  [[nodiscard]] double nearest(double x) const { return exist_ ? std::round(x) : x; }
  [[nodiscard]] QPointF nearest(QPointF at) const { return {nearest(at.x()), nearest(at.y())}; }
  /// Of a line, no thinner than it should be, but for a slight excess.
  [[nodiscard]] double width(double exact) const { return exist_ ? std::ceil(exact - 0.1) : exact; }
  /// The nearest middle of a line: of a pixel where the line is an odd number of them wide.
  [[nodiscard]] QPointF middle(QPointF at, double line) const {
    const double odd_half = exist_ ? std::fmod(line, 2) / 2 : 0;
    const QPointF half{odd_half, odd_half};
    return nearest(at - half) + half;
  }

 private:
  bool exist_;
};

}  // namespace

Schematic::Schematic(Parent parent, std::string_view name, int columns, int rows, Tooltip tip)
    : QWidget{parent.widget()}, columns_{columns}, rows_{rows} {
  set_up(*this, name, tip);
  setFixedSize(sizeHint());
}

double Schematic::step() { return theme::spacing() / 2.0; }

QSize Schematic::sizeHint() const {
  return {static_cast<int>(std::ceil(columns_ * step())),
          static_cast<int>(std::ceil(rows_ * step()))};
}

Schematic& Schematic::wire(std::initializer_list<At> corners) {
  lines_.push_back({{}, polyline(corners)});
  return *this;
}

Schematic& Schematic::dashed(std::initializer_list<At> corners) {
  dashed_lines_.push_back({{}, polyline(corners)});
  return *this;
}

Schematic& Schematic::rod(std::initializer_list<At> corners) {
  rods_.push_back({{}, polyline(corners)});
  return *this;
}

Schematic& Schematic::dimension(At from, At to) {
  arrow(from, to);
  arrow_head(to, from);
  return *this;
}

Schematic& Schematic::arrow(At from, At to) {
  thin_lines_.push_back({{}, polyline({from, to})});
  arrow_head(from, to);
  return *this;
}

void Schematic::arrow_head(At from, At to) {
  constexpr double length = 0.9;
  constexpr double half_width = 0.3;
  const QPointF span = point(to) - point(from);
  const double distance = std::hypot(span.x(), span.y());
  if (distance == 0) {
    return;
  }
  const QPointF back = span / distance * -length;
  const QPointF across{back.y() / length * half_width, -back.x() / length * half_width};
  QPainterPath head;
  head.addPolygon(QPolygonF{{{}, back + across, back - across, {}}});
  heads_.push_back({point(to), head, Fit::exact});
}

Schematic& Schematic::circle(At centre, double radius) {
  lines_.push_back({point(centre), ring(radius), Fit::exact});
  return *this;
}

Schematic& Schematic::box(At top_left, At bottom_right) {
  QPainterPath path;
  path.addRect(QRectF{point(top_left), point(bottom_right)});
  lines_.push_back({{}, path});
  return *this;
}

void Schematic::part(At from, At to, double half, const QPainterPath& outline, Fit fit) {
  const QPointF symbol = (point(from) + point(to)) / 2;
  const QTransform turned = towards(from, to);
  lines_.push_back({symbol, turned.map(outline), fit});
  lead(from, symbol, turned.map(QPointF{-half, 0}));
  lead(to, symbol, turned.map(QPointF{half, 0}));
  last_part_ = {turned.map(outline).boundingRect().translated(symbol),
                std::abs(to.y - from.y) > std::abs(to.x - from.x)};
}

void Schematic::lead(At from, QPointF symbol, QPointF edge) {
  // Of two halves, one stands on the pixels as wires do, the other as the symbol does.
  const QPointF half_way = (point(from) - symbol + edge) / 2;
  QPainterPath wire_half;
  add_line(wire_half, point(from), symbol + half_way);
  lines_.push_back({{}, wire_half});
  QPainterPath symbol_half;
  add_line(symbol_half, half_way, edge);
  lines_.push_back({symbol, symbol_half, Fit::symbol});
}

Schematic& Schematic::resistor(At from, At to) {
  constexpr double half = 1.8;
  constexpr double half_height = 0.65;
  QPainterPath outline;
  outline.addRect(-half, -half_height, 2 * half, 2 * half_height);
  part(from, to, half, outline);
  return *this;
}

Schematic& Schematic::capacitor(At from, At to) {
  constexpr double half_gap = 0.35;
  constexpr double half_plate = 1.3;
  QPainterPath outline;
  add_line(outline, {-half_gap, -half_plate}, {-half_gap, half_plate});
  add_line(outline, {half_gap, -half_plate}, {half_gap, half_plate});
  part(from, to, half_gap, outline);
  return *this;
}

Schematic& Schematic::electrolytic(At from, At to) {
  constexpr double half_gap = 0.65;
  constexpr double half_plate = 1.3;
  constexpr double thickness = 0.47;
  QPainterPath outline;
  outline.addRect(-half_gap, -half_plate, thickness, 2 * half_plate);
  // The sign of the positive plate, beside it.
  add_line(outline, {-1.9, -1.1}, {-1.1, -1.1});
  add_line(outline, {-1.5, -1.5}, {-1.5, -0.7});
  for (const double x : {0.36, 0.45, 0.54}) {  // side by side, the solid negative plate
    add_line(outline, {x, -half_plate}, {x, half_plate});
  }
  part(from, to, half_gap, outline);
  return *this;
}

Schematic& Schematic::inductor(At from, At to) {
  constexpr int humps = 4;
  constexpr double hump = 1.2;
  constexpr double half = humps * hump / 2;
  QPainterPath outline{{-half, 0}};
  for (int i = 0; i < humps; ++i) {
    outline.arcTo(-half + i * hump, -hump / 2, hump, hump, 180, -180);
  }
  part(from, to, half, outline, Fit::exact);
  return *this;
}

Schematic& Schematic::diode(At from, At to) {
  part(from, to, diode_half, diode_outline());
  return *this;
}

Schematic& Schematic::zener(At from, At to) {
  QPainterPath outline = diode_outline();
  add_line(outline, {diode_half, -1}, {0.45, -1});  // the bent end of the bar
  part(from, to, diode_half, outline);
  return *this;
}

Schematic& Schematic::led(At from, At to) {
  diode(from, to);
  QPainterPath rays;
  QPainterPath heads;
  for (const double x : {-0.3, 0.6}) {  // two rays of light
    const QPointF tip{x + 0.8, -2.7};
    add_line(rays, {x, -1.5}, {x + 0.4, -2.1});
    heads.addPolygon(QPolygonF{{tip, tip + QPointF{-0.65, 0.3}, tip + QPointF{-0.05, 0.75}, tip}});
  }
  const QPointF symbol = (point(from) + point(to)) / 2;
  const QTransform turned = towards(from, to);
  lines_.push_back({symbol, turned.map(rays), Fit::exact});
  solids_.push_back({symbol, turned.map(heads), Fit::exact});
  last_part_.room |= turned.map(heads).boundingRect().translated(symbol);
  return *this;
}

Schematic& Schematic::ground(At place) {
  constexpr double stem = 0.8;
  constexpr double gap = 0.55;
  const QPointF symbol = point(place) + QPointF{0, stem + gap};
  QPainterPath bars;
  for (const int bar : {-1, 0, 1}) {
    const double half = 0.8 - bar * 0.4;
    add_line(bars, {-half, bar * gap}, {half, bar * gap});
  }
  lines_.push_back({symbol, bars, Fit::symbol});
  lead(place, symbol, {0, -gap});
  return *this;
}

Schematic& Schematic::terminal(At place) {
  constexpr double radius = 0.4;
  terminals_.push_back({point(place), ring(radius), Fit::exact});
  return *this;
}

Schematic& Schematic::junction(At place) {
  constexpr double radius = 0.4;
  solids_.push_back({point(place), ring(radius), Fit::exact});
  return *this;
}

Schematic& Schematic::mark(At place, std::string_view text, Side side) {
  marks_.push_back({place, to_qt(text), side});
  return *this;
}

Schematic& Schematic::winding(At from, At to, double diameter, int turns) {
  const QTransform turned = towards(from, to);
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  const double pitch = length / turns;
  const double radius = diameter / 2;
  for (int turn = 0; turn < turns; ++turn) {
    const double x = turn * pitch;
    QPainterPath front{{x, radius}};
    front.cubicTo(x - pitch * 0.3, radius, x + pitch * 0.2, -radius, x + pitch / 2, -radius);
    QPainterPath back{front.currentPosition()};
    back.cubicTo(x + pitch * 0.8, -radius, x + pitch * 0.9, radius, x + pitch, radius);
    lines_.push_back({point(from), turned.map(front), Fit::exact});
    thin_curves_.push_back({point(from), turned.map(back), Fit::exact});
  }
  return *this;
}

Schematic& Schematic::spiral(At centre, double inner_radius, double outer_radius, int turns) {
  constexpr int arcs_in_turn = 8;
  constexpr double arc_angle = 6.283185307179586 / arcs_in_turn;
  const int arcs = turns * arcs_in_turn;
  const double arc_rise = (outer_radius - inner_radius) / arcs;
  QPointF handle;  // of the curve that ends or begins at a place, along the spiral
  for (int arc = 0; arc <= arcs; ++arc) {
    const double radius = inner_radius + arc_rise * arc;
    const QPointF outwards{std::cos(arc_angle * arc), std::sin(arc_angle * arc)};
    const QPointF onwards{-outwards.y(), outwards.x()};
    const QPointF place = outwards * radius;
    const QPointF third = (outwards * arc_rise + onwards * (radius * arc_angle)) / 3;
    if (arc > 0) {
      lines_.back().path.cubicTo(handle, place - third, place);
    }
    if (arc < arcs && arc % arcs_in_turn == 0) {
      lines_.push_back({point(centre), QPainterPath{place}, Fit::exact});
    }
    handle = place + third;
  }
  return *this;
}

At Schematic::Part::edge(Side side) const {
  const QPointF middle = room.center();
  switch (side) {
    case Side::above:
      return {middle.x(), room.top()};
    case Side::below:
      return {middle.x(), room.bottom()};
    case Side::left:
      return {room.left(), middle.y()};
    case Side::right:
      return {room.right(), middle.y()};
    case Side::centre:
      break;
  }
  return {middle.x(), middle.y()};
}

Schematic& Schematic::named(std::string_view name, Label& value, std::optional<Side> value_side) {
  const Side side = value_side.value_or(last_part_.is_vertical ? Side::right : Side::below);
  return named(name, opposite(side)).named(value, side);
}

Schematic& Schematic::named(Label& value, std::optional<Side> side) {
  const Side chosen = side.value_or(last_part_.usual_side());
  return label(value, last_part_.edge(chosen), chosen);
}

Schematic& Schematic::named(std::string_view name, std::optional<Side> side) {
  const Side chosen = side.value_or(last_part_.usual_side());
  return mark(last_part_.edge(chosen), name, chosen);
}

Schematic& Schematic::named_beside(std::string_view name, Label& value, Side side) {
  constexpr double line = 2;  // in grid steps
  At name_place = last_part_.edge(side);
  At value_place = name_place;
  switch (side) {
    case Side::above:
      name_place.y -= line;
      break;
    case Side::below:
      value_place.y += line;
      break;
    default:
      name_place.y -= line / 2;
      value_place.y += line / 2;
  }
  return mark(name_place, name, side).label(value, value_place, side);
}

Schematic& Schematic::label(Label& label, At place, Side side) {
  Q_ASSERT(label.parentWidget() == this);
  const auto known = std::find_if(labels_.begin(), labels_.end(),
                                  [&](const Placed& placed) { return placed.label == &label; });
  const Placed placed{&label, place, side, true};
  if (known != labels_.end()) {
    *known = placed;
  } else {
    label.set_role(Label::Role::drawing);
    labels_.push_back(placed);
  }
  this->place(placed);
  if (label.testAttribute(Qt::WA_WState_ExplicitShowHide)) {
    label.show();
  }
  return *this;
}

void Schematic::place_labels() {
  for (const Placed& placed : labels_) {
    if (placed.is_placed) {
      place(placed);
    }
  }
}

void Schematic::place(const Placed& placed) {
  placed.label->adjustSize();
  const QPointF corner = room_of(placed.label->size(), placed.place, placed.side).topLeft();
  // A value longer than its place is shown whole, wherever there is room.
  const QPoint furthest{width() - placed.label->width(), height() - placed.label->height()};
  placed.label->move(std::clamp(qRound(corner.x()), 0, std::max(furthest.x(), 0)),
                     std::clamp(qRound(corner.y()), 0, std::max(furthest.y(), 0)));
}

QRectF Schematic::room_of(QSizeF letters, At place, Side side) {
  const double gap = step() / 2;
  QRectF room{{}, letters};
  room.moveCenter(point(place) * step());
  switch (side) {
    case Side::above:
      room.translate(0, -(letters.height() / 2 + gap / 2));
      break;
    case Side::below:
      room.translate(0, letters.height() / 2 + gap / 2);
      break;
    case Side::left:
      room.translate(-(letters.width() / 2 + gap), 0);
      break;
    case Side::right:
      room.translate(letters.width() / 2 + gap, 0);
      break;
    case Side::centre:
      break;
  }
  return room;
}

void Schematic::clear() {
  for (Shapes* shapes : {&lines_, &thin_lines_, &thin_curves_, &dashed_lines_, &rods_, &heads_,
                         &solids_, &terminals_}) {
    shapes->clear();
  }
  marks_.clear();
  for (Placed& placed : labels_) {
    placed.is_placed = false;
  }
  for (QObject* child : children()) {
    if (auto* label = dynamic_cast<Label*>(child); label != nullptr) {
      label->hide();
    }
  }
  update();
}

void Schematic::on_click(Handler handler) {
  click_handler_ = std::move(handler);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
}

bool Schematic::event(QEvent* event) {
  // A label on the drawing has a new text.
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) {
    place_labels();
  }
  return QWidget::event(event);
}

void Schematic::keyPressEvent(QKeyEvent* event) {
  const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                       event->key() == Qt::Key_Enter;
  if (click_handler_ && presses) {
    Desktop::instance().run(click_handler_);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void Schematic::paint_shapes(QPainter& painter) const {
  const Pixels pixels{painter.paintEngine()->type() != QPaintEngine::Picture};
  // All is painted in pixels. Besides, the toolkit cuts curves shorter than a unit into very small
  // pieces: a step is too long for one.
  const QTransform to_pixels = painter.deviceTransform();
  const QPointF corner = pixels.nearest({to_pixels.dx(), to_pixels.dy()});
  const double scale = step() * to_pixels.m11();
  const auto draw = [&](const Shapes& shapes, double width) {
    for (const Shape& shape : shapes) {
      QPainterPath path = QTransform::fromScale(scale, scale).map(shape.path);
      for (int i = 0; shape.fit != Fit::exact && i < path.elementCount(); ++i) {
        const QPointF at = path.elementAt(i);
        const QPointF fitted =
            shape.fit == Fit::grid ? pixels.middle(at, width) : pixels.nearest(at);
        path.setElementPositionAt(i, fitted.x(), fitted.y());
      }
      const QPointF place =
          shape.fit == Fit::grid ? QPointF{} : pixels.middle(shape.place * scale, width);
      path.translate(corner + place);
      painter.drawPath(path);
    }
  };

  const QColor ink = palette().color(foregroundRole());
  const double line = pixels.width(line_width * scale);
  const double thin = pixels.nearest(line * thin_line_share);
  const double rod = pixels.width(rod_width * scale);
  const auto set_pen = [&](double width, Qt::PenCapStyle cap) {
    painter.setPen(QPen{ink, width, Qt::SolidLine, cap, Qt::MiterJoin});
  };
  painter.save();
  painter.setWorldTransform(to_pixels.inverted());
  set_pen(thin, Qt::FlatCap);
  draw(thin_lines_, thin);
  draw(thin_curves_, line);
  QPen dashes{ink, thin, Qt::CustomDashLine, Qt::SquareCap};
  dashes.setDashPattern({3, 3});
  painter.setPen(dashes);
  draw(dashed_lines_, thin);
  set_pen(line, Qt::SquareCap);
  draw(lines_, line);
  set_pen(rod, Qt::FlatCap);
  draw(rods_, rod);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  draw(heads_, thin);
  draw(solids_, line);
  set_pen(line, Qt::FlatCap);
  painter.setBrush(palette().window());  // over the ends of wires
  draw(terminals_, line);
  painter.restore();
}

void Schematic::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter{this};
  painter.setRenderHint(QPainter::Antialiasing);
  paint_shapes(painter);
  painter.setPen(palette().color(foregroundRole()));
  for (const Mark& mark : marks_) {
    const QSizeF letters = QFontMetricsF{font()}.size(Qt::TextSingleLine, mark.text);
    painter.drawText(room_of(letters, mark.place, mark.side), Qt::AlignCenter | Qt::TextDontClip,
                     mark.text);
  }
  if (hasFocus()) {
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
  }
}

void Schematic::mouseReleaseEvent(QMouseEvent* event) {
  if (click_handler_ && event->button() == Qt::LeftButton && rect().contains(event->pos())) {
    Desktop::instance().run(click_handler_);
  }
}

}  // namespace eterlab::ui
