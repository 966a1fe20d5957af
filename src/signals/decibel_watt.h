#pragma once

#include "common/arithmetic.h"

namespace eterlab::signals {

/// @name Levels of power
/// L = 10 lg(P / 1 W), and the voltage that goes with a power. Unrounded. Source: IEC 60027-3.
/// @{

/// Level, in dBm, of one watt.
inline constexpr double one_watt_dbm = 30;

/// Level above one watt; of a ratio of powers, its decibels. Throws invalid_argument for a power
/// that is not above zero.
Real level_dbw(Real power_w);
/// The opposite, up to 3080 dB.
Real power_w(Real level_dbw);

/// RMS voltage of a power across a resistance, both of the same sign or zero.
Real rms_voltage_v(Real power_w, Real resistance_ohm);
/// The opposite, as a level; voltage and resistance must be above zero.
Real level_dbm_of_voltage(Real rms_voltage_v, Real resistance_ohm);

/// @}

}  // namespace eterlab::signals
