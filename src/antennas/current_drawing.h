#pragma once

#include <vector>

#include "common/arithmetic.h"
#include "ui/schematic.h"

namespace eterlab::antennas {

/// The current along a conductor from its feed point to its tip, a length in wavelengths: places
/// beside the line between two places of a drawing, so far from it where the current is highest.
/// To the left as seen from the feed point, on the other side where it flows against that.
std::vector<ui::At> current_curve(ui::At feed, ui::At tip, Real length_wavelengths,
                                  double farthest);

}  // namespace eterlab::antennas
