#pragma once

#include "ui/schematic.h"

// What the drawings of vertical antennas have in common.

namespace eterlab::antennas {

/// What they all tell below themselves.
void mark_not_to_scale(ui::Schematic& drawing, ui::At place);

/// Three radials from where they meet, seen obliquely.
void draw_radials(ui::Schematic& drawing, ui::At hub);

/// A whip's base at a terminal, fed by a cable from the left; its screen goes to the terminal of
/// the radials, which are drawn below.
void draw_fed_base(ui::Schematic& drawing, ui::At base);
/// The place of a label below those radials.
ui::At below_radials(ui::At base);

}  // namespace eterlab::antennas
