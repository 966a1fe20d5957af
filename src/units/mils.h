#pragma once

#include "common/arithmetic.h"

namespace eterlab::units {

// A mil is a thousandth of an inch, 0.0254 mm. Any length is valid.

/// With the number of mils to a millimetre rounded to 39.3700787.
Real mils_from_mm(Real length_mm);

struct MetricLength {
  Real mm;
  Real micrometres;
};
MetricLength metric_from_mils(Real length_mils);

}  // namespace eterlab::units
