#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::units {

/// @name American wire gauge
/// The gauges 00, 000 and 0000 are -1, -2 and -3. Source: the defining progression of the gauge
/// (ASTM B258), d = 0.127 x 92^((36 - n) / 39).
/// @{

/// Diameter, in millimetre, of a solid round wire of a gauge, whole or not. Gauges below some -6000
/// overflow.
Real awg_diameter_mm(Real gauge);

/// The whole gauge nearest to a wire's diameter, above zero, on the scale of the gauges; nothing
/// where that is not from -3 to 50.
std::optional<int> nearest_awg(Real diameter_mm);

/// @}

}  // namespace eterlab::units
