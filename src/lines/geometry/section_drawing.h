#pragma once

#include "ui/schematic.h"

namespace eterlab::lines {

/// A grounded plane.
void plane(ui::Schematic& drawing, ui::At left, ui::At right);

}  // namespace eterlab::lines
