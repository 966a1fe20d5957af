#include "ui/symbols.h"

#include <QPolygonF>
#include <QTransform>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace eterlab::ui {

namespace {

QPainterPath lines(std::initializer_list<std::pair<QPointF, QPointF>> ends) {
  QPainterPath path;
  for (const auto& [from, to] : ends) {
    path.moveTo(from);
    path.lineTo(to);
  }
  return path;
}

QPainterPath polygon(const QPolygonF& corners) {
  QPainterPath path;
  path.addPolygon(corners);
  path.closeSubpath();
  return path;
}

QPainterPath circle(QPointF centre, double radius) {
  QPainterPath path;
  path.addEllipse(centre, radius, radius);
  return path;
}

QPainterPath rectangle(double half_width, double half_height) {
  QPainterPath path;
  path.addRect(-half_width, -half_height, 2 * half_width, 2 * half_height);
  return path;
}

/// An arrow head, its tip at a place.
QPainterPath head(QPointF tip, QPointF direction, double length) {
  const QPointF back = direction / std::hypot(direction.x(), direction.y()) * -length;
  const QPointF across{back.y() * 0.42, -back.x() * 0.42};
  return polygon({tip, tip + back + across, tip + back - across});
}

constexpr double hump = 1.2;  // of an inductor

/// Half-circles from the origin along the x axis.
QPainterPath humps(int count, double width) {
  QPainterPath path{{0, 0}};
  for (int i = 0; i < count; ++i) {
    path.arcTo(i * width, -width / 2, width, width, 180, -180);
  }
  return path;
}

// The letters beside capacitors and inductors stand in one row.
constexpr double coil_and_capacitor_room = 1.2;

}  // namespace

QRectF Symbol::room() const {
  QRectF room = straight.boundingRect() | curved.boundingRect() | solid.boundingRect();
  if (half_room > 0) {
    room.setTop(-half_room);
    room.setBottom(half_room);
  }
  return room;
}

namespace symbols {

Symbol resistor() {
  constexpr double half = 1.8;
  return {.straight = rectangle(half, 0.65), .half = half};
}

Symbol capacitor() {
  constexpr double gap = 0.35;
  constexpr double plate = 1.3;
  return {.straight = lines({{{-gap, -plate}, {-gap, plate}}, {{gap, -plate}, {gap, plate}}}),
          .half = gap,
          .half_room = coil_and_capacitor_room};
}

Symbol electrolytic() {
  constexpr double half = 0.65;
  constexpr double plate = 1.3;
  constexpr double thickness = 0.47;
  // The sign of the positive plate stands beside it.
  QPainterPath outline = lines({{{-1.9, -1.1}, {-1.1, -1.1}}, {{-1.5, -1.5}, {-1.5, -0.7}}});
  outline.addRect(-half, -plate, thickness, 2 * plate);
  for (const double x : {0.36, 0.45, 0.54}) {  // side by side, the solid negative plate
    outline.addPath(lines({{{x, -plate}, {x, plate}}}));
  }
  return {.straight = outline, .half = half};
}

Symbol inductor() {
  constexpr int count = 4;
  constexpr double half = count * hump / 2;
  return {.curved = humps(count, hump).translated(-half, 0),
          .half = half,
          .half_room = coil_and_capacitor_room};
}

Symbol choke() {
  Symbol symbol = inductor();
  symbol.straight = lines({{{-symbol.half, -1}, {symbol.half, -1}}});
  return symbol;
}

Symbol diode() {
  constexpr double half = 0.9;
  QPainterPath outline = polygon({{-half, -1}, {half, 0}, {-half, 1}});
  outline.addPath(lines({{{half, -1}, {half, 1}}}));
  return {.straight = outline, .half = half};
}

Symbol zener() {
  Symbol symbol = diode();
  symbol.straight.addPath(lines({{{symbol.half, -1}, {0.45, -1}}}));  // the bent end of the bar
  return symbol;
}

Symbol led() {
  Symbol symbol = diode();
  for (const double x : {-0.3, 0.6}) {  // two rays of light
    const QPointF tip{x + 0.8, -2.7};
    symbol.curved.addPath(lines({{{x, -1.5}, {x + 0.4, -2.1}}}));
    symbol.solid.addPath(polygon({tip, tip + QPointF{-0.65, 0.3}, tip + QPointF{-0.05, 0.75}}));
  }
  return symbol;
}

Symbol crystal() {
  constexpr double plate = 0.9;
  Symbol symbol{.straight = rectangle(0.4, 1.3), .half = 0.9};
  for (const double x : {-symbol.half, symbol.half}) {
    symbol.straight.addPath(lines({{{x, -plate}, {x, plate}}}));
  }
  return symbol;
}

Symbol battery() {
  constexpr double gap = 0.35;
  constexpr double positive = 1.4;
  constexpr double negative = 0.7;
  return {.straight = lines({{{-gap, -positive}, {-gap, positive}},
                             {{gap, -negative}, {gap, negative}},
                             {{-1.9, -1.1}, {-1.1, -1.1}},
                             {{-1.5, -1.5}, {-1.5, -0.7}}}),
          .half = gap};
}

Symbol open_contact() {
  constexpr double half = 1.2;
  return {.curved = lines({{{-half, 0}, {half - 0.1, -1.2}}}), .half = half};
}

Symbol loudspeaker() {
  constexpr double half = 1.1;
  constexpr double depth = 0.5;
  Symbol symbol{.straight = rectangle(half, depth), .half = half};
  symbol.straight.addPath(lines({{{-half, -depth}, {-2.1, -1.9}},
                                 {{-2.1, -1.9}, {2.1, -1.9}},
                                 {{2.1, -1.9}, {half, -depth}}}));
  return symbol;
}

Symbol meter() {
  constexpr double radius = 1.7;
  return {.curved = circle({}, radius), .half = radius};
}

Symbol varied() {
  const QPointF tip{1.5, -1.7};
  const QPointF end_of_shaft = tip * 0.8;  // inside the head
  return {.curved = lines({{-tip, end_of_shaft}}), .solid = head(tip, tip, 0.9)};
}

Symbol trimmed() {
  const QPointF tip{1.3, -1.5};
  const QPointF bar{0.5, 0.43};
  return {.curved = lines({{-tip, tip}, {tip - bar, tip + bar}})};
}

Symbol sine() {
  QPainterPath wave{{-0.95, 0}};
  wave.cubicTo(-0.6, -1.1, -0.35, -1.1, 0, 0);
  wave.cubicTo(0.35, 1.1, 0.6, 1.1, 0.95, 0);
  return {.curved = wave};
}

Symbol npn() {
  Symbol symbol{.straight = lines({{{-3, 0}, {-0.7, 0}}, {{-0.7, -1.3}, {-0.7, 1.3}}})};
  symbol.curved = circle({}, 2.2);
  for (const double side : {-1.0, 1.0}) {  // collector, emitter
    symbol.curved.addPath(lines({{{-0.7, side * 0.6}, {1, side * 1.6}}}));
    symbol.straight.addPath(lines({{{1, side * 1.6}, {1, side * 3}}}));
  }
  symbol.solid = head({0.85, 1.51}, {1.7, 1}, 1);
  return symbol;
}

Symbol pnp() {
  Symbol symbol = npn();
  symbol.solid = head({-0.45, 0.75}, {-1.7, -1}, 1);
  return symbol;
}

namespace {

/// Three dashes of a grid at a height.
QPainterPath valve_grid(double y) {
  return lines({{{-1.5, y}, {-0.9, y}}, {{-0.3, y}, {0.3, y}}, {{0.9, y}, {1.5, y}}});
}

/// Anode at one height, cathode at the opposite one, with wires of so much beyond the middle.
QPainterPath anode_and_cathode(double height, double end) {
  return lines({{{0, -end}, {0, -height}},
                {{-1.2, -height}, {1.2, -height}},
                {{-1, height}, {1, height}},
                {{-1, height}, {-1, end}}});
}

}  // namespace

Symbol triode() {
  Symbol symbol{.straight = anode_and_cathode(1.3, 4), .curved = circle({}, 2.6)};
  symbol.straight.addPath(valve_grid(0));
  symbol.straight.addPath(lines({{{-4, 0}, {-1.5, 0}}}));
  return symbol;
}

Symbol pentode() {
  Symbol symbol{.straight = anode_and_cathode(2, 5), .curved = circle({}, 3.2)};
  for (const double y : {-1.0, 0.0, 1.0}) {
    const double side = y == 0 ? 1 : -1;
    symbol.straight.addPath(valve_grid(y));
    symbol.straight.addPath(lines({{{side * 1.5, y}, {side * 4, y}}}));
  }
  return symbol;
}

Symbol operational_amplifier() {
  constexpr double back = -2.5;
  Symbol symbol{.straight = lines({{{-4, -1.5}, {back, -1.5}},
                                   {{-4, 1.5}, {back, 1.5}},
                                   {{3, 0}, {4, 0}},
                                   {{-2, -1.5}, {-1.2, -1.5}},
                                   {{-2, 1.5}, {-1.2, 1.5}},
                                   {{-1.6, 1.1}, {-1.6, 1.9}}})};
  symbol.straight.addPath(polygon({{back, -3}, {3, 0}, {back, 3}}));
  return symbol;
}

Symbol transformer(const Transformer& transformer) {
  constexpr double half = 3;
  constexpr double axis = 1.5;
  constexpr int turns = 4;
  Symbol symbol;
  // Each winding's humps point towards the other one.
  const QPainterPath winding =
      QTransform{}.rotate(90).map(humps(turns, 2 * half / turns).translated(-half, 0));
  symbol.curved = winding.translated(-axis, 0);
  symbol.curved.addPath(QTransform::fromScale(-1, 1).map(winding).translated(axis, 0));
  if (transformer.core == Transformer::Core::iron) {
    for (const double x : {-0.25, 0.25}) {
      symbol.straight.addPath(lines({{{x, -half}, {x, half}}}));
    }
  }
  if (transformer.dots != Transformer::Dots::none) {
    const bool in_phase = transformer.dots == Transformer::Dots::in_phase;
    symbol.solid = circle({-axis - 0.8, -half + 0.6}, 0.3);
    symbol.solid.addPath(circle({axis + 0.8, in_phase ? -half + 0.6 : half - 0.6}, 0.3));
  }
  return symbol;
}

Symbol antenna() {
  return {.straight = lines({{{0, 0}, {0, -4}}}),
          .curved = lines({{{-1.5, -4}, {0, -2}}, {{0, -2}, {1.5, -4}}})};
}

}  // namespace symbols

}  // namespace eterlab::ui
