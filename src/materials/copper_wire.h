#pragma once

#include "common/arithmetic.h"

namespace eterlab::materials {

/// What the diameter and the weight of a copper wire tell about it.
struct CopperWire {
  Real section_mm2;        ///< of the copper
  Real length_m;           ///< rounded to two decimals
  Real largest_current_a;  ///< at 2.5 A/mm2
  Single resistance_ohm;   ///< of the rounded length, rounded to six decimals
};

/// From the density of copper, 8.89 g/cm3, and its resistivity, 0.0176 ohm mm2/m. The diameter must
/// not be zero.
CopperWire copper_wire(Real diameter_mm, Real weight_g);

}  // namespace eterlab::materials
