#pragma once

#include <QPainterPath>
#include <cstdint>

#include "ui/shapes.h"

// Symbols of circuit diagrams after IEC 60617, on the grid of drawings: those between two wires as
// outlines along the x axis, centred on the origin; the others by the places of their terminals.

namespace eterlab::ui {

/// A symbol as seen from its middle.
struct Symbol {
  QPainterPath straight{};  ///< lines that stand on the pixels of a screen
  QPainterPath curved{};    ///< lines true to their form
  QPainterPath solid{};     ///< filled
  /// Half its length along the x axis: the wires begin there.
  double half = 0;
  /// Half the room across the axis where letters stand beside it; 0: what the outline takes.
  double half_room = 0;

  /// What the outline takes, seen from the middle.
  [[nodiscard]] QRectF room() const;
};

namespace symbols {

Symbol resistor();
Symbol capacitor();
Symbol electrolytic();
Symbol inductor();
Symbol choke();
Symbol diode();
Symbol zener();
Symbol led();
Symbol crystal();
Symbol battery();
Symbol open_contact();
Symbol loudspeaker();
/// A circle for a sign.
Symbol meter();

// What stands on another symbol, upright whichever way that is turned: the arrow of a quantity to
// be varied, the bar of one to be trimmed, the wave of an alternating voltage.
Symbol varied();
Symbol trimmed();
Symbol sine();

}  // namespace symbols

/// A symbol with more than two terminals may be turned over.
enum class Flip : std::uint8_t { none, sideways, upside_down, both };

constexpr At beside(At place, double right, double down, Flip flip = Flip::none) {
  const bool sideways = flip == Flip::sideways || flip == Flip::both;
  const bool upside_down = flip == Flip::upside_down || flip == Flip::both;
  return {place.x + (sideways ? -right : right), place.y + (upside_down ? -down : down)};
}

/// Where a bipolar transistor and its terminals stand. Base to the left, collector at the top.
struct Transistor {
  At place;
  Flip flip = Flip::none;
  At base = beside(place, -3, 0, flip);
  At collector = beside(place, 1, -3, flip);
  At emitter = beside(place, 1, 3, flip);
};

/// Grid to the left, anode at the top.
struct Triode {
  At place;
  Flip flip = Flip::none;
  At anode = beside(place, 0, -4, flip);
  At grid = beside(place, -4, 0, flip);
  At cathode = beside(place, -1, 4, flip);
};

/// Control and suppressor grid to the left, screen grid to the right, anode at the top.
struct Pentode {
  At place;
  Flip flip = Flip::none;
  At anode = beside(place, 0, -5, flip);
  At suppressor_grid = beside(place, -4, -1, flip);
  At screen_grid = beside(place, 4, 0, flip);
  At control_grid = beside(place, -4, 1, flip);
  At cathode = beside(place, -1, 5, flip);
};

/// Inputs to the left, the inverting one at the top.
struct OperationalAmplifier {
  At place;
  Flip flip = Flip::none;
  At inverting = beside(place, -4, -1.5, flip);
  At non_inverting = beside(place, -4, 1.5, flip);
  At output = beside(place, 4, 0, flip);
  /// Where supply wires would meet the outline.
  At supply_above = beside(place, 0, -1.6);
  At supply_below = beside(place, 0, 1.6);
};

/// Two windings, the primary to the left.
struct Transformer {
  enum class Core : std::uint8_t { air, iron };
  enum class Dots : std::uint8_t { none, in_phase, reversed };

  At place;
  Core core = Core::air;
  Dots dots = Dots::none;
  At primary_top = beside(place, -1.5, -3);
  At primary_tap = beside(place, -1.5, 0);
  At primary_bottom = beside(place, -1.5, 3);
  At secondary_top = beside(place, 1.5, -3);
  At secondary_tap = beside(place, 1.5, 0);
  At secondary_bottom = beside(place, 1.5, 3);
};

/// A stretch of coaxial cable between two places, across or down the drawing, and the places where
/// the ends of its screen are connected: below a cable across, to the right of one down.
struct CoaxialCable {
  At from;
  At to;
  At screen_from = screen(from, to);
  At screen_to = screen(to, from);

  static constexpr double bare = 1;  ///< of the inner conductor, at each end
  static constexpr double half_thickness = 0.8;

  static constexpr At screen(At end, At other) {
    return end.y == other.y ? At{end.x + (other.x > end.x ? bare : -bare), end.y + half_thickness}
                            : At{end.x + half_thickness, end.y + (other.y > end.y ? bare : -bare)};
  }
};

namespace symbols {

Symbol npn();
Symbol pnp();
Symbol triode();
Symbol pentode();
Symbol operational_amplifier();
Symbol transformer(const Transformer& transformer);
Symbol antenna();

}  // namespace symbols

}  // namespace eterlab::ui
