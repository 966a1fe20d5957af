#pragma once

#include "ui/schematic.h"

// Lengths on drawings, between thin extension lines.

namespace eterlab::ui {

/// A length across, at a height: its label above or below the middle.
void measure_width(Schematic& drawing, At left, At right, double height, Label& label,
                   Schematic::Side side);
/// A length up, so far across: its label to the left or right of the middle.
void measure_height(Schematic& drawing, At top, At bottom, double across, Label& label,
                    Schematic::Side side);
/// @{
/// Lengths too short for a line between two arrow heads: the arrows come from outside.
void measure_thin_width(Schematic& drawing, At left, At right, double height, Label& label,
                        Schematic::Side side);
void measure_thin_height(Schematic& drawing, At top, At bottom, double across, Label& label,
                         Schematic::Side side);
/// @}

}  // namespace eterlab::ui
