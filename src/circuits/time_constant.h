#pragma once

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// @name Time constants
/// How voltage or current of a circuit with one capacitor or inductor settles. Everything is above
/// zero. Source: the exponential solution of the circuit's equation.
/// @{

/// R C.
Real rc_time_constant_s(Real resistance_ohm, Real capacitance_f);
/// L / R.
Real rl_time_constant_s(Real inductance_h, Real resistance_ohm);

/// What has risen from 0 towards its final value after a time: final (1 - exp(-t / tau)).
Real risen_to(Real final_value, Real time_s, Real time_constant_s);
/// What is left of its first value after a time: first exp(-t / tau).
Real fallen_to(Real first_value, Real time_s, Real time_constant_s);

/// In how many time constants something rises from 0 to a level below its final value:
/// ln(final / (final - level)), without loss of digits for levels near either end. A level that is
/// not below divides by zero or throws invalid_argument.
Real time_constants_until(Real level, Real final_value);

/// @}

}  // namespace eterlab::circuits
