#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::lines {

/// The diameter of the round rod or wire that is sold, 0.5 to 60 mm, nearest to the wanted one, the
/// thinner of two equally near. None for a wanted one below 0.45 mm or above 65 mm.
std::optional<Real> nearest_rod_mm(Real diameter_mm);

}  // namespace eterlab::lines
