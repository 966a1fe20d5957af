#include "antennas/antenna_wire.h"

namespace eterlab::antennas {

Real diameter_wavelengths(const AntennaWire& wire) { return wire.diameter_m / wire.wavelength_m; }

Real shortening_by_cover(const AntennaWire& wire) {
  if (!wire.is_insulated) {
    return 1;
  }
  constexpr double permittivity = 3;
  constexpr double radius_ratio = 1.9;
  const Real added = (1 - 1 / permittivity) * ln(radius_ratio);
  const Real own = -ln(diameter_wavelengths(wire)) - 2.04;
  return 1 / sqrt(1 + added / own);
}

}  // namespace eterlab::antennas
