#pragma once

#include "common/arithmetic.h"

namespace eterlab::resistors {

/// What a source of constant voltage with an inner resistance can give.
struct SourceResistance {
  Real resistance_ohm;           ///< inner
  Real short_circuit_current_a;  ///< at most
  Real greatest_power_w;         ///< into a load of the inner resistance
};

/// The inner resistance of a source from its voltage without and with a load. Wants
/// open_circuit_v > loaded_v > 0, both far enough apart for a quotient. Source: Thevenin's theorem,
/// Ri = RL (U0 - UL) / UL.
SourceResistance source_resistance(Real open_circuit_v, Real loaded_v, Real load_ohm);

}  // namespace eterlab::resistors
