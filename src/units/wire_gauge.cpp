#include "units/wire_gauge.h"

namespace eterlab::units {

Real awg_diameter_mm(Real gauge) { return 0.127 * pow(92, (36 - gauge) / 39); }

}  // namespace eterlab::units
