#include "transformers/universal_autotransformer.h"

#include <algorithm>

namespace eterlab::transformers {

namespace {

Real nominal_v(int tap) { return universal_taps_v[static_cast<std::size_t>(tap)]; }

}  // namespace

Real tap_voltage_v(TapPair taps, Real mains_v, int tap) {
  return mains_v * nominal_v(tap) / nominal_v(taps.mains);
}

std::optional<TapPair> nearest_taps(Real mains_v, Real radio_v) {
  constexpr double greatest_ratio = 1.1 + 1e-9;
  constexpr double noise_v = 1e-9;
  std::optional<TapPair> nearest;
  Real least_error_v;
  constexpr int count = static_cast<int>(universal_taps_v.size());
  for (int mains = count - 1; mains >= 0; --mains) {
    if (mains_v / nominal_v(mains) > greatest_ratio) {
      break;
    }
    for (int radio = 0; radio < count; ++radio) {
      const Real error_v = abs(tap_voltage_v({mains, radio}, mains_v, radio) - radio_v);
      if (!nearest || error_v < least_error_v - noise_v) {
        nearest = {mains, radio};
        least_error_v = error_v;
      }
    }
  }
  return nearest;
}

AutotransformerLoad autotransformer_load(TapPair taps, Real mains_v, Real power_w) {
  const Real radio_v = tap_voltage_v(taps, mains_v, taps.radio);
  const Real mains_a = power_w / mains_v;
  const Real radio_a = power_w / radio_v;
  return {radio_v, power_w * (1 - std::min(radio_v, mains_v) / std::max(radio_v, mains_v)),
          abs(mains_a - radio_a), std::min(mains_a, radio_a)};
}

}  // namespace eterlab::transformers
