#pragma once

#include "common/arithmetic.h"

namespace eterlab::lines {

/// @name Wires of some length over well conducting ground
/// Lengths in metres. The charge counts as evenly spread, so the true capacitance is greater: by 3
/// % at most for a wire of 50 diameters, by less than 2 % from 200 on.
/// @{

/// A straight wire alone, without what it is connected by.
struct WireConstants {
  Real inductance_h;   ///< in all
  Real capacitance_f;  ///< in all, to ground
};

/// A horizontal wire of any length from 50 diameters on. The height is that of its axis, a diameter
/// or more. Source: Neumann's integral for the inductance (Grover, Inductance Calculations), Howe's
/// method for the capacitance (Terman, Radio Engineers' Handbook), made exact near the ground.
WireConstants horizontal_wire(Real diameter_m, Real height_m, Real length_m);

/// Capacitance to ground of a vertical wire of 50 diameters or more, much shorter than a quarter
/// wave. The base height may be 0. Source: Howe, "The capacity of radio telegraphic antennae", The
/// Electrician 1914, in closed form.
Real vertical_wire_capacitance_f(Real diameter_m, Real length_m, Real base_height_m);

/// @}

}  // namespace eterlab::lines
