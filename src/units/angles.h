#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::units {

/// @name Angles
/// Any angle, of any sign and number of turns.
/// @{

/// In what an angle is told.
enum class AngleUnit : std::uint8_t {
  degrees,
  radians,
  gons,  ///< 400 in a turn
};

/// An angle in decimal degrees.
Real degrees(Real angle, AngleUnit unit);
/// Decimal degrees in another unit.
Real angle_in(AngleUnit unit, Real degrees);

/// An angle in degrees, minutes and seconds.
struct SexagesimalAngle {
  bool is_negative;  ///< not where all the rest is 0
  Real degrees;      ///< whole
  int minutes;       ///< 0 to 59
  Real seconds;      ///< 0 to 59.9, in tenths
};

/// Rounded to a tenth of a second, half away from zero.
SexagesimalAngle sexagesimal(Real degrees);

/// What is left of an angle without its whole turns, of the same sign: above -360 and below 360.
Real within_a_turn(Real degrees);

/// @}

}  // namespace eterlab::units
