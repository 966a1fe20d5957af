#pragma once

#include "common/arithmetic.h"

namespace eterlab::resistors {

/// What a resistor bears by its power rating. (Its type has a limit of voltage besides.)
struct PowerRating {
  Real current_a;          ///< at the rated power
  Real voltage_v;          ///< at the rated power
  Real advised_current_a;  ///< at half of the rated power
};

/// Of a resistance and a rated power above zero. Source: Joule's law, P = I^2 R = U^2 / R.
PowerRating power_rating(Real resistance_ohm, Real rated_power_w);

}  // namespace eterlab::resistors
