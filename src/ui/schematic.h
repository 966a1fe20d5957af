#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "ui/control.h"
#include "ui/shapes.h"
#include "ui/symbols.h"

namespace eterlab::ui {

class Label;

/// A drawing of lines and standard symbols (IEC 60617) on a grid, with the labels of the window at
/// their places on it. A grid step is half a line of the user's font, so the drawing grows with the
/// text. Lines take the colour of text.
class Schematic final : public QWidget {
 public:
  using At = ui::At;
  /// Where letters stand, seen from their place.
  enum class Side : std::uint8_t { centre, above, below, left, right };

  Schematic(Parent parent, std::string_view name, int columns, int rows, Tooltip tip = {});
  ~Schematic() override;

  // Lines
  Schematic& wire(const std::vector<At>& corners);
  Schematic& dashed(const std::vector<At>& corners);
  /// A conductor of an antenna: a rod or tube.
  Schematic& rod(const std::vector<At>& corners);
  /// Thin, with an arrow head at both ends: tells what a length is measured between.
  Schematic& dimension(At from, At to);
  /// Thin: from the end of what is measured to a dimension.
  Schematic& extension(At from, At to);
  /// Thin, with an arrow head at its end.
  Schematic& arrow(At from, At to);
  Schematic& circle(At centre, double radius);
  /// Counterclockwise between two angles in degrees, 0 to the right.
  Schematic& arc(At centre, double radius, double from_degrees, double to_degrees);
  /// Through places so near to each other that the lines between them look smooth.
  Schematic& curve(const std::vector<At>& places);
  Schematic& box(At top_left, At bottom_right);

  // Metal in a section: outlined, in a light tint
  Schematic& shaded(const std::vector<At>& corners);
  Schematic& shaded_box(At top_left, At bottom_right);
  Schematic& shaded_circle(At centre, double radius);
  Schematic& shaded_ring(At centre, double inner_radius, double outer_radius);
  /// A wall of a thickness around a room.
  Schematic& shaded_frame(At top_left, At bottom_right, double thickness);

  // Two-terminal parts, in the middle of their wires
  Schematic& resistor(At from, At to);
  Schematic& variable_resistor(At from, At to);
  /// The wire of the slider meets the middle of the resistor at a right angle.
  Schematic& potentiometer(At from, At to, At slider);
  Schematic& capacitor(At from, At to);
  Schematic& variable_capacitor(At from, At to);
  Schematic& trimmer_capacitor(At from, At to);
  /// The plate towards `from` is the positive one.
  Schematic& electrolytic(At from, At to);
  Schematic& inductor(At from, At to);
  Schematic& variable_inductor(At from, At to);
  /// An inductor on an iron core.
  Schematic& choke(At from, At to);
  /// Current flows from `from` to `to`.
  Schematic& diode(At from, At to);
  Schematic& zener(At from, At to);
  Schematic& led(At from, At to);
  Schematic& crystal(At from, At to);
  /// A source of direct voltage; the pole towards `from` is the positive one.
  Schematic& battery(At from, At to);
  /// A generator, or another source of alternating voltage.
  Schematic& ac_source(At from, At to);
  /// An instrument, with what it measures in it: "V", "mA".
  Schematic& meter(At from, At to, std::string_view quantity);
  /// A switch, open; it turns about the end towards `from`.
  Schematic& open_contact(At from, At to);
  /// Opens upwards in a line to the right, to the right in one down.
  Schematic& loudspeaker(At from, At to);
  Schematic& coaxial_cable(const CoaxialCable& cable);

  // Symbols with more terminals, which tell the places of those:
  //   constexpr ui::Transistor q1{{20, 10}};
  //   drawing.npn(q1).resistor({21, 1}, q1.collector).wire({{15, 10}, q1.base});
  Schematic& npn(const Transistor& transistor);
  Schematic& pnp(const Transistor& transistor);
  Schematic& triode(const Triode& triode);
  Schematic& pentode(const Pentode& pentode);
  Schematic& operational_amplifier(const OperationalAmplifier& amplifier);
  Schematic& transformer(const Transformer& transformer);

  // Marks
  Schematic& ground(At place);
  Schematic& antenna(At foot);
  Schematic& terminal(At place);     ///< a small circle: input or output
  Schematic& junction(At place);     ///< a dot where wires meet
  Schematic& winding_dot(At place);  ///< where a winding begins
  /// Short fixed letters, such as "+".
  Schematic& mark(At place, std::string_view text, Side side = Side::centre);
  /// A coil seen from the side: turns around a form between two points of its axis.
  Schematic& winding(At from, At to, double diameter, int turns);
  /// A flat coil seen from above: whole turns that begin and end to the right of the centre.
  Schematic& spiral(At centre, double inner_radius, double outer_radius, int turns);

  // Letters beside the part, symbol, box or terminal drawn last

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

  [[nodiscard]] const Shapes& shapes() const { return shapes_; }
  /// The marks and names.
  [[nodiscard]] std::vector<Letters> letters() const;

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
    At middle;
    bool is_vertical = false;

    [[nodiscard]] Side usual_side() const { return is_vertical ? Side::right : Side::above; }
    /// Beside its middle, at an edge.
    [[nodiscard]] At edge(Side side) const;
  };

  /// Draws a symbol in the middle of its two wires.
  Schematic& part(At from, At to, const Symbol& symbol);
  Schematic& part(At from, At to, const Symbol& symbol, const Symbol& upright);
  Schematic& add(At place, const Symbol& symbol, const QTransform& turned);
  Schematic& add(At place, const Symbol& symbol, Flip flip = Flip::none);
  /// The wire to a symbol with its middle at a place, and an edge seen from there.
  void lead(At from, QPointF symbol, QPointF edge);
  void line(Shapes::Look look, const std::vector<At>& corners);
  void arrow_head(At from, At to);
  void place_labels();
  void place(const Placed& placed);
  /// Where letters of a size stand, in pixels.
  [[nodiscard]] static QRectF room_of(QSizeF letters, At place, Side side);

  int columns_;
  int rows_;
  Shapes shapes_;
  std::vector<Mark> marks_;
  std::vector<Placed> labels_;
  Part last_part_;
  Handler click_handler_;
};

}  // namespace eterlab::ui
