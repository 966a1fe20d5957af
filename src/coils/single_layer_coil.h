#pragma once

#include "common/arithmetic.h"

namespace eterlab::coils {

/// The form that a coil of one layer in air is wound on.
struct CoilForm {
  Real diameter_mm;  ///< at the wire's centre
  Real length_mm;    ///< of the winding
};

/// What is to be wound on a form. No dimension of the form is zero.
struct SingleLayerCoil {
  Real turns;           ///< whole or not
  Real inductance_uh;   ///< given, or of the given turns
  Real widest_wire_mm;  ///< turns touch with a wire of this diameter; regional default of decimals
  Real wire_length_cm;  ///< whole centimetres, the rest cut off, with 3.14 for pi
};

/// @name Single-layer coil
/// Wheeler's formula for a single-layer coil, L = d^2 n^2 / (18 d + 40 l) in inch and microhenry,
/// brought to millimetres as L = D n^2 / (1000 (0.45 + l / D)). Good for l >= 0.4 D. Values of any
/// sign are computed.
/// @{

/// The coil of a wanted inductance. Turns are rounded to one decimal and the wire is that of the
/// rounded turns. Throws invalid_argument where the square of the turns would be negative, and
/// division_by_zero where the turns round to zero.
SingleLayerCoil coil_of_inductance(const CoilForm& form, Real inductance_uh);

/// The coil of so many turns, not zero. Inductance is rounded to two decimals. Throws
/// division_by_zero for a length of -0.45 diameters.
SingleLayerCoil coil_of_turns(const CoilForm& form, Real turns);

/// @}

}  // namespace eterlab::coils
