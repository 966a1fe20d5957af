#include "circuits/quality_factor.h"

#include "circuits/impedance.h"

namespace eterlab::circuits {

LossyCoil lossy_coil(Real frequency_hz, Real inductance_h, Real resistance_ohm) {
  const Real reactance_ohm = inductive_reactance_ohm(frequency_hz, inductance_h);
  const Real quality_factor = reactance_ohm / resistance_ohm;
  return {reactance_ohm, quality_factor, frequency_hz / quality_factor,
          resistance_ohm * (1 + quality_factor * quality_factor)};
}

Selectivity selectivity_between(Real lower_hz, Real upper_hz) {
  const Real frequency_hz = sqrt(lower_hz * upper_hz);
  const Real bandwidth_hz = upper_hz - lower_hz;
  return {frequency_hz, frequency_hz / bandwidth_hz, bandwidth_hz};
}

LoadedResonator loaded_resonator(Real unloaded_q, Real loaded_q) {
  const Real voltage_left = (unloaded_q - loaded_q) / unloaded_q;
  return {-20 * log10(voltage_left), voltage_left * voltage_left};
}

Real resonance_response_db(const Selectivity& circuit, Real frequency_hz) {
  const Real resonance_hz = circuit.frequency_hz;
  const Real detuning =
      (frequency_hz - resonance_hz) / resonance_hz * ((frequency_hz + resonance_hz) / frequency_hz);
  const Real slope = circuit.quality_factor * detuning;
  return -10 * log10(1 + slope * slope);
}

HalfPower half_power(const Selectivity& circuit) {
  const Real half_width = 1 / (2 * circuit.quality_factor);
  const Real upper = hypot(1, half_width) + half_width;
  return {circuit.frequency_hz / upper, circuit.frequency_hz * upper};
}

TankResistance tank_resistance(Real reactance_ohm, Real quality_factor) {
  return {quality_factor * reactance_ohm, reactance_ohm / quality_factor};
}

}  // namespace eterlab::circuits
