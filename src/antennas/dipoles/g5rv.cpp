#include "antennas/dipoles/g5rv.h"

#include "antennas/dipoles/wire_antennas.h"
#include "antennas/straight_wire.h"
#include "common/physics.h"

namespace eterlab::antennas {

Complex G5rv::centre_impedance_ohm(Real frequency_mhz) const {
  return dipole_impedance_ohm(antenna_m / 2, {frequency_mhz, diameter_mm});
}

Complex G5rv::line_impedance_ohm(Complex centre_ohm, Real frequency_mhz) const {
  const Real wavelength_m = Conductor{frequency_mhz, diameter_mm}.wavelength_m();
  const Real angle = 2 * pi * line_m / (line.velocity_factor * wavelength_m);
  const Complex along{cos(angle)};
  const Complex across{0, sin(angle)};
  return line.impedance_ohm * (centre_ohm * along + line.impedance_ohm * across) /
         (line.impedance_ohm * along + centre_ohm * across);
}

G5rv g5rv(Real design_mhz, Real diameter_mm, const LadderLine& line) {
  constexpr double half_waves = 3;
  const Real wavelength_m = Conductor{design_mhz, diameter_mm}.wavelength_m();
  return {harmonic_wire_m(half_waves, design_mhz), line.velocity_factor * wavelength_m / 2,
          diameter_mm, line};
}

}  // namespace eterlab::antennas
