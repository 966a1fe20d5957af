#include "antennas/verticals/gamma_ground_plane.h"

#include "common/physics.h"

namespace eterlab::antennas {

GammaGroundPlane gamma_ground_plane(const Tube& tube) {
  constexpr ThicknessFit rod{0.0613, -0.00214, -0.000243};
  constexpr ThicknessFit foot_reactance_ohm{150.3, -8.70, 1.271};
  constexpr double cable_impedance_ohm = 50;
  constexpr double cable_velocity_factor = 0.66;
  const Real wavelength_m = tube.wavelength_m();
  const Real reactance_ohm = foot_reactance_ohm(tube);
  GammaGroundPlane antenna;
  antenna.radiator_m = resonant_half_wave_m(tube) / 2;
  antenna.radial_m = wavelength_m / 4;
  antenna.rod_m = rod(tube) * wavelength_m;
  antenna.spacing_m = (0.005 + 2 * tube.thickness()) * wavelength_m;
  antenna.rod_diameter_mm = tube.diameter_mm / 3;
  antenna.capacitance_pf = 1e6 / (2 * pi * tube.frequency_mhz * reactance_ohm);
  antenna.cable_capacitor_m =
      wavelength_m * cable_velocity_factor * atan(cable_impedance_ohm / reactance_ohm) / (2 * pi);
  return antenna;
}

}  // namespace eterlab::antennas
