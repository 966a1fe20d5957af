#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::capacitors {

/// The highest of the standard working voltages.
inline constexpr Real greatest_standard_voltage_v = 1000;

/// The lowest standard working voltage of electrolytic and film capacitors, 6.3 V to 1000 V, that
/// is not below so many volts; one that these exceed by no more than 1E-9 of it is not below.
/// Nothing where they exceed all of them.
std::optional<Real> standard_working_voltage_v(Real least_v);

/// What a capacitor behind a mains transformer must bear: the peak of the voltage that the
/// transformer is rated for, and 20 % for high mains and a winding without its load.
Real mains_working_voltage_v(Real rms_v);

/// @name Peak voltages
/// What a capacitor meets at most.
/// @{

/// Of a direct voltage with a ripple about it.
Real direct_peak_v(Real direct_v, Real ripple_peak_to_peak_v);
/// Of a sine with a direct voltage under it.
Real alternating_peak_v(Real rms_v, Real direct_v);
/// Where a line that delivers a power to its load has the highest voltage: sqrt(2 P Z SWR), from
/// P = Umax Umin / (2 Z) and SWR = Umax / Umin. SWR is 1 or more.
Real line_peak_v(Real power_w, Real impedance_ohm, Real standing_wave_ratio);

/// @}

/// What to ask of a capacitor that meets a peak: half as much again.
Real least_working_voltage_v(Real peak_v);
/// The same in whole volts, rounded up; what exceeds a volt by no more than 1E-9 V stays with it.
Real least_whole_working_voltage_v(Real peak_v);

}  // namespace eterlab::capacitors
