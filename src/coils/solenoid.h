#pragma once

#include "common/arithmetic.h"

namespace eterlab::coils {

/// @name Solenoid
/// A coil of one layer in air, short or long, wound of thin wire; the turns whole or not. Lengths
/// above zero. Inductances are those of a sheet of current: H. A. Wheeler, "Inductance Formulas for
/// Circular and Square Coils", Proc. IEEE 70, 1982. current_sheet_inductance_h() is closer still.
/// @{

/// Inductance with R. Weaver's coefficients, within 0.1 % for any shape:
/// mu0 n^2 r (ln(1 + pi r / l) + 1 / (2.3004 + 1.6 l / r + 0.4409 (l / r)^2)).
Real solenoid_inductance_h(Real radius_m, Real length_m, Real turns);

/// The same with the printed coefficients, 2.3 and 0.44; within 0.1 % as well.
Real handbook_solenoid_inductance_h(Real radius_m, Real length_m, Real turns);

/// The capacitance that its turns have among themselves, one end grounded. Within 8 % of his
/// measurements for lengths from 0.1 to 50 diameters. Source: R. G. Medhurst, "H.F. Resistance and
/// Self-Capacitance of Single-Layer Solenoids", Wireless Engineer, 1947: in pF and cm,
/// 0.1126 l + 0.08 D + 0.27 sqrt(D^3 / l).
Real solenoid_self_capacitance_f(Real diameter_m, Real length_m);

/// @}

}  // namespace eterlab::coils
