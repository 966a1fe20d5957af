#pragma once

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// A variable capacitor.
struct VariableCapacitor {
  Real least_f;
  Real greatest_f;

  /// Turned so far, from 0 where its plates are all in to 1, each step taking away as much.
  [[nodiscard]] Real capacitance_f(Real rotation) const {
    return greatest_f + (least_f - greatest_f) * rotation;
  }
};

/// From where to where a circuit can be tuned.
struct TuningRange {
  Real lowest_hz;
  Real highest_hz;

  /// Of the capacitances that tune it.
  [[nodiscard]] Real capacitance_ratio() const;
};

/// What stands beside the variable capacitor.
struct TuningParts {
  Real inductance_h;
  Real parallel_f;  ///< trimmer and stray capacitances together
};

/// @name Tuning by a variable capacitor
/// Source: Thomson's formula f = 1 / (2 pi sqrt(L C)) at both ends.
/// @{
Real tuned_frequency_hz(const VariableCapacitor& variable, const TuningParts& parts, Real rotation);
TuningRange tuning_range(const VariableCapacitor& variable, const TuningParts& parts);
/// The parts with which it covers a range and no more. The parallel capacitance is negative where
/// the variable one does not change enough for that. Wants highest_hz > lowest_hz > 0.
TuningParts parts_for_range(const VariableCapacitor& variable, const TuningRange& range);
/// @}

}  // namespace eterlab::circuits
