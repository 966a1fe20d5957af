#pragma once

#include "common/arithmetic.h"
#include "transformers/laminated_core.h"
#include "transformers/winding_wire.h"

namespace eterlab::transformers {

/// What is asked of the choke that smooths the current of a full-wave rectifier on 50 Hz.
struct ChokeTask {
  Real inductance_h;      ///< wanted
  Real direct_current_a;  ///< through it
  Real ripple_v = 0;      ///< r.m.s. of 100 Hz across it
};

/// A choke on a core.
struct SmoothingChoke {
  Real turns;               ///< rounded up
  const WindingWire* wire;  ///< none when there is none so thick
  Real gap_m;               ///< in total
  Real resistance_ohm;      ///< at 20 degrees Celsius; 0 without a wire
  Real copper_g;            ///< 0 without a wire
  bool fits;                ///< whether the window of the core holds the copper
};

/// For laminations of silicon steel: until the gap is adjusted the inductance comes out between 15
/// % below and 40 % above what is wanted. Source: see least_turns().
SmoothingChoke smoothing_choke(const ChokeTask& task, const LaminatedCore& core);

}  // namespace eterlab::transformers
