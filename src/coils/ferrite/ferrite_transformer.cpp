#include "coils/ferrite/ferrite_transformer.h"

#include <algorithm>

#include "common/rounding.h"

namespace eterlab::coils {

Real least_low_turns(const FerriteCore& core, Real low_ohm, Real lowest_frequency_hz) {
  const Real turn_ohm = turn_impedance_ohm(core, lowest_frequency_hz);
  return std::max(Real{1}, rounded_up(sqrt(4 * low_ohm / turn_ohm)));
}

FerriteTransformer ferrite_transformer(const FerriteCore& core, Real low_ohm, Real high_ohm,
                                       Real lowest_frequency_hz) {
  constexpr int turns_tried = 6;
  constexpr double noise = 1e-9;
  constexpr double good_ratio = 1.05 + noise;

  FerriteTransformer best{};
  best.turn_impedance_ohm = turn_impedance_ohm(core, lowest_frequency_hz);
  const Real least = least_low_turns(core, low_ohm, lowest_frequency_hz);
  for (int more = 0; more < turns_tried; ++more) {
    const Real turns = least + more;
    const Real high_turns = round(turns * sqrt(high_ohm / low_ohm));
    const Real turns_ratio = turns / high_turns;
    const Real mismatch = high_ohm / low_ohm * turns_ratio * turns_ratio;
    const Real ratio = std::max(mismatch, 1 / mismatch);
    if (more == 0 || ratio < best.standing_wave_ratio - noise) {
      best.low_turns = turns;
      best.high_turns = high_turns;
      best.standing_wave_ratio = ratio;
    }
    if (ratio <= good_ratio) {
      break;
    }
  }

  const Real conductance = low_ohm * turn_loss_conductance_s(core, lowest_frequency_hz) /
                           (best.low_turns * best.low_turns);
  const Real voltage_v = greatest_winding_voltage_v(core, lowest_frequency_hz, best.low_turns);
  best.core_loss_db = 10 * log10(1 + conductance);
  best.greatest_power_w = std::min(voltage_v * voltage_v / low_ohm,
                                   greatest_core_loss_w(core) * (1 + conductance) / conductance);
  return best;
}

}  // namespace eterlab::coils
