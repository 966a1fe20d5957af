#include "circuits/tuning_range.h"

#include "circuits/resonance.h"

namespace eterlab::circuits {

Real TuningRange::capacitance_ratio() const {
  const Real ratio = highest_hz / lowest_hz;
  return ratio * ratio;
}

Real tuned_frequency_hz(const VariableCapacitor& variable, const TuningParts& parts,
                        Real rotation) {
  return tuned_circuit(parts.inductance_h, variable.capacitance_f(rotation) + parts.parallel_f)
      .frequency_hz;
}

TuningRange tuning_range(const VariableCapacitor& variable, const TuningParts& parts) {
  return {tuned_frequency_hz(variable, parts, 0), tuned_frequency_hz(variable, parts, 1)};
}

TuningParts parts_for_range(const VariableCapacitor& variable, const TuningRange& range) {
  constexpr double noise = 1e-12;
  const Real ratio = range.capacitance_ratio();
  Real difference_f = variable.greatest_f - ratio * variable.least_f;
  if (abs(difference_f) <= noise * variable.greatest_f) {
    difference_f = 0;
  }
  const Real parallel_f = difference_f / (ratio - 1);
  return {tuned_by_inductance(range.lowest_hz, variable.greatest_f + parallel_f).inductance_h,
          parallel_f};
}

}  // namespace eterlab::circuits
