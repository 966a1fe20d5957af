#pragma once

#include <QPainterPath>
#include <QWidget>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace eterlab::ui {

class Label;

/// A drawing of lines and standard symbols (IEC 60617) on a grid, with the labels of the window at
/// their places on it. A grid step is half a line of the user's font, so the drawing grows with the
/// text. Lines take the colour of text.
class Schematic final : public QWidget {
 public:
  /// A place on the grid: steps from the left and from the top.
  struct At {
    double x = 0;
    double y = 0;
  };
  /// Where letters stand, seen from their place.
  enum class Side : std::uint8_t { centre, above, below, left, right };

  Schematic(Parent parent, std::string_view name, int columns, int rows, Tooltip tip = {});

  // Lines
  Schematic& wire(std::initializer_list<At> corners);
  Schematic& dashed(std::initializer_list<At> corners);
  /// A conductor of an antenna: a rod or tube.
  Schematic& rod(std::initializer_list<At> corners);
  /// Thin, with an arrow head at both ends: tells what a length is measured between.
  Schematic& dimension(At from, At to);
  /// Thin, with an arrow head at its end.
  Schematic& arrow(At from, At to);
  Schematic& circle(At centre, double radius);
  Schematic& box(At top_left, At bottom_right);

  // Two-terminal parts, in the middle of their wires
  Schematic& resistor(At from, At to);
  Schematic& capacitor(At from, At to);
  /// The plate towards `from` is the positive one.
  Schematic& electrolytic(At from, At to);
  Schematic& inductor(At from, At to);
  /// Current flows from `from` to `to`.
  Schematic& diode(At from, At to);
  Schematic& zener(At from, At to);
  Schematic& led(At from, At to);

  // Marks
  Schematic& ground(At place);
  Schematic& terminal(At place);  ///< a small circle: input or output
  Schematic& junction(At place);  ///< a dot where wires meet
  /// Short fixed letters, such as "+".
  Schematic& mark(At place, std::string_view text, Side side = Side::centre);
  /// A coil seen from the side: turns around a form between two points of its axis.
  Schematic& winding(At from, At to, double diameter, int turns);
  /// A flat coil seen from above: whole turns that begin and end to the right of the centre.
  Schematic& spiral(At centre, double inner_radius, double outer_radius, int turns);

  // Letters beside the part drawn last

  /// Its fixed name and its value: name above and value below a horizontal part, name to the left
  /// and value to the right of a vertical one. Where the value shall stand on another side, the
  /// name faces it.
  Schematic& named(std::string_view name, Label& value, std::optional<Side> value_side = {});
  /// A value, or a name, alone: above a horizontal part, to the right of a vertical one.
  Schematic& named(Label& value, std::optional<Side> side = {});
  Schematic& named(std::string_view name, std::optional<Side> side = {});
  /// Both on one side, the name over the value.
  Schematic& named_beside(std::string_view name, Label& value, Side side);

  /// Puts a label beside a place, where it stays whatever its text becomes. The label must have
  /// been made with this drawing as its parent.
  Schematic& label(Label& label, At place, Side side = Side::centre);

  /// Empties the drawing, to draw it anew in the same handler. Labels that are not placed again are
  /// hidden.
  void clear();

  /// The whole drawing becomes something to click, or to press Enter or the space bar on.
  void on_click(Handler handler);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  struct Placed {
    Label* label;
    At place;
    Side side;
    bool is_placed;  ///< since the last clear
  };
  struct Mark {
    At place;
    QString text;
    Side side;
  };
  struct Part {
    QRectF room;
    bool is_vertical = false;

    [[nodiscard]] Side usual_side() const { return is_vertical ? Side::right : Side::above; }
    /// The middle of an edge.
    [[nodiscard]] At edge(Side side) const;
  };

  /// How a shape meets the pixels of a screen.
  enum class Fit : std::uint8_t {
    grid,    ///< straight lines between places of the grid: all corners on whole pixels
    symbol,  ///< straight lines around a place: all on whole pixels, as symmetric as they are
    exact,   ///< its place on whole pixels, the shape itself true to its form
  };
  struct Shape {
    QPointF place;  ///< that the path is seen from
    QPainterPath path;
    Fit fit = Fit::grid;
  };
  // Each line is a shape of its own: to paint many as one takes the toolkit far longer.
  using Shapes = std::vector<Shape>;

  /// Draws a symbol that is laid out along the x axis, centred on the origin, and its two wires.
  /// `half` is half the length of the symbol.
  void part(At from, At to, double half, const QPainterPath& outline, Fit fit = Fit::symbol);
  /// The wire to a symbol with its middle at a place, and an edge seen from there.
  void lead(At from, QPointF symbol, QPointF edge);
  void arrow_head(At from, At to);
  void paint_shapes(QPainter& painter) const;
  void place_labels();
  void place(const Placed& placed);
  /// Where letters of a size stand, in pixels.
  [[nodiscard]] static QRectF room_of(QSizeF letters, At place, Side side);
  [[nodiscard]] static double step();

  int columns_;
  int rows_;
  Shapes lines_;
  Shapes thin_lines_;
  Shapes thin_curves_;  ///< between curves among the lines
  Shapes dashed_lines_;
  Shapes rods_;
  Shapes heads_;   ///< of arrows
  Shapes solids_;  ///< other filled shapes
  Shapes terminals_;
  std::vector<Mark> marks_;
  std::vector<Placed> labels_;
  Part last_part_;
  Handler click_handler_;
};

}  // namespace eterlab::ui
