#pragma once

#include "common/arithmetic.h"

namespace eterlab::units {

/// Diameter, in millimetre, of a solid round wire of an American wire gauge, whole or not. The
/// gauges 00, 000 and 0000 are -1, -2 and -3. Gauges below some -6000 overflow. Source: the
/// defining progression of the gauge (ASTM B258), d = 0.127 x 92^((36 - n) / 39).
Real awg_diameter_mm(Real gauge);

}  // namespace eterlab::units
