#pragma once

#include "common/arithmetic.h"

namespace eterlab::coils {

/// @name Solenoid
/// A coil of one layer in air, short or long, wound of thin wire. Lengths above zero.
/// @{

/// Inductance, the turns whole or not. Within 0.6 % of the current sheet for any shape. Source: H.
/// A. Wheeler, "Inductance Formulas for Circular and Square Coils", Proc. IEEE 70, 1982:
/// mu0 n^2 r (ln(1 + pi r / l) + 1 / (2.3 + 1.6 l / r + 0.44 (l / r)^2)).
Real solenoid_inductance_h(Real radius_m, Real length_m, Real turns);

/// The capacitance that its turns have among themselves, one end grounded. Within 8 % of his
/// measurements for lengths from 0.1 to 50 diameters. Source: R. G. Medhurst, "H.F. Resistance and
/// Self-Capacitance of Single-Layer Solenoids", Wireless Engineer, 1947: in pF and cm,
/// 0.1126 l + 0.08 D + 0.27 sqrt(D^3 / l).
Real solenoid_self_capacitance_f(Real diameter_m, Real length_m);

/// @}

}  // namespace eterlab::coils
