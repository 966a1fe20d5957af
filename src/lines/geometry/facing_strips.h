#pragma once

#include "common/arithmetic.h"

namespace eterlab::lines {

/// Two equal strips that face each other, fed in push-pull, with a sheet of a dielectric between
/// them that juts out at their sides by their distance or more. Lengths are all in one unit.
struct FacingStrips {
  Real distance;               ///< from face to face
  Real thickness;              ///< of each strip, up to half of the distance
  Real width;                  ///< from 0.05 to 50 distances, not below the thickness
  Real relative_permittivity;  ///< of the sheet, 1 or more
};

/// What a line of facing strips is to a wave.
struct StripLine {
  Real impedance_ohm;    ///< characteristic
  Real velocity_factor;  ///< of a wave that runs partly in the air
};

/// The plane midway between the strips has no potential: twice a microstrip of half the distance,
/// within 0.8 %, for thin strips 0.15 %. Source: Hammerstad and Jensen, "Accurate models for
/// microstrip computer-aided design", IEEE MTT-S 1980.
StripLine strip_line(const FacingStrips& strips);

/// The least and the greatest width that strip_line() takes, whatever the width of these is.
Real narrowest_strip(const FacingStrips& strips);
/// @copydoc narrowest_strip
Real widest_strip(const FacingStrips& strips);

/// The width that gives an impedance, which must be one of those from the widest to the narrowest
/// strip, else throws invalid_argument; whatever the width of these is.
Real strip_width(const FacingStrips& strips, Real impedance_ohm);

}  // namespace eterlab::lines
