#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::coils {

/// A coil of one layer in air, its round wire of 0.6 of the pitch.
struct SpacedCoil {
  Real diameter_mm;  ///< at the wire's centre
  int turns;         ///< above 0
  Real pitch_mm;     ///< from wire to wire

  [[nodiscard]] Real length_mm() const { return turns * pitch_mm; }       ///< of the winding
  [[nodiscard]] Real wire_diameter_mm() const { return 0.6 * pitch_mm; }  ///< of the bare wire
};

/// Inductance of an ideal winding of any number of turns, whole or not: solenoid_inductance_h(), 0
/// of no turns.
Real wheeler_sheet_inductance_uh(Real turns, Real diameter_mm, Real pitch_mm);

/// What each turn of a SpacedCoil has less than the sheet of current, the current on the surface of
/// the wire. Source: E. B. Rosa's corrections for round wire.
Real rosa_correction_uh(Real diameter_mm, int turns);

/// Inductance of the coil: the sheet's, corrected for each turn.
Real inductance_uh(const SpacedCoil& coil);

/// The coil of an inductance above zero that is about as long as wide: the fewest turns that reach
/// it in a coil of one diameter's length, drawn out to the very inductance. None where the pitch
/// would be less than 0.2 mm.
std::optional<SpacedCoil> spaced_coil(Real inductance_uh, Real diameter_mm);

/// The coil of so many turns drawn out, or pushed together, to an inductance, which must be within
/// reach: else throws invalid_argument.
SpacedCoil spaced_to_inductance(Real inductance_uh, Real diameter_mm, int turns);

/// Whether its wire can be handled: a pitch of at least 0.2 mm.
bool can_be_wound(const SpacedCoil& coil);

}  // namespace eterlab::coils
