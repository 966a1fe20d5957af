#include "coils/resonant_line.h"

#include "circuits/impedance.h"
#include "circuits/resonance.h"
#include "common/physics.h"
#include "lines/geometry/geometry_factor.h"

namespace eterlab::coils {

Real line_impedance_ohm(LineConductor conductor, Real size_m, Real distance_m) {
  switch (conductor) {
    case LineConductor::rod_over_plane:
      return free_space_impedance_ohm / (2 * pi) *
             lines::wire_over_ground_factor(size_m, distance_m);
    case LineConductor::strip_over_plane:
      return free_space_impedance_ohm / (2 * pi) *
             lines::strip_over_ground_factor(size_m, distance_m);
    case LineConductor::wire_fork:
      break;
  }
  return free_space_impedance_ohm / pi * lines::wire_pair_factor(size_m, distance_m);
}

ResonantLine resonant_line(Real frequency_hz, Real capacitance_f, Real impedance_ohm) {
  const Real wavelength_m = speed_of_light_m_per_s / frequency_hz;
  const Real reactance_ohm = circuits::capacitive_reactance_ohm(frequency_hz, capacitance_f);
  return {wavelength_m / (2 * pi) * atan(reactance_ohm / impedance_ohm),
          circuits::tuned_by_inductance(frequency_hz, capacitance_f).inductance_h,
          wavelength_m / 4};
}

}  // namespace eterlab::coils
