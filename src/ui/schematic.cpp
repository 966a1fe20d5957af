#include "ui/schematic.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/desktop.h"
#include "ui/label.h"
#include "ui/laid_text.h"
#include "ui/text.h"

namespace eterlab::ui {

namespace {

using At = Schematic::At;
using Side = Schematic::Side;

using Look = Shapes::Look;
using Fit = Shapes::Fit;

QPointF point(At at) { return {at.x, at.y}; }
At at(QPointF point) { return {point.x(), point.y()}; }

QPainterPath segment(QPointF from, QPointF to) {
  QPainterPath path{from};
  path.lineTo(to);
  return path;
}

QPainterPath polyline(const std::vector<At>& corners) {
  QPainterPath path{point(corners.front())};
  for (const At& corner : corners) {
    path.lineTo(point(corner));
  }
  return path;
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

}  // namespace

Schematic::Schematic(Parent parent, std::string_view name, int columns, int rows, Tooltip tip)
    : QWidget{parent.widget()}, columns_{columns}, rows_{rows} {
  set_up(*this, name, tip);
  setFixedSize(sizeHint());
}

Schematic::~Schematic() = default;

QSize Schematic::sizeHint() const {
  return {static_cast<int>(std::ceil(columns_ * grid_step())),
          static_cast<int>(std::ceil(rows_ * grid_step()))};
}

Schematic& Schematic::wire(const std::vector<At>& corners) {
  line(Look::line, corners);
  return *this;
}

Schematic& Schematic::dashed(const std::vector<At>& corners) {
  line(Look::dashed_line, corners);
  return *this;
}

Schematic& Schematic::rod(const std::vector<At>& corners) {
  line(Look::rod, corners);
  return *this;
}

void Schematic::line(Look look, const std::vector<At>& corners) {
  shapes_.add(look, Fit::grid, polyline(corners));
}

Schematic& Schematic::dimension(At from, At to) {
  arrow(from, to);
  arrow_head(to, from);
  return *this;
}

Schematic& Schematic::extension(At from, At to) {
  line(Look::thin_line, {from, to});
  return *this;
}

Schematic& Schematic::arrow(At from, At to) {
  extension(from, to);
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
  shapes_.add(Look::arrow_head, Fit::exact, head, point(to));
}

Schematic& Schematic::circle(At centre, double radius) {
  shapes_.add(Look::line, Fit::exact, ring(radius), point(centre));
  return *this;
}

Schematic& Schematic::arc(At centre, double radius, double from_degrees, double to_degrees) {
  const QRectF whole{-radius, -radius, 2 * radius, 2 * radius};
  QPainterPath path;
  path.arcMoveTo(whole, from_degrees);
  path.arcTo(whole, from_degrees, to_degrees - from_degrees);
  shapes_.add(Look::line, Fit::exact, path, point(centre));
  return *this;
}

Schematic& Schematic::curve(const std::vector<At>& places) {
  shapes_.add(Look::line, Fit::exact, polyline(places));
  return *this;
}

Schematic& Schematic::box(At top_left, At bottom_right) {
  const QRectF room{point(top_left), point(bottom_right)};
  QPainterPath path;
  path.addRect(room);
  shapes_.add(Look::line, Fit::grid, path);
  last_part_ = {room, at(room.center()), room.height() > room.width()};
  return *this;
}

Schematic& Schematic::shaded(const std::vector<At>& corners) {
  QPainterPath path = polyline(corners);
  path.closeSubpath();
  shapes_.add(Look::tint, Fit::grid, path);
  shapes_.add(Look::line, Fit::grid, path);
  return *this;
}

Schematic& Schematic::shaded_box(At top_left, At bottom_right) {
  QPainterPath path;
  path.addRect(QRectF{point(top_left), point(bottom_right)});
  shapes_.add(Look::tint, Fit::grid, path);
  return box(top_left, bottom_right);
}

Schematic& Schematic::shaded_circle(At centre, double radius) {
  shapes_.add(Look::tint, Fit::exact, ring(radius), point(centre));
  return circle(centre, radius);
}

Schematic& Schematic::shaded_ring(At centre, double inner_radius, double outer_radius) {
  QPainterPath area = ring(outer_radius);
  area.addPath(ring(inner_radius));  // a hole, by the odd-even rule
  shapes_.add(Look::tint, Fit::exact, area, point(centre));
  return circle(centre, inner_radius).circle(centre, outer_radius);
}

Schematic& Schematic::shaded_frame(At top_left, At bottom_right, double thickness) {
  const QRectF room{point(top_left), point(bottom_right)};
  const QRectF outside = room.adjusted(-thickness, -thickness, thickness, thickness);
  QPainterPath wall;
  wall.addRect(outside);
  wall.addRect(room);  // a hole, by the odd-even rule
  shapes_.add(Look::tint, Fit::grid, wall);
  return box(at(outside.topLeft()), at(outside.bottomRight())).box(top_left, bottom_right);
}

Schematic& Schematic::part(At from, At to, const Symbol& symbol) {
  const QPointF middle = (point(from) + point(to)) / 2;
  const QTransform turned = towards(from, to);
  add(at(middle), symbol, turned);
  lead(from, middle, turned.map(QPointF{-symbol.half, 0}));
  lead(to, middle, turned.map(QPointF{symbol.half, 0}));
  last_part_.is_vertical = std::abs(to.y - from.y) > std::abs(to.x - from.x);
  return *this;
}

Schematic& Schematic::part(At from, At to, const Symbol& symbol, const Symbol& upright) {
  part(from, to, symbol);
  const Part part = last_part_;
  add(part.middle, upright);
  last_part_ = {part.room | last_part_.room, part.middle, part.is_vertical};
  return *this;
}

Schematic& Schematic::add(At place, const Symbol& symbol, const QTransform& turned) {
  const auto add_path = [&](Look look, Fit fit, const QPainterPath& path) {
    if (!path.isEmpty()) {
      shapes_.add(look, fit, turned.map(path), point(place));
    }
  };
  add_path(Look::line, Fit::symbol, symbol.straight);
  add_path(Look::line, Fit::exact, symbol.curved);
  add_path(Look::solid, Fit::exact, symbol.solid);
  QRectF room = turned.mapRect(symbol.room()).translated(point(place));
  const bool stands_upright = std::abs(turned.m12()) > std::abs(turned.m11());
  if (symbol.half_room > 0 && stands_upright) {
    // Letters above and below bring some room of their own, those beside it do not.
    constexpr double clearance = 0.35;
    const double outline = symbol.straight.boundingRect().bottom();
    const double further = std::max(outline + clearance - symbol.half_room, 0.0);
    room.adjust(-further, 0, further, 0);
  }
  last_part_ = {room, place, room.height() > room.width()};
  return *this;
}

Schematic& Schematic::add(At place, const Symbol& symbol, Flip flip) {
  const At scale = beside({}, 1, 1, flip);
  const QTransform turned = QTransform::fromScale(scale.x, scale.y);
  // Wires go straight on from its lines, so these are fitted to the pixels as wires are.
  shapes_.add(Look::line, Fit::grid,
              (turned * QTransform::fromTranslate(place.x, place.y)).map(symbol.straight));
  Symbol rest = symbol;
  rest.straight = {};
  add(place, rest, turned);
  const QRectF room = turned.mapRect(symbol.room()).translated(point(place));
  last_part_ = {room, place, room.height() > room.width()};
  return *this;
}

void Schematic::lead(At from, QPointF symbol, QPointF edge) {
  // Of two halves, one stands on the pixels as wires do, the other as the symbol does.
  const QPointF half_way = (point(from) - symbol + edge) / 2;
  shapes_.add(Look::line, Fit::grid, segment(point(from), symbol + half_way));
  shapes_.add(Look::line, Fit::symbol, segment(half_way, edge), symbol);
}

Schematic& Schematic::resistor(At from, At to) { return part(from, to, symbols::resistor()); }

Schematic& Schematic::variable_resistor(At from, At to) {
  return part(from, to, symbols::resistor(), symbols::varied());
}

Schematic& Schematic::capacitor(At from, At to) { return part(from, to, symbols::capacitor()); }

Schematic& Schematic::variable_capacitor(At from, At to) {
  return part(from, to, symbols::capacitor(), symbols::varied());
}

Schematic& Schematic::trimmer_capacitor(At from, At to) {
  return part(from, to, symbols::capacitor(), symbols::trimmed());
}

Schematic& Schematic::electrolytic(At from, At to) {
  return part(from, to, symbols::electrolytic());
}

Schematic& Schematic::inductor(At from, At to) { return part(from, to, symbols::inductor()); }

Schematic& Schematic::variable_inductor(At from, At to) {
  return part(from, to, symbols::inductor(), symbols::varied());
}

Schematic& Schematic::choke(At from, At to) { return part(from, to, symbols::choke()); }

Schematic& Schematic::diode(At from, At to) { return part(from, to, symbols::diode()); }

Schematic& Schematic::zener(At from, At to) { return part(from, to, symbols::zener()); }

Schematic& Schematic::led(At from, At to) { return part(from, to, symbols::led()); }

Schematic& Schematic::crystal(At from, At to) { return part(from, to, symbols::crystal()); }

Schematic& Schematic::battery(At from, At to) { return part(from, to, symbols::battery()); }

Schematic& Schematic::open_contact(At from, At to) {
  return part(from, to, symbols::open_contact());
}

Schematic& Schematic::loudspeaker(At from, At to) { return part(from, to, symbols::loudspeaker()); }

Schematic& Schematic::potentiometer(At from, At to, At slider) {
  resistor(from, to);
  const Part body = last_part_;
  // Seen from the middle of the resistor, along it and across.
  const QPointF middle = (point(from) + point(to)) / 2;
  const QTransform turned = towards(from, to);
  const QPointF seen = turned.inverted().map(point(slider) - middle);
  const double half_thickness = symbols::resistor().room().bottom();
  const QPointF corner = middle + turned.map(QPointF{0, seen.y()});
  const QPointF tip =
      middle + turned.map(QPointF{0, seen.y() < 0 ? -half_thickness : half_thickness});
  const QPointF shaft = tip + (corner - tip) * 0.5;
  wire({slider, at(corner), at(shaft)}).arrow(at(shaft), at(tip));
  last_part_ = body;
  return *this;
}

Schematic& Schematic::ac_source(At from, At to) {
  return part(from, to, symbols::meter(), symbols::sine());
}

Schematic& Schematic::meter(At from, At to, std::string_view quantity) {
  const QPointF middle = (point(from) + point(to)) / 2;
  return mark(at(middle), quantity).part(from, to, symbols::meter());
}

Schematic& Schematic::coaxial_cable(const CoaxialCable& cable) {
  constexpr double half_thickness = CoaxialCable::half_thickness;
  constexpr double half_mouth = 0.4;
  const QTransform turned = towards(cable.from, cable.to);
  const QPointF bare = turned.map(QPointF{CoaxialCable::bare, 0});
  const QPointF across = turned.map(QPointF{0, half_thickness});
  const QPointF near_end = point(cable.from) + bare;
  const QPointF far_end = point(cable.to) - bare;
  for (const double side : {-1.0, 1.0}) {
    wire({at(near_end + across * side), at(far_end + across * side)});
  }
  QPainterPath mouth;
  mouth.addEllipse({}, half_mouth, half_thickness);
  for (const QPointF& end : {near_end, far_end}) {
    shapes_.add(Look::line, Fit::exact, turned.map(mouth), end);
  }
  wire({cable.from, at(near_end)}).wire({at(far_end), cable.to});
  const QRectF room = QRectF{near_end - across, far_end + across}.normalized();
  last_part_ = {room, at(room.center()), room.height() > room.width()};
  return *this;
}

Schematic& Schematic::npn(const Transistor& transistor) {
  return add(transistor.place, symbols::npn(), transistor.flip);
}

Schematic& Schematic::pnp(const Transistor& transistor) {
  return add(transistor.place, symbols::pnp(), transistor.flip);
}

Schematic& Schematic::triode(const Triode& triode) {
  return add(triode.place, symbols::triode(), triode.flip);
}

Schematic& Schematic::pentode(const Pentode& pentode) {
  return add(pentode.place, symbols::pentode(), pentode.flip);
}

Schematic& Schematic::operational_amplifier(const OperationalAmplifier& amplifier) {
  return add(amplifier.place, symbols::operational_amplifier(), amplifier.flip);
}

Schematic& Schematic::transformer(const Transformer& transformer) {
  return add(transformer.place, symbols::transformer(transformer));
}

Schematic& Schematic::antenna(At foot) { return add(foot, symbols::antenna(), QTransform{}); }

Schematic& Schematic::ground(At place) {
  constexpr double stem = 0.8;
  constexpr double gap = 0.55;
  const QPointF symbol = point(place) + QPointF{0, stem + gap};
  QPainterPath bars;
  for (const int bar : {-1, 0, 1}) {
    const double half = 0.8 - bar * 0.4;
    bars.addPath(segment({-half, bar * gap}, {half, bar * gap}));
  }
  shapes_.add(Look::line, Fit::symbol, bars, symbol);
  lead(place, symbol, {0, -gap});
  return *this;
}

Schematic& Schematic::terminal(At place) {
  constexpr double radius = 0.4;
  shapes_.add(Look::hollow, Fit::exact, ring(radius), point(place));
  last_part_ = {ring(radius).boundingRect().translated(point(place)), place, false};
  return *this;
}

Schematic& Schematic::junction(At place) {
  constexpr double radius = 0.4;
  shapes_.add(Look::solid, Fit::exact, ring(radius), point(place));
  return *this;
}

Schematic& Schematic::winding_dot(At place) {
  constexpr double radius = 0.3;
  shapes_.add(Look::solid, Fit::exact, ring(radius), point(place));
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
    shapes_.add(Look::line, Fit::exact, turned.map(front), point(from));
    shapes_.add(Look::thin_curve, Fit::exact, turned.map(back), point(from));
  }
  return *this;
}

Schematic& Schematic::spiral(At centre, double inner_radius, double outer_radius, int turns) {
  constexpr int arcs_in_turn = 8;
  constexpr double arc_angle = 6.283185307179586 / arcs_in_turn;
  const int arcs = turns * arcs_in_turn;
  const double arc_rise = (outer_radius - inner_radius) / arcs;
  QPainterPath turn;
  QPointF handle;  // of the curve that ends or begins at a place, along the spiral
  for (int arc = 0; arc <= arcs; ++arc) {
    const double radius = inner_radius + arc_rise * arc;
    const QPointF outwards{std::cos(arc_angle * arc), std::sin(arc_angle * arc)};
    const QPointF onwards{-outwards.y(), outwards.x()};
    const QPointF place = outwards * radius;
    const QPointF third = (outwards * arc_rise + onwards * (radius * arc_angle)) / 3;
    if (arc > 0) {
      turn.cubicTo(handle, place - third, place);
    }
    if (arc % arcs_in_turn == 0) {
      if (arc > 0) {
        shapes_.add(Look::line, Fit::exact, turn, point(centre));
      }
      turn = QPainterPath{place};
    }
    handle = place + third;
  }
  return *this;
}

At Schematic::Part::edge(Side side) const {
  switch (side) {
    case Side::above:
      return {middle.x, room.top()};
    case Side::below:
      return {middle.x, room.bottom()};
    case Side::left:
      return {room.left(), middle.y};
    case Side::right:
      return {room.right(), middle.y};
    case Side::centre:
      break;
  }
  return middle;
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
  const double gap = grid_step() / 2;
  QRectF room{{}, letters};
  room.moveCenter(point(place) * grid_step());
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
  shapes_.clear();
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

std::vector<Letters> Schematic::letters() const {
  std::vector<Letters> letters;
  for (const Mark& mark : marks_) {
    const LaidText text{mark.text, font()};
    letters.push_back({room_of(text.exact_size(), mark.place, mark.side), mark.text});
  }
  return letters;
}

void Schematic::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter{this};
  painter.setRenderHint(QPainter::Antialiasing);
  shapes_.paint(painter, palette());
  painter.setPen(palette().color(QPalette::WindowText));
  for (const Mark& mark : marks_) {
    const LaidText text{mark.text, font()};
    text.paint(painter, room_of(text.exact_size(), mark.place, mark.side), Qt::AlignCenter);
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
