#pragma once

#include "common/arithmetic.h"

namespace eterlab::units {

/// @name Temperature scales
/// A temperature in degrees Celsius on the other scales. Any value is valid; nothing stops at
/// absolute zero.
/// @{

/// 180 degrees between the freezing point of water, at 32, and its boiling point.
Real fahrenheit_from_celsius(Real celsius);

/// 80 degrees between the freezing point of water, at 0, and its boiling point.
Real reaumur_from_celsius(Real celsius);

/// Absolute temperature, with absolute zero taken at -273 degrees Celsius; in single precision and
/// rounded to two decimals. Throws overflow beyond the range of single precision.
Single kelvin_from_celsius(Real celsius);

/// @}

}  // namespace eterlab::units
