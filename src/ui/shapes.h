#pragma once

#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <array>
#include <cstdint>
#include <vector>

class QPainter;
class QPalette;

// What drawings and plots are made of, and how it meets the pixels of a screen or of paper.

namespace eterlab::ui {

/// A place on the grid of a drawing: steps from the left and from the top.
struct At {
  double x = 0;
  double y = 0;
};

/// A grid step is half a line of the user's font, in pixels.
double grid_step();

/// Fixed letters and the room they take, in pixels.
struct Letters {
  QRectF room;
  QString text;
};

/// Shapes on the grid, in the colour of text.
class Shapes {
 public:
  /// How a shape is painted; later ones are laid over earlier ones.
  enum class Look : std::uint8_t {
    tint,        ///< filled, in a light tint of the ink: metal in a section
    faint_line,  ///< a hair in the tint: the grid of a plot
    thin_line,
    thin_curve,  ///< between curves among the lines
    dashed_line,
    line,
    rod,
    curve,  ///< of a plot; the next three are told apart from it by their dashes
    dashed_curve,
    dotted_curve,
    dash_dotted_curve,
    arrow_head,  ///< filled
    solid,       ///< filled
    hollow,      ///< a line around the colour of the window, over the ends of wires
  };
  /// How a shape meets the pixels of a screen.
  enum class Fit : std::uint8_t {
    grid,    ///< straight lines between places of the grid: all corners on whole pixels
    symbol,  ///< straight lines around a place: all on whole pixels, as symmetric as they are
    exact,   ///< its place on whole pixels, the shape itself true to its form
  };

  /// Adds a path, seen from a place. Each line is best a path of its own: to paint many as one
  /// takes the toolkit far longer.
  void add(Look look, Fit fit, const QPainterPath& path, QPointF place = {});
  void clear();
  /// From the corner of the widget or picture that is painted on.
  void paint(QPainter& painter, const QPalette& palette) const;

 private:
  struct Shape {
    QPointF place;
    QPainterPath path;
    Fit fit;
  };
  static constexpr std::size_t looks = static_cast<std::size_t>(Look::hollow) + 1;

  std::array<std::vector<Shape>, looks> shapes_;
};

/// Writes letters in the colour of text.
void paint(QPainter& painter, const QPalette& palette, const std::vector<Letters>& letters);

}  // namespace eterlab::ui
