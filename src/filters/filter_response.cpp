#include "filters/filter_response.h"

#include <numbers>

#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::filters {

namespace {

Real resonance_hz(const ThreeElementFilter& filter) {
  return 1 / (2 * pi * sqrt(filter.inductance_h) * sqrt(filter.capacitance_f));
}

/// The characteristic impedance of the elements over that of the line, or its inverse.
Real match(const ThreeElementFilter& filter) {
  const Real ratio = sqrt(filter.inductance_h) / sqrt(filter.capacitance_f) / filter.impedance_ohm;
  return filter.form == FilterForm::pi ? ratio : 1 / ratio;
}

}  // namespace

Real attenuation_db(const ThreeElementFilter& filter, Real frequency_hz) {
  const Real resonance = resonance_hz(filter);
  const Real a = match(filter);
  const Real ratio =
      filter.band == PassBand::low ? frequency_hz / resonance : resonance / frequency_hz;
  const Real mismatch = ratio / 2 * (a - (2 - ratio * ratio) / a);
  return attenuation_db(mismatch * mismatch);
}

Real cutoff_hz(const ThreeElementFilter& filter) {
  const Real a = match(filter);
  // Half of the power where s (a - (2 - s^2) / a) / 2 = 1. That has one root s = f / f0 above zero,
  // which is beyond those of -1 in its place, and not beyond sqrt(2) + a.
  const Real ratio = root_between(0, std::numbers::sqrt2 + a,
                                  [a](Real s) { return s * (s * s + (a * a - 2)) - 2 * a; });
  const Real resonance = resonance_hz(filter);
  return filter.band == PassBand::low ? resonance * ratio : resonance / ratio;
}

}  // namespace eterlab::filters
