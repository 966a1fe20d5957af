#pragma once

#include <cstdint>

#include "common/arithmetic.h"
#include "transformers/laminated_core.h"
#include "transformers/winding_wire.h"

namespace eterlab::valves {

/// How the valves of an output stage work on its transformer.
enum class OutputCircuit : std::uint8_t {
  single,    ///< one valve in class A, whose direct current passes through the primary
  push_pull  ///< two, whose direct currents cancel in the core
};

/// An output stage. All above zero, but for the anode current of a push-pull stage, which is not
/// asked for.
struct OutputStage {
  OutputCircuit circuit;
  Real load_ohm;             ///< of the anode, or from anode to anode
  Real power_w;              ///< largest
  Real anode_current_a;      ///< without signal
  Real speaker_ohm;          ///< impedance
  Real lowest_frequency_hz;  ///< where the response of a pentode is down by 3 dB
};

/// A winding of an output transformer.
struct OutputWinding {
  Real turns;                             ///< of both halves in push-pull
  const transformers::WindingWire* wire;  ///< the thickest that fits
  Real resistance_ohm;                    ///< at 20 degrees Celsius
};

/// An output transformer on a core.
struct OutputTransformer {
  OutputWinding primary;    ///< at the anode, or anodes
  OutputWinding secondary;  ///< at the loudspeaker
  Real gap_m;               ///< in total, 0 in push-pull
  Real inductance_h;        ///< of the primary
  Real turns_ratio;         ///< primary to secondary
  Real load_ohm;            ///< what the valve really sees, winding resistances included
  Real efficiency;          ///< of 1, at middle frequencies
};

/// Share of the power that is lost in the copper of both windings, each of which has half of the
/// room.
Real copper_loss(const OutputStage& stage, const transformers::LaminatedCore& core);

/// A transformer on a core whose copper loss is below 1. Source: R. Lee, Electronic Transformers
/// and Circuits; Radiotron Designer's Handbook, 4th edition, chapter 5; for direct current in the
/// core see least_turns().
OutputTransformer output_transformer(const OutputStage& stage,
                                     const transformers::LaminatedCore& core);

}  // namespace eterlab::valves
