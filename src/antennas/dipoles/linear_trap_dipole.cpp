#include "antennas/dipoles/linear_trap_dipole.h"

#include "antennas/straight_wire.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

/// Both wires of the line as one.
Conductor as_one_wire(const LadderLine& line, Real frequency_mhz) {
  return {frequency_mhz, sqrt(2 * line.wire_mm * line.spacing_mm)};
}

/// The bridge and the open end count as a spacing.
Real bridge_m(const LadderLine& line, Real high_mhz) {
  return line.velocity_factor * Conductor{high_mhz, line.wire_mm}.wavelength_m() / 4 -
         line.spacing_mm / 1000;
}

Real mean_impedance_ohm(Real arm_m, Real diameter_mm) {
  return 60 * (ln(4 * arm_m / (diameter_mm / 1000)) - 1);
}

}  // namespace

bool suits_linear_trap(const LadderLine& line, Real high_mhz) {
  const Conductor conductor = as_one_wire(line, high_mhz);
  // In this order: very thick conductors have no resonance to be found.
  return line.spacing_mm / 1000 <= conductor.wavelength_m() / 80 &&
         bridge_m(line, high_mhz) <= half_wave_arm_m(conductor);
}

LinearTrapDipole linear_trap_dipole(const LadderLine& line, Real high_mhz, Real low_mhz,
                                    Real outer_diameter_mm) {
  const Conductor whole_line = as_one_wire(line, high_mhz);
  const Conductor outer_wire{low_mhz, outer_diameter_mm};
  const Real line_m = half_wave_arm_m(whole_line);
  const Real half_wave_m = half_wave_arm_m(outer_wire);
  const Real wavelength_m = outer_wire.wavelength_m();
  const Real wavenumber_per_m = 2 * pi / wavelength_m;
  // By symmetry the current of the outer wire is half in push-pull mode on the line.
  const Real trap_reactance_ohm = line.impedance_ohm / 4.0 * tan(pi / 2 * low_mhz / high_mhz);
  const Real inner_reactance_ohm =
      mean_impedance_ohm(half_wave_m, whole_line.diameter_mm) * tan(wavenumber_per_m * line_m);
  const Real end_effect_m = wavelength_m / 4 - half_wave_m;
  const Real outer_m = atan(mean_impedance_ohm(half_wave_m, outer_diameter_mm) /
                            (trap_reactance_ohm + inner_reactance_ohm)) /
                           wavenumber_per_m -
                       end_effect_m;
  return {line_m, bridge_m(line, high_mhz), outer_m, trap_reactance_ohm};
}

}  // namespace eterlab::antennas
