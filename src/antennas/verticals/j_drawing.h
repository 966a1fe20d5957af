#pragma once

#include "ui/schematic.h"

// What the drawings of J antennas have in common: a whole conductor to the left, the other one to
// the right of it, lengths told outside of both.

namespace eterlab::antennas::j_drawing {

inline constexpr int columns = 47;
inline constexpr int rows = 41;
inline constexpr double left = 17;
inline constexpr double right = 31;
inline constexpr double middle = (left + right) / 2;
inline constexpr double top = 1.5;
inline constexpr double bottom = 32;  // of conductors that are joined there
inline constexpr double tap = 26;     // of the cable

/// The whole height of the left conductor, up to its lower end.
void tell_height(ui::Schematic& drawing, ui::Label& height, double lower_end);
/// A part of the right conductor, with lines from both of its ends.
void tell_right(ui::Schematic& drawing, ui::Label& length, double upper_end, double lower_end);
/// The distance of the conductors.
void tell_spacing(ui::Schematic& drawing, ui::Label& spacing, double at);
/// The cable, in front of where the conductors are joined, clamped to both, and how far above.
void draw_tap(ui::Schematic& drawing, ui::Label& distance);

}  // namespace eterlab::antennas::j_drawing
