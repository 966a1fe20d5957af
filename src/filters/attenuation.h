#pragma once

#include <numbers>

#include "common/arithmetic.h"

namespace eterlab::filters {

/// What passes a filter.
enum class PassBand : unsigned char {
  low,   ///< what is below the cut-off
  high,  ///< what is above it
};

/// Attenuation, in dB, between the power that comes to a filter and the power that passes, from
/// their ratio less one: exact also where next to nothing is lost. -1 or less throws
/// invalid_argument.
inline Real attenuation_db(Real power_ratio_less_one) {
  return 10 * std::numbers::log10e * log1p(power_ratio_less_one);
}

/// The share of the power that passes such an attenuation: 1 for 0 dB.
inline Real passed_share(Real attenuation_db) { return pow(10, -attenuation_db / 10); }

}  // namespace eterlab::filters
