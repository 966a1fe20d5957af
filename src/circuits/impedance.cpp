#include "circuits/impedance.h"

#include <algorithm>

#include "common/physics.h"

namespace eterlab::circuits {

namespace {

Real angular_frequency(Real frequency_hz) { return 2 * pi * frequency_hz; }

bool is_tuned(Real inductive_ohm, Real capacitive_ohm) {
  return abs(inductive_ohm - capacitive_ohm) < 1e-6 * std::max(inductive_ohm, capacitive_ohm);
}

Real without_negligible(Real part_ohm, Real magnitude_ohm) {
  return abs(part_ohm) < 1e-9 * magnitude_ohm ? 0 : part_ohm;
}

}  // namespace

Real inductive_reactance_ohm(Real frequency_hz, Real inductance_h) {
  return angular_frequency(frequency_hz) * inductance_h;
}

Real capacitive_reactance_ohm(Real frequency_hz, Real capacitance_f) {
  return 1 / (angular_frequency(frequency_hz) * capacitance_f);
}

Complex inductor_ohm(Real frequency_hz, Real inductance_h) {
  return {0, inductive_reactance_ohm(frequency_hz, inductance_h)};
}

Complex capacitor_ohm(Real frequency_hz, Real capacitance_f) {
  return {0, -capacitive_reactance_ohm(frequency_hz, capacitance_f)};
}

Real coil_loss_ohm(Real frequency_hz, Real inductance_h, Real quality_factor) {
  return inductive_reactance_ohm(frequency_hz, inductance_h) / quality_factor;
}

LosslessPair lossless_in_series(Real frequency_hz, Real inductance_h, Real capacitance_f) {
  const Real inductive_ohm = inductive_reactance_ohm(frequency_hz, inductance_h);
  const Real capacitive_ohm = capacitive_reactance_ohm(frequency_hz, capacitance_f);
  LosslessPair pair{inductive_ohm, capacitive_ohm, {}};
  if (!is_tuned(inductive_ohm, capacitive_ohm)) {
    pair.reactance_ohm = inductive_ohm - capacitive_ohm;
  }
  return pair;
}

LosslessPair lossless_in_parallel(Real frequency_hz, Real inductance_h, Real capacitance_f) {
  const Real inductive_ohm = inductive_reactance_ohm(frequency_hz, inductance_h);
  const Real capacitive_ohm = capacitive_reactance_ohm(frequency_hz, capacitance_f);
  LosslessPair pair{inductive_ohm, capacitive_ohm, {}};
  if (!is_tuned(inductive_ohm, capacitive_ohm)) {
    pair.reactance_ohm = parallel(inductive_ohm, -capacitive_ohm);
  }
  return pair;
}

Real inductance_of_reactance_h(Real frequency_hz, Real reactance_ohm) {
  return reactance_ohm / angular_frequency(frequency_hz);
}

Real capacitance_of_reactance_f(Real frequency_hz, Real reactance_ohm) {
  return 1 / (angular_frequency(frequency_hz) * reactance_ohm);
}

Complex trap_ohm(Real frequency_hz, Real inductance_h, Real capacitance_f) {
  const Real inductive_ohm = inductive_reactance_ohm(frequency_hz, inductance_h);
  const Real reactance_ohm = inductive_ohm - capacitive_reactance_ohm(frequency_hz, capacitance_f);
  return {0, abs(reactance_ohm) < 1e-9 * inductive_ohm ? 0 : reactance_ohm};
}

Complex parallel_rlc_ohm(Real frequency_hz, Real inductance_h, Real capacitance_f,
                         Real resistance_ohm) {
  const Real susceptance_s = 1 / capacitive_reactance_ohm(frequency_hz, capacitance_f) -
                             1 / inductive_reactance_ohm(frequency_hz, inductance_h);
  return 1 / Complex{1 / resistance_ohm, susceptance_s};
}

Complex series_rlc_ohm(Real frequency_hz, Real inductance_h, Real capacitance_f,
                       Real resistance_ohm) {
  return resistance_ohm + inductor_ohm(frequency_hz, inductance_h) +
         capacitor_ohm(frequency_hz, capacitance_f);
}

Complex without_negligible_part(Complex impedance_ohm) {
  const Real magnitude_ohm = abs(impedance_ohm);
  return {without_negligible(impedance_ohm.real(), magnitude_ohm),
          without_negligible(impedance_ohm.imaginary(), magnitude_ohm)};
}

}  // namespace eterlab::circuits
