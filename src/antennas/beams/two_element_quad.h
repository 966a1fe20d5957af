#pragma once

#include "antennas/antenna_wire.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A quad beam of radiator and reflector, both closed square loops.
struct TwoElementQuad {
  Real radiator_m;   ///< perimeter
  Real reflector_m;  ///< perimeter
  Real spacing_m;    ///< between the two
  Real feed_ohm;     ///< at the radiator, resistive
};

/// The beam with the radiator resonant and the greatest front-to-back ratio, for diameters from
/// 3E-5 to 1E-2 wavelengths. Source: L. B. Cebik, W4RNL, "2-Element Quads as a Function of Wire
/// Diameter", a regression to NEC; the feed resistance is a fit to NEC-2, within 4 %.
TwoElementQuad two_element_quad(const AntennaWire& wire);

}  // namespace eterlab::antennas
