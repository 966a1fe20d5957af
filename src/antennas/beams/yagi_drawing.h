#pragma once

#include <initializer_list>
#include <span>

#include "antennas/beams/yagi.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

/// How many grid steps a drawing of a Yagi is wide.
constexpr int yagi_columns = 46;

/// Draws a Yagi to scale, seen from above, the reflector uppermost: the name of each element left
/// of it and the spacings, one less, between them.
void draw_yagi(ui::Schematic& drawing, std::span<const YagiElement> elements,
               std::initializer_list<ui::Label*> names, std::initializer_list<ui::Label*> spacings);

}  // namespace eterlab::antennas
