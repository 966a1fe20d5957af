#pragma once

#include <array>
#include <optional>

#include "common/arithmetic.h"

namespace eterlab::transformers {

/// Voltages of the taps of the universal autotransformer, all from its terminal 0.
inline constexpr std::array<double, 5> universal_taps_v{110, 125, 140, 160, 220};

/// Between which taps and terminal 0 mains and radio are connected, by their places.
struct TapPair {
  int mains;  ///< tap of the mains
  int radio;  ///< tap of the radio
};

/// The taps that give a radio what comes nearest to its voltage. Mains may exceed the voltage of
/// their tap, and so the induction, by 10 %: above 242 V none can take them. Of pairs that give the
/// same, the one with the highest tap for the mains, then the lowest for the radio.
std::optional<TapPair> nearest_taps(Real mains_v, Real radio_v);

/// What an autotransformer gives and carries.
struct AutotransformerLoad {
  Real radio_v;           ///< what the radio gets
  Real core_va;           ///< what the core is built for
  Real common_current_a;  ///< between terminal 0 and the lower of both taps
  Real series_current_a;  ///< between both taps
};

/// Without magnetising current and losses. Source: conservation of power and of ampere-turns.
AutotransformerLoad autotransformer_load(TapPair taps, Real mains_v, Real power_w);

/// What stands at a tap.
Real tap_voltage_v(TapPair taps, Real mains_v, int tap);

}  // namespace eterlab::transformers
