#pragma once

#include "common/arithmetic.h"

namespace eterlab::coils {

/// @name Inductance of turns in air
/// What coils of any shape are added up from. Lengths above zero.
/// @{

/// Self-inductance of a round coil of one layer, the current evenly spread as in a thin sheet along
/// its length; the turns need not be whole. Within 3E-6 for any shape. Source: R. Lundin, "A
/// Handbook Formula for the Inductance of a Single-Layer Circular Coil", Proc. IEEE 73, 1985.
Real current_sheet_inductance_h(Real radius_m, Real length_m, Real turns);

/// Self-inductance of a ring of round wire, thin against the ring, with the current evenly spread
/// over its section: mu0 r (ln(8 r / a) - 7/4). Source: Maxwell, Treatise.
Real ring_inductance_h(Real radius_m, Real wire_radius_m);

/// Mutual inductance of two circles on one axis, which do not coincide, at a distance from 0.
/// Source: Maxwell, Treatise, art. 701, with the elliptic integrals by the arithmetic-geometric
/// mean; to 1E-15.
Real coaxial_circles_mutual_h(Real radius_m, Real other_radius_m, Real distance_m);

/// Mutual inductance of two parallel straight wires that face each other centre to centre, of one
/// length or of two. At the geometric mean distance of a section it is the self-inductance of a
/// wire of that section. Source: Neumann's integral; Grover, Inductance Calculations, chapter 6.
Real facing_segments_mutual_h(Real length_m, Real other_length_m, Real distance_m);

/// @}

}  // namespace eterlab::coils
