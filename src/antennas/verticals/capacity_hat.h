#pragma once

#include "antennas/verticals/whip.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// @name Hat of a vertical antenna
/// Straight horizontal spokes at the tip of a mast, 4, 6 or 8 of them, which bring it to resonance.
/// For slender masts of 30 to 75 degrees.
/// @{

/// The spokes of a hat.
struct HatSpokes {
  int number;        ///< 4, 6 or 8
  Real diameter_mm;  ///< above zero
};

/// The capacitance that a mast lacks at its tip. Source: a line of uniform charge ended by a
/// capacitor, corrected after numerical solutions for what hat and mast do to each other.
Real hat_capacitance_pf(const Whip& mast, Real frequency_mhz);

/// Capacitance of a hat over the ground, with spokes of at least 5 diameters. Source: Howe's
/// average potential of a star of wires and its image.
Real capacitance_of_spokes_pf(const HatSpokes& spokes, Real spoke_length_m, Real height_m);

/// The shortest spokes that are computed, 5 diameters.
Real shortest_spoke_m(const HatSpokes& spokes);

/// Length of the spokes for a capacitance, between the shortest ones and the height of the mast.
/// Throws invalid_argument where it is not between theirs.
Real spoke_length_m(const HatSpokes& spokes, Real capacitance_pf, Real height_m);

/// Length with a wire around the tips of the spokes, roughly, over that without.
Real share_with_rim(const HatSpokes& spokes);

/// Radiation resistance of a mast that resonates with its hat. A fit to numerical solutions, within
/// 4 %.
Real hat_radiation_resistance_ohm(Real electrical_height_rad);

/// @}

}  // namespace eterlab::antennas
