#pragma once

#include "antennas/antenna_wire.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A beam of two bent elements in a rectangle. The letters are those of its usual drawings.
struct MoxonRectangle {
  Real width_m;          ///< A
  Real radiator_end_m;   ///< B, folded towards the reflector
  Real gap_m;            ///< C, between the tips
  Real reflector_end_m;  ///< D, folded towards the radiator
};

/// The rectangle with the greatest front-to-back ratio at 50 ohm, for diameters from 1E-5 to 1E-2
/// wavelengths; at the ends of this the SWR reaches 1.4. Source: L. B. Cebik, W4RNL, "Moxon
/// Rectangle Generator", a regression to NEC.
MoxonRectangle moxon_rectangle(const AntennaWire& wire);

/// E, from element to element.
Real depth_m(const MoxonRectangle& moxon);
/// Wire of the radiator, both halves.
Real radiator_wire_m(const MoxonRectangle& moxon);
/// Wire of the reflector.
Real reflector_wire_m(const MoxonRectangle& moxon);

}  // namespace eterlab::antennas
