#pragma once

#include "coils/ferrite/ferrite_cores.h"
#include "common/arithmetic.h"

namespace eterlab::coils {

/// A wideband transformer between two resistances on a ferrite ring.
struct FerriteTransformer {
  Real low_turns;            ///< of the winding at the lower impedance, whole
  Real high_turns;           ///< of the other one, whole
  Real standing_wave_ratio;  ///< what the whole turns make of the ratio of the impedances
  Real turn_impedance_ohm;   ///< magnitude, of one turn at the lowest frequency
  Real core_loss_db;         ///< at the lowest frequency
  Real greatest_power_w;     ///< that flux and heat allow at the lowest frequency
};

/// The fewest turns of the low-impedance winding: four times its impedance as reactance at the
/// lowest frequency, the usual rule for wideband transformers. At least 1.
Real least_low_turns(const FerriteCore& core, Real low_ohm, Real lowest_frequency_hz);

/// From the fewest turns on up to five more are tried: the first with an SWR up to 1.05, else that
/// of the lowest. The power is the smaller one of what the flux density and the heat of the core
/// allow; see the laws of ferrite cores. Wants low_ohm <= high_ohm, values above zero.
FerriteTransformer ferrite_transformer(const FerriteCore& core, Real low_ohm, Real high_ohm,
                                       Real lowest_frequency_hz);

}  // namespace eterlab::coils
