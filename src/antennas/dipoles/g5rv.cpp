#include "antennas/dipoles/g5rv.h"

#include "antennas/dipoles/wire_antennas.h"
#include "antennas/straight_wire.h"
#include "common/physics.h"
#include "lines/line_section.h"

namespace eterlab::antennas {

Complex G5rv::centre_impedance_ohm(Real frequency_mhz) const {
  return dipole_impedance_ohm(antenna_m / 2, {frequency_mhz, diameter_mm});
}

Complex G5rv::line_impedance_ohm(Complex centre_ohm, Real frequency_mhz) const {
  const Real angle =
      2 * pi * line_m / lines::wavelength_in_line_m(frequency_mhz, line.velocity_factor);
  return lines::LineSection{line.impedance_ohm, angle}.input_impedance_ohm(centre_ohm);
}

G5rv g5rv(Real design_mhz, Real diameter_mm, const LadderLine& line) {
  constexpr double half_waves = 3;
  const Real wavelength_m = Conductor{design_mhz, diameter_mm}.wavelength_m();
  return {harmonic_wire_m(half_waves, design_mhz), line.velocity_factor * wavelength_m / 2,
          diameter_mm, line};
}

}  // namespace eterlab::antennas
