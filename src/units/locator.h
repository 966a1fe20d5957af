#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::units {

/// @name World Wide Locator
/// A field of 20 by 10 degrees (two letters), a square of 2 by 1 degrees in it (two digits), a
/// subsquare of 5 by 2.5 minutes in that (two letters), counted from 180 degrees west and 90
/// degrees south. Source: the Maidenhead definition of 1980.
/// @{

/// East and north are positive. The single precision of the latitude is part of the results: it
/// decides in which cell a point on a border lies.
struct Position {
  Real longitude_deg;   ///< -180 to 180 on the globe
  Single latitude_deg;  ///< -90 to 90 on the globe
};

/// The centre of a subsquare, its letters in either case. Any six characters are converted by
/// their Windows-1252 codes, also to places off the globe; any other number of them is none.
std::optional<Position> position_of(std::string_view locator);

/// The subsquare that a position lies in, six characters in UTF-8. Places off the globe go on with
/// the characters beside the letters and digits, and with "?" where there are none.
std::string locator_of(const Position& position);

/// degrees + minutes / 60 + seconds / 3600; minutes and seconds are always added.
Real degrees_of(Real degrees, Real minutes, Real seconds);

/// An angle as whole degrees, not above it, whole minutes and whole hundredths of a minute.
struct DegreesAndMinutes {
  Real degrees;               ///< negative for any angle below 0
  Real minutes;               ///< 0 to 59
  Real hundredths_of_minute;  ///< 0 to 99
};
/// Takes an angle apart: -0.5 degrees are -1 degrees and 30 minutes.
DegreesAndMinutes degrees_and_minutes(Real angle_deg);

/// @}

}  // namespace eterlab::units
