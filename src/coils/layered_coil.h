#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::coils {

/// A round form to wind on.
struct RoundForm {
  Real diameter_m;  ///< outside
};

/// A rectangular form to wind on, its corners sharp.
struct RectangularForm {
  Real side_a_m;  ///< outside
  Real side_b_m;  ///< outside
};

/// How it is wound: turn beside turn, layer over layer, of enamelled copper wire.
struct Layering {
  Real width_m;  ///< of the winding, between the flanges
  Real wire_m;   ///< diameter with the enamel; that of the copper is 0.92 of it
};

/// How many turns stand side by side; none where the wire is thicker than the width.
int turns_per_layer(const Layering& layering);

/// Whether the most turns are 100 layers: with less than 15 turns side by side.
bool is_limited_by_layers(const Layering& layering);

/// The most turns that are computed: those of 100 layers, or 1500.
int most_turns(const Layering& layering);

/// A coil in layers, the last of which may be begun.
struct LayeredCoil {
  int turns;
  int layers;
  Real inductance_h;
  Real wire_length_m;
  Real resistance_ohm;  ///< of the copper, to direct current
};

/// @name Coils in layers
/// The sum of the self-inductances of all turns and the mutual ones of all pairs, each turn closed
/// in itself, the current evenly spread in the copper. Round: Maxwell's rings, within 0.2 % of the
/// Brooks coil. Rectangular: Neumann's straight wires (Grover, Inductance Calculations, chapters 6
/// and 7). At least one turn per layer, turns from 1 to the most.
/// @{
LayeredCoil layered_coil(const RoundForm& form, const Layering& layering, int turns);
LayeredCoil layered_coil(const RectangularForm& form, const Layering& layering, int turns);

/// The coil whose inductance is nearest, the smaller of two. None where the most turns do not reach
/// it.
std::optional<LayeredCoil> layered_coil_near(const RoundForm& form, const Layering& layering,
                                             Real inductance_h);
/// @copydoc layered_coil_near
std::optional<LayeredCoil> layered_coil_near(const RectangularForm& form, const Layering& layering,
                                             Real inductance_h);
/// @}

}  // namespace eterlab::coils
