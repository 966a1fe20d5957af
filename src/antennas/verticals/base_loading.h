#pragma once

#include <optional>

#include "antennas/verticals/whip.h"
#include "coils/spaced_coil.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A short whip brought to resonance by a coil at its base.
struct BaseLoading {
  Real frequency_mhz;             ///< of resonance
  Real whip_reactance_ohm;        ///< capacitive, told as positive
  Real radiation_resistance_ohm;  ///< at the base
  Real base_resistance_ohm;       ///< with those of the ground and of the coil
  Real inductance_uh;             ///< of the coil
  Real efficiency;                ///< radiated power over that at the base, up to 1
  Real bandwidth_mhz;             ///< between standing wave ratios of 2, matched at resonance
};

/// For a slender whip that is capacitive, a ground resistance from 0 and a coil with a Q of 200.
/// The bandwidth follows from the slope of the reactance.
BaseLoading base_loading(const Whip& whip, Real frequency_mhz, Real ground_resistance_ohm);

/// @name A coil that also matches
/// The loading coil with its lower end on ground and the cable, of 50 ohm, at a tap. For a base
/// resistance below 48 ohm and whips that leave room for it: can_be_tapped().
/// @{

/// The coil and where the cable goes to.
struct TappedCoil {
  coils::SpacedCoil coil;  ///< all of it
  Real tap_turns;          ///< from the end on ground
};

/// Impedance of the cable.
inline constexpr double cable_impedance_ohm = 50;

/// Whether the base resistance is far enough below that of the cable.
bool is_below_cable_impedance(const BaseLoading& loading);
/// Whether the whip's reactance leaves room for the reactance that the tap needs.
bool can_be_tapped(const BaseLoading& loading);

/// The turns of the coil; none where its wire would be too thin. With less than 4 a tap is not to
/// be adjusted.
std::optional<int> tapped_coil_turns(const BaseLoading& loading, Real coil_diameter_mm);

/// The coil of so many turns, 4 at least, and its tap. Both parts of the coil and the coupling
/// between them are the T of a network with exactly 50 ohm at the tap; what couples them follows
/// from Wheeler's sheets of current.
TappedCoil tapped_coil(const BaseLoading& loading, Real coil_diameter_mm, int turns);

/// @}

}  // namespace eterlab::antennas
