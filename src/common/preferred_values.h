#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab {

/// @name Preferred values
/// Of resistors and capacitors, as of IEC 60063. The value found is the double nearest to the
/// decimal number, 3.3e-6 to the last digit. What is not above zero throws invalid_argument;
/// preferred values beyond the range of a double throw overflow.
/// @{

/// How many values a decade has, by the usual tolerance: 20, 10 or 5 %.
enum class Series : std::uint8_t { e6, e12, e24 };

/// The value nearest by ratio, the smaller of two equally near.
Real nearest_preferred(Real x, Series series);
/// The smallest value not below x; one that x exceeds by no more than 1E-9 of itself is not below.
Real next_preferred_up(Real x, Series series);
/// The largest value not above x; one that exceeds x by no more than 1E-9 of itself is not above.
Real next_preferred_down(Real x, Series series);

/// @}

}  // namespace eterlab
