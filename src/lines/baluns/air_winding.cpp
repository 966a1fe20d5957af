#include "lines/baluns/air_winding.h"

#include "circuits/resonance.h"
#include "coils/solenoid.h"
#include "common/physics.h"

namespace eterlab::lines {

Real AirWinding::mean_diameter_m() const { return (former_diameter_mm + wire_diameter_mm) / 1000; }

Real AirWinding::pitch_m() const { return wires * wire_diameter_mm / 1000; }

Real AirWinding::length_m() const { return turns * pitch_m(); }

Real AirWinding::wire_length_m() const { return turns * hypot(pi * mean_diameter_m(), pitch_m()); }

Real AirWinding::inductance_h() const {
  return coils::handbook_solenoid_inductance_h(mean_diameter_m() / 2, length_m(), turns);
}

Real AirWinding::self_resonance_hz() const {
  const Real capacitance_f = coils::solenoid_self_capacitance_f(mean_diameter_m(), length_m());
  return circuits::tuned_circuit(inductance_h(), capacitance_f).frequency_hz;
}

std::optional<AirWinding> least_winding(AirWinding winding, Real inductance_h, int most_turns) {
  constexpr double noise = 1e-9;
  for (winding.turns = 2; winding.turns <= most_turns; ++winding.turns) {
    if (winding.inductance_h() >= inductance_h * (1 - noise)) {
      return winding;
    }
  }
  return std::nullopt;
}

}  // namespace eterlab::lines
