#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A helix over a reflector that radiates along its axis, its turns a wavelength around.
struct AxialHelix {
  Real diameter_m;            ///< of the turns, between the middles of the conductor
  Real pitch_m;               ///< from turn to turn, 0.23 of the wavelength: 13 degrees
  Real length_m;              ///< of all turns
  Real conductor_m;           ///< wire or tube of all turns
  Real reflector_diameter_m;  ///< at least
  Real gain_dbi;              ///< along the axis
  Real beamwidth_degrees;     ///< where half of the power is left
};

inline constexpr int fewest_helix_turns = 4;  ///< of those that the table of gains covers
inline constexpr int most_helix_turns = 30;   ///< of those that the table of gains covers

/// Resistance where it leaves the reflector. Source: Kraus, Antennas.
inline constexpr double helix_resistance_ohm = 140;
/// A quarter-wave line of this between the helix and a line of 50 ohm.
inline constexpr double helix_transformer_ohm = 84;

/// For a wavelength above zero and fewest_helix_turns to most_helix_turns. Gain and beam come from
/// the method of moments (NEC-2) over a large reflector, the conductor a hundredth of a wave thick:
/// 2 to 4 dB below the older 15 C^2 N S / lambda^3 (Kraus); Emerson (Antenna Compendium 4, 1995)
/// agrees within 1 dB from 8 turns on.
AxialHelix axial_helix(Real wavelength_m, int turns);

}  // namespace eterlab::antennas
