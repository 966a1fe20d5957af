#include "coils/straight_wire.h"

namespace eterlab::coils {

Real straight_wire_inductance_uh(Real diameter_mm, Real length_m) {
  const Real radius_cm = diameter_mm / 10 / 2;
  const Real length_cm = length_m * 100;
  return 0.002 * length_cm * (ln(2 * length_cm / radius_cm) - 0.75);
}

}  // namespace eterlab::coils
