#pragma once

#include "common/arithmetic.h"
#include "lines/lines_on_sale.h"

namespace eterlab::lines {

/// Two cables, a quarter and three quarters of a wave long, from a feed line to the sides of a
/// balanced antenna. Whatever these are, they get equal and opposite currents.
struct TwoCableBalun {
  Real impedance_ohm;       ///< the cables should have
  const LineOnSale* cable;  ///< the nearest coaxial one; never null
  Real input_ohm;           ///< of both at the line, with that cable
};
/// Each cable shows the quarter-wave transform of half of the antenna. Source: current forcing,
/// ARRL Antenna Book, phased arrays.
TwoCableBalun two_cable_balun(Real antenna_ohm, Real line_ohm);

}  // namespace eterlab::lines
