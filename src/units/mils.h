#pragma once

#include "common/arithmetic.h"

namespace eterlab::units {

/// @name Mils
/// A mil is a thousandth of an inch, 0.0254 mm. Any length is valid.
/// @{

/// With the number of mils to a millimetre rounded to 39.3700787.
Real mils_from_mm(Real length_mm);

/// A length in both of the units that wires and films are told in.
struct MetricLength {
  Real mm;           ///< millimetres
  Real micrometres;  ///< thousandths of a millimetre
};
/// With 0.0254 mm to a mil.
MetricLength metric_from_mils(Real length_mils);

/// @}

}  // namespace eterlab::units
