#pragma once

#include "ui/schematic.h"

// What the drawings of dipoles have in common.

namespace eterlab::antennas {

/// Between the middle of a dipole and the beginning of an arm.
constexpr double half_feed_gap = 1;
/// Between the middle of a trap and its ends.
constexpr double half_trap = 3;
/// Of a wire of the cable from its middle.
constexpr double half_feeder = 0.4;

/// The cable down from the gap between the arms.
void draw_feeder(ui::Schematic& drawing, ui::At middle, double bottom);

/// A coil and a capacitor side by side in a wire to the right.
void draw_trap(ui::Schematic& drawing, ui::At middle);

/// What a length is measured between: two lines from the wire to a dimension above or below it,
/// with the length on the side away from the wire.
void draw_length(ui::Schematic& drawing, ui::At from, ui::At to, double dimension_y,
                 ui::Label& length);

}  // namespace eterlab::antennas
