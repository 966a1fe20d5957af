#include "shell/landscape.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <array>

namespace eterlab::shell {

namespace {

// Drawn on a canvas of this size, then stretched to the window.
constexpr double canvas_width = 567;
constexpr double canvas_height = 394;
constexpr QPointF tower_foot{408, 318};
constexpr QPointF tower_top{408, 118};

/// In strips: what is higher the toolkit shares among threads, and to start those takes longer than
/// to paint the whole picture.
void fill(QPainter& painter, const QRectF& area, const QBrush& brush) {
  constexpr int height = 40;
  painter.setRenderHint(QPainter::Antialiasing, false);  // strips meet without a seam
  for (int below = 0; below < area.height(); below += height) {
    painter.fillRect(QRectF{area.left(), area.top() + below, area.width(), height}, brush);
  }
  painter.setRenderHint(QPainter::Antialiasing);
}

void draw_sky(QPainter& painter) {
  QLinearGradient sky{0, 0, 0, canvas_height};
  sky.setColorAt(0.0, QColor{0xc4, 0xdd, 0xf2});
  sky.setColorAt(0.5, QColor{0xf1, 0xf2, 0xec});
  sky.setColorAt(0.85, QColor{0xfb, 0xdf, 0xbd});
  fill(painter, {0, 0, canvas_width, canvas_height}, sky);

  constexpr QPointF sun{150, 268};
  constexpr double radius = 120;
  QRadialGradient glow{sun, radius};
  glow.setColorAt(0.0, QColor{255, 250, 225, 255});
  glow.setColorAt(0.22, QColor{255, 244, 205, 230});
  glow.setColorAt(1.0, QColor{255, 240, 200, 0});
  fill(painter, {sun.x() - radius, sun.y() - radius, 2 * radius, 2 * radius}, glow);
}

/// A ridge through points at equal distances, from these heights down to the canvas's foot.
template <std::size_t count>
void draw_hills(QPainter& painter, const std::array<double, count>& heights, const QColor& colour) {
  const double step = canvas_width / (count - 1);
  QPainterPath ridge{{0, heights[0]}};
  for (std::size_t i = 1; i < count; ++i) {
    const double x = step * static_cast<double>(i);
    ridge.cubicTo(x - step / 2, heights[i - 1], x - step / 2, heights[i], x, heights[i]);
  }
  ridge.lineTo(canvas_width, canvas_height);
  ridge.lineTo(0, canvas_height);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPath(ridge);
}

void draw_waves(QPainter& painter, QPointF source) {
  // Not see-through: the toolkit would share that among threads as well.
  constexpr std::array<QRgb, 4> fading{0xff80a3c2, 0xff92b1cb, 0xffa5bfd4, 0xffb7ccde};
  constexpr double spacing = 27;
  constexpr int arc_start = 150 * 16;  // sixteenths of a degree, towards the title
  constexpr int arc_span = 60 * 16;
  painter.setBrush(Qt::NoBrush);
  double radius = 0;
  for (const QRgb colour : fading) {
    radius += spacing;
    painter.setPen(QPen{QColor{colour}, 1.8});
    painter.drawArc(QRectF{source.x() - radius, source.y() - radius, 2 * radius, 2 * radius},
                    arc_start, arc_span);
  }
}

void draw_tower(QPainter& painter, const QColor& colour) {
  constexpr int bays = 9;
  constexpr double foot_half_width = 11;
  constexpr double top_half_width = 3;
  painter.setPen(QPen{colour, 1.5});
  QPointF left = tower_foot - QPointF{foot_half_width, 0};
  QPointF right = tower_foot + QPointF{foot_half_width, 0};
  for (int bay = 1; bay <= bays; ++bay) {
    const double share = static_cast<double>(bay) / bays;
    const double half = foot_half_width + (top_half_width - foot_half_width) * share;
    const QPointF axis = tower_foot + (tower_top - tower_foot) * share;
    const QPointF next_left = axis - QPointF{half, 0};
    const QPointF next_right = axis + QPointF{half, 0};
    painter.drawLine(left, next_left);
    painter.drawLine(right, next_right);
    painter.drawLine(bay % 2 == 0 ? left : right, bay % 2 == 0 ? next_right : next_left);
    painter.drawLine(next_left, next_right);
    left = next_left;
    right = next_right;
  }
  constexpr double mast = 34;
  painter.drawLine(tower_top, tower_top - QPointF{0, mast});
}

void draw_beam(QPainter& painter, const QColor& colour) {
  // Seen from the side and a little from above: the elements are short slanted lines.
  struct Element {
    double along_boom;
    double half_length;
  };
  constexpr std::array<Element, 5> elements{{{46, 36}, {22, 33}, {-4, 30}, {-32, 28}, {-60, 26}}};
  constexpr double height_on_mast = 24;
  const QPointF hub = tower_top - QPointF{0, height_on_mast};
  painter.setPen(QPen{colour, 2.6});
  painter.drawLine(hub + QPointF{52, 3}, hub - QPointF{66, 4});
  painter.setPen(QPen{colour, 1.9});
  for (const Element& element : elements) {
    const QPointF centre = hub + QPointF{element.along_boom, element.along_boom * 0.06};
    const QPointF tip{element.half_length * 0.42, -element.half_length * 0.62};
    painter.drawLine(centre - tip, centre + tip);
  }
  painter.drawLine(hub - QPointF{0, 22}, hub + QPointF{46, 2.8});
  painter.drawLine(hub - QPointF{0, 22}, hub - QPointF{58, 3.4});
}

}  // namespace

void draw_landscape(QPainter& painter, QSize size) {
  painter.scale(size.width() / canvas_width, size.height() / canvas_height);
  draw_sky(painter);
  draw_hills(painter, std::array{300., 262., 288., 250., 282., 258., 296.}, {0xa9, 0xbf, 0xcd});
  draw_hills(painter, std::array{330., 312., 290., 318., 302., 326., 300.}, {0x7b, 0x9c, 0x9b});
  constexpr QPointF beam_front{342, 92};
  draw_waves(painter, beam_front);
  const QColor iron{0x33, 0x3d, 0x4a};
  draw_tower(painter, iron);
  draw_beam(painter, iron);
  draw_hills(painter, std::array{352., 372., 348., 330., 312., 324., 346.}, {0x4c, 0x70, 0x5f});
}

}  // namespace eterlab::shell
