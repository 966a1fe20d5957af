#include "signals/decibel.h"

#include "common/number_text.h"

namespace eterlab::signals {

namespace {

SignalChange change(Real input, Real output, Real decibels_per_decade) {
  const bool is_gain = input <= output;
  const Real ratio = is_gain ? output / input : input / output;
  return {decibels_per_decade * ln(ratio) / ln(10), is_gain};
}

}  // namespace

SignalChange from_voltages(Real input, Real output) { return change(input, output, 20); }

SignalChange from_powers(Real input, Real output) { return change(input, output, 10); }

SignalRatios ratios_from_decibels(Real decibels) {
  const Real voltage_ratio = pow(10, decibels / 20);
  return {rounded(voltage_ratio, 3), pow(voltage_ratio, 2)};
}

}  // namespace eterlab::signals
