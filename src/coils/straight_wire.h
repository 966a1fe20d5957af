#pragma once

#include "common/arithmetic.h"

namespace eterlab::coils {

/// Self-inductance of a straight round wire, in microhenry; negative where the wire is shorter than
/// about half its diameter. Diameter and length must be of one sign, else the logarithm fails.
/// Source: Rosa's formula, with lengths in centimetre: L = 0.002 l (ln(2 l / r) - 3/4).
Real straight_wire_inductance_uh(Real diameter_mm, Real length_m);

}  // namespace eterlab::coils
