#pragma once

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// A resistor at work. Source: Ohm's law U = R I and Joule's law P = U I.
struct OperatingPoint {
  Real voltage_v;       ///< across the resistor
  Real current_a;       ///< through it
  Real resistance_ohm;  ///< of it
  Real power_w;         ///< that it turns into heat
};

/// @{
/// The two quantities that are not given, from the two that are. Any values but a zero divisor are
/// valid, negative ones included; with resistance and power their product must not be negative.
OperatingPoint from_voltage_and_current(Real voltage_v, Real current_a);
OperatingPoint from_voltage_and_resistance(Real voltage_v, Real resistance_ohm);
OperatingPoint from_voltage_and_power(Real voltage_v, Real power_w);
OperatingPoint from_current_and_resistance(Real current_a, Real resistance_ohm);
OperatingPoint from_current_and_power(Real current_a, Real power_w);
OperatingPoint from_resistance_and_power(Real resistance_ohm, Real power_w);
/// @}

}  // namespace eterlab::circuits
