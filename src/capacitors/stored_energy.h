#pragma once

#include "common/arithmetic.h"

namespace eterlab::capacitors {

/// The voltage that a charged capacitor may keep without danger to the hand.
inline constexpr Real safe_voltage_v = 50;

/// What a charged capacitor holds, W = C U^2 / 2.
Real stored_energy_j(Real capacitance_f, Real voltage_v);
/// What flowed into it, Q = C U.
Real stored_charge_c(Real capacitance_f, Real voltage_v);
/// How long a resistor across it takes to bring its voltage down to safe_voltage_v, R C ln(U / Us);
/// not above zero where the voltage is safe already. The voltage is above zero.
Real time_to_safety_s(Real capacitance_f, Real voltage_v, Real resistance_ohm);
/// What the resistor bears at first, U^2 / R.
Real discharge_power_w(Real voltage_v, Real resistance_ohm);

}  // namespace eterlab::capacitors
