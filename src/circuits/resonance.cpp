#include "circuits/resonance.h"

#include "common/physics.h"

namespace eterlab::circuits {

namespace {

TunedCircuit tuned(Real frequency_hz, Real inductance_h, Real capacitance_f) {
  return {frequency_hz, inductance_h, capacitance_f, sqrt(inductance_h / capacitance_f),
          speed_of_light_m_per_s / frequency_hz};
}

/// The capacitance, in farad, that an inductance resonates with, in henry; or the other way round.
Real partner(Real frequency_hz, Real part) {
  const Real angular_frequency = 2 * pi * frequency_hz;
  return 1 / (angular_frequency * angular_frequency * part);
}

}  // namespace

TunedCircuit tuned_by_inductance(Real frequency_hz, Real capacitance_f) {
  return tuned(frequency_hz, partner(frequency_hz, capacitance_f), capacitance_f);
}

TunedCircuit tuned_by_capacitance(Real frequency_hz, Real inductance_h) {
  return tuned(frequency_hz, inductance_h, partner(frequency_hz, inductance_h));
}

TunedCircuit tuned_circuit(Real inductance_h, Real capacitance_f) {
  return tuned(1 / (2 * pi * sqrt(inductance_h * capacitance_f)), inductance_h, capacitance_f);
}

Selectivity series_selectivity(Real inductance_h, Real capacitance_f, Real resistance_ohm) {
  const TunedCircuit tank = tuned_circuit(inductance_h, capacitance_f);
  const Real quality_factor = tank.reactance_ohm / resistance_ohm;
  return {tank.frequency_hz, quality_factor, tank.frequency_hz / quality_factor};
}

Selectivity parallel_selectivity(Real inductance_h, Real capacitance_f, Real resistance_ohm) {
  const TunedCircuit tank = tuned_circuit(inductance_h, capacitance_f);
  const Real quality_factor = resistance_ohm / tank.reactance_ohm;
  return {tank.frequency_hz, quality_factor, tank.frequency_hz / quality_factor};
}

std::optional<PhaseResonance> lossy_coil_resonance(Real coil_resistance_ohm, Real inductance_h,
                                                   Real capacitance_f) {
  const TunedCircuit lossless = tuned_circuit(inductance_h, capacitance_f);
  const Real damping = coil_resistance_ohm / lossless.reactance_ohm;
  // w^2 L C; as a product it cancels nothing. Less is a rounded zero.
  const Real detuning = (1 - damping) * (1 + damping);
  if (detuning < 1e-12) {
    return {};
  }
  return PhaseResonance{lossless.frequency_hz * sqrt(detuning),
                        inductance_h / (capacitance_f * coil_resistance_ohm)};
}

Real rc_cutoff_hz(Real resistance_ohm, Real capacitance_f) {
  return 1 / (2 * pi * resistance_ohm * capacitance_f);
}

Real rl_cutoff_hz(Real resistance_ohm, Real inductance_h) {
  return resistance_ohm / (2 * pi * inductance_h);
}

}  // namespace eterlab::circuits
