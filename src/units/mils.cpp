#include "units/mils.h"

namespace eterlab::units {

Real mils_from_mm(Real length_mm) { return length_mm * 39.3700787; }

MetricLength metric_from_mils(Real length_mils) {
  const Real length_mm = length_mils * 0.0254;
  return {length_mm, length_mm * 1000};
}

}  // namespace eterlab::units
