#include "antennas/verticals/tube.h"

namespace eterlab::antennas {

Real ThicknessFit::operator()(const Tube& tube) const {
  const Real x = -ln(tube.thickness());
  return p0 + x * (p1 + x * p2);
}

Real resonant_half_wave_m(const Tube& tube) {
  return 0.5 * (1 - 1 / (-4.7 * ln(tube.thickness()) - 9.7)) * tube.wavelength_m();
}

}  // namespace eterlab::antennas
