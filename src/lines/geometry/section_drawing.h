#pragma once

#include "ui/schematic.h"

// Lengths on drawings of cross-sections, between thin extension lines.

namespace eterlab::lines {

/// A length across, at a height: its label above or below the middle.
void measure_width(ui::Schematic& drawing, ui::At left, ui::At right, double height,
                   ui::Label& label, ui::Schematic::Side side);
/// A length up, so far across: its label to the left or right of the middle.
void measure_height(ui::Schematic& drawing, ui::At top, ui::At bottom, double across,
                    ui::Label& label, ui::Schematic::Side side);
/// @{
/// Lengths too short for a line between two arrow heads: the arrows come from outside.
void measure_thin_width(ui::Schematic& drawing, ui::At left, ui::At right, double height,
                        ui::Label& label, ui::Schematic::Side side);
void measure_thin_height(ui::Schematic& drawing, ui::At top, ui::At bottom, double across,
                         ui::Label& label, ui::Schematic::Side side);
/// @}

/// A grounded plane.
void plane(ui::Schematic& drawing, ui::At left, ui::At right);

}  // namespace eterlab::lines
