#include "antennas/verticals/microvert.h"

#include <algorithm>
#include <numbers>

#include "antennas/wavelength.h"
#include "coils/spaced_coil.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

constexpr double mm_in_m = 1000;
constexpr double cable_impedance_ohm = 50;

Real tube_capacitance_pf(Real length_m, Real diameter_mm) {
  return 1e12 * 2 * pi * vacuum_permittivity_f_per_m * length_m /
         (ln(2 * std::numbers::sqrt2 * mm_in_m * length_m / diameter_mm) - 1);
}

int choke_turns(Real angular_frequency_mhz) {
  constexpr double least_reactance_ohm = 1000;
  constexpr double diameter_mm = 100;
  constexpr double cable_diameter_mm = 5;
  int turns = 1;
  while (angular_frequency_mhz *
             coils::wheeler_sheet_inductance_uh(turns, diameter_mm, cable_diameter_mm) <
         least_reactance_ohm) {
    ++turns;
  }
  return turns;
}

Real input_resistance_ohm(Real coil_reactance_ohm) {
  constexpr double radiation_resistance_ohm = 14.5;
  constexpr double coil_q = 200;
  constexpr double greatest_ohm = 30;
  return std::min<Real>(radiation_resistance_ohm + coil_reactance_ohm / coil_q, greatest_ohm);
}

}  // namespace

Real microvert_tube_m(Real frequency_mhz) { return 4.7 / frequency_mhz; }

Real thinnest_microvert_mm(Real frequency_mhz) {
  return mm_in_m * microvert_tube_m(frequency_mhz) / 150;
}

Real thickest_microvert_mm(Real frequency_mhz) {
  return mm_in_m * microvert_tube_m(frequency_mhz) / 6;
}

Microvert microvert(Real frequency_mhz, Real tube_diameter_mm) {
  const Real w = 2 * pi * frequency_mhz;
  Microvert antenna;
  antenna.tube_capacitance_pf =
      tube_capacitance_pf(microvert_tube_m(frequency_mhz), tube_diameter_mm);
  antenna.inductance_uh = 1e6 / (w * w * antenna.tube_capacitance_pf);
  antenna.counterpoise_m = 0.235 * wavelength_m(frequency_mhz);
  antenna.choke_turns = choke_turns(w);
  antenna.input_resistance_ohm = input_resistance_ohm(w * antenna.inductance_uh);
  antenna.standing_wave_ratio = cable_impedance_ohm / antenna.input_resistance_ohm;
  // A step up by a shunt coil; what the series coil lacks is the series half of the step.
  const Real q = sqrt(antenna.standing_wave_ratio - 1);
  antenna.matched_series_uh = antenna.inductance_uh - q * antenna.input_resistance_ohm / w;
  antenna.matched_shunt_uh = cable_impedance_ohm / (w * q);
  return antenna;
}

}  // namespace eterlab::antennas
