#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::coils {

/// A self-supporting coil of a few turns of stiff wire, without its ends.
struct ShortCoil {
  Real mean_diameter_m;  ///< at the centre of the wire
  Real wire_m;           ///< diameter of the wire, up to the pitch
};

/// The widest pitch of short_coil_inductance_h(), half of the mean diameter.
Real widest_pitch_m(const ShortCoil& coil);

/// Inductance of 1 to 50 turns, whole or not, at radio frequencies: the current sheet with E. B.
/// Rosa's corrections for round wire (Bull. Bureau of Standards 8, 1912) in D. W. Knight's closed
/// form. Within 2 % up to a pitch of 1/3.5 of the mean diameter, within 6 % up to the widest.
Real short_coil_inductance_h(const ShortCoil& coil, Real turns, Real pitch_m);

/// Length of the wire, its turns sloping with the pitch.
Real short_coil_wire_m(const ShortCoil& coil, Real turns, Real pitch_m);

/// The fewest whole turns, 2 to 50, that reach an inductance at the closest pitch. None where 50 do
/// not.
std::optional<Real> fewest_turns(const ShortCoil& coil, Real closest_pitch_m, Real inductance_h);

/// The pitch, from the closest to the widest, at which these turns have an inductance. None where
/// they have more even at the widest.
std::optional<Real> stretched_pitch_m(const ShortCoil& coil, Real turns, Real closest_pitch_m,
                                      Real inductance_h);

}  // namespace eterlab::coils
