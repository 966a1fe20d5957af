#include "coils/self_resonance.h"

#include "circuits/resonance.h"
#include "coils/solenoid.h"
#include "coils/winding_inductance.h"

namespace eterlab::coils {

namespace {

SelfResonance with_frequency(Real inductance_h, Real capacitance_f) {
  return {inductance_h, capacitance_f,
          circuits::tuned_circuit(inductance_h, capacitance_f).frequency_hz};
}

}  // namespace

bool has_known_self_capacitance(Real diameter_m, Real length_m) {
  constexpr double shortest_diameters = 0.1;
  constexpr double longest_diameters = 50;
  constexpr double noise = 1e-12;
  const Real diameters = length_m / diameter_m;
  return diameters >= shortest_diameters * (1 - noise) &&
         diameters <= longest_diameters * (1 + noise);
}

SelfResonance coil_self_resonance(Real diameter_m, Real length_m, Real turns) {
  return with_frequency(current_sheet_inductance_h(diameter_m / 2, length_m, turns),
                        solenoid_self_capacitance_f(diameter_m, length_m));
}

std::optional<SelfResonance> measured_self_resonance(const ResonanceMeasured& first,
                                                     const ResonanceMeasured& second) {
  constexpr double least_f = 0.001e-12;
  const Real f1 = first.frequency_hz;
  const Real f2 = second.frequency_hz;
  const Real capacitance_f =
      (second.capacitance_f * f2 * f2 - first.capacitance_f * f1 * f1) / ((f1 - f2) * (f1 + f2));
  if (capacitance_f < least_f) {
    return {};
  }
  const Real inductance_h =
      circuits::tuned_by_inductance(f1, first.capacitance_f + capacitance_f).inductance_h;
  return with_frequency(inductance_h, capacitance_f);
}

}  // namespace eterlab::coils
