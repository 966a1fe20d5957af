#pragma once

#include <vector>

#include "common/arithmetic.h"

namespace eterlab::materials {

/// @name Strands of round wires
/// @{

/// The copper of a strand. What is around it, and between its wires, does not count.
struct Strand {
  Real section_mm2;             ///< of all wires together
  Real wire_diameter_mm;        ///< of each wire
  Real equivalent_diameter_mm;  ///< of the one wire with that section
};

/// From the diameter of each wire; one wire or more.
Strand strand_of_wires(Real wires, Real wire_diameter_mm);
/// From the section of all wires together; one wire or more.
Strand strand_of_section(Real wires, Real section_mm2);

/// Where a wire lies in the section of a strand, seen from its middle, in diameters of the wires.
struct WirePlace {
  double x;  ///< to the right
  double y;  ///< downwards
};
/// So many wires, one or more, laid as densely as they lie in layers around the middle: 1, 7, 19,
/// 37 are full. Numbers between lie around one, between two or between three wires, whichever is
/// narrowest.
std::vector<WirePlace> wires_in_strand(int wires);

/// @}

}  // namespace eterlab::materials
