#include "ui/shapes.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPalette>
#include <QTransform>
#include <cmath>

#include "ui/theme.h"

namespace eterlab::ui {

namespace {

// Widths of lines, in grid steps.
constexpr double line_width = 0.19;
constexpr double rod_width = 0.5;
constexpr double hair_width = 0.1;
constexpr double thin_line_share = 0.63;  // of the width of the other lines
constexpr double tint_share = 0.2;        // of ink in the colour of the window

enum class Width : std::uint8_t { none, hair, thin, line, rod };
enum class Fill : std::uint8_t { none, ink, tint, window };

struct Style {
  Width pen;
  Width fit;  ///< of the lines that the places of this shape are fitted to
  Fill fill = Fill::none;
  Qt::PenCapStyle cap = Qt::FlatCap;
  std::vector<double> dashes = {};  ///< in widths of the pen
};

/// In the order of Look.
const std::vector<Style>& styles() {
  static const std::vector<Style> all{
      {Width::none, Width::line, Fill::tint},
      {Width::hair, Width::hair},
      {Width::thin, Width::thin},
      {Width::thin, Width::line},
      {Width::thin, Width::thin, Fill::none, Qt::SquareCap, {3, 3}},
      {Width::line, Width::line, Fill::none, Qt::SquareCap},
      {Width::rod, Width::rod},
      {Width::line, Width::line, Fill::none, Qt::RoundCap},
      {Width::line, Width::line, Fill::none, Qt::FlatCap, {6, 3}},
      {Width::line, Width::line, Fill::none, Qt::FlatCap, {1.5, 2}},
      {Width::line, Width::line, Fill::none, Qt::FlatCap, {7, 2.5, 1.5, 2.5}},
      {Width::none, Width::thin, Fill::ink},
      {Width::none, Width::line, Fill::ink},
      {Width::line, Width::line, Fill::window},
  };
  return all;
}

bool is_curve(Shapes::Look look) {
  return look >= Shapes::Look::curve && look <= Shapes::Look::dash_dotted_curve;
}

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

double grid_step() { return theme::spacing() / 2.0; }

void Shapes::add(Look look, Fit fit, const QPainterPath& path, QPointF place) {
  shapes_[static_cast<std::size_t>(look)].push_back({place, path, fit});
}

void Shapes::clear() {
  for (std::vector<Shape>& shapes : shapes_) {
    shapes.clear();
  }
}

void Shapes::paint(QPainter& painter, const QPalette& palette) const {
  const Pixels pixels{painter.paintEngine()->type() != QPaintEngine::Picture};
  // All is painted in pixels. Besides, the toolkit cuts curves shorter than a unit into very small
  // pieces: a step is too long for one.
  const QTransform to_pixels = painter.deviceTransform();
  const QPointF corner = pixels.nearest({to_pixels.dx(), to_pixels.dy()});
  const double scale = grid_step() * to_pixels.m11();

  const double line = pixels.width(line_width * scale);
  const auto in_pixels = [&](Width width) {
    switch (width) {
      case Width::hair:
        return pixels.nearest(hair_width * scale);
      case Width::thin:
        return pixels.nearest(line * thin_line_share);
      case Width::line:
        return line;
      case Width::rod:
        return pixels.width(rod_width * scale);
      case Width::none:
        break;
    }
    return 0.0;
  };
  const QColor window = palette.color(QPalette::Window);
  const QColor ink = palette.color(QPalette::WindowText);
  const QColor tint = theme::mixed(window, ink, tint_share);
  const auto set_style = [&](Look look) {
    const Style& style = styles()[static_cast<std::size_t>(look)];
    QPen pen{look == Look::faint_line ? tint : ink, in_pixels(style.pen), Qt::SolidLine, style.cap,
             is_curve(look) ? Qt::RoundJoin : Qt::MiterJoin};
    if (!style.dashes.empty()) {
      pen.setDashPattern({style.dashes.begin(), style.dashes.end()});
    }
    painter.setPen(style.pen == Width::none ? QPen{Qt::NoPen} : pen);
    painter.setBrush(style.fill == Fill::ink      ? QBrush{ink}
                     : style.fill == Fill::tint   ? QBrush{tint}
                     : style.fill == Fill::window ? QBrush{window}
                                                  : QBrush{});
    return in_pixels(style.fit);
  };

  painter.save();
  painter.setWorldTransform(to_pixels.inverted());
  for (std::size_t i = 0; i < looks; ++i) {
    if (shapes_[i].empty()) {
      continue;
    }
    const double width = set_style(static_cast<Look>(i));
    for (const Shape& shape : shapes_[i]) {
      QPainterPath path = QTransform::fromScale(scale, scale).map(shape.path);
      for (int k = 0; shape.fit != Fit::exact && k < path.elementCount(); ++k) {
        const QPointF at = path.elementAt(k);
        const QPointF fitted =
            shape.fit == Fit::grid ? pixels.middle(at, width) : pixels.nearest(at);
        path.setElementPositionAt(k, fitted.x(), fitted.y());
      }
      const QPointF place =
          shape.fit == Fit::grid ? QPointF{} : pixels.middle(shape.place * scale, width);
      path.translate(corner + place);
      painter.drawPath(path);
    }
  }
  painter.restore();
}

void paint(QPainter& painter, const QPalette& palette, const std::vector<Letters>& letters) {
  painter.setPen(palette.color(QPalette::WindowText));
  for (const Letters& each : letters) {
    painter.drawText(each.room, Qt::AlignCenter | Qt::TextDontClip, each.text);
  }
}

}  // namespace eterlab::ui
