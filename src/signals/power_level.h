#pragma once

#include "common/arithmetic.h"

namespace eterlab::signals {

/// A unit of power, and the unit in which the voltage that goes with it is told.
struct PowerUnit {
  double milliwatts;      ///< numerator of the unit in milliwatt
  double milliwatts_per;  ///< denominator of the unit in milliwatt
  double voltage_factor;  ///< brings the root of ohm x power unit to the voltage unit
};

/// @{
/// Power unit and voltage unit; the factor between them has up to five digits.
inline constexpr PowerUnit watt_to_volt{1000, 1, 1};
inline constexpr PowerUnit milliwatt_to_millivolt{1, 1, 31.623};
inline constexpr PowerUnit microwatt_to_millivolt{1, 1e3, 1};
inline constexpr PowerUnit nanowatt_to_millivolt{1, 1e6, 0.0316};
inline constexpr PowerUnit nanowatt_to_microvolt{1, 1e6, 31.623};
inline constexpr PowerUnit picowatt_to_microvolt{1, 1e9, 1};
inline constexpr PowerUnit femtowatt_to_microvolt{1, 1e12, 0.0316};
/// @}

/// RMS voltage, in the unit's voltage unit, of a power across a resistance: U = sqrt(R P).
/// The product of the two must not be negative.
Real rms_voltage(Real power, Real resistance_ohm, const PowerUnit& unit);

/// Level of a power referred to one milliwatt, rounded to one decimal. The power must be positive.
Real level_dbm(Real power, const PowerUnit& unit);

}  // namespace eterlab::signals
