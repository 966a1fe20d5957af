#pragma once

#include <string>

#include "common/arithmetic.h"

namespace eterlab {

/// @name Rounding to one side
/// What lies on a whole number but for the noise of the computation, 1E-9, stays with it.
/// @{

/// The smallest whole number not below x.
Real rounded_up(Real x);
/// The largest whole number not above x.
Real rounded_down(Real x);

/// As fixed(), but rounded up or down in the last decimal: a limit as the user is told it, to the
/// side that is accepted.
std::string fixed_up(Real x, int decimals);
/// @copydoc fixed_up
std::string fixed_down(Real x, int decimals);

/// @}

/// Whether x is not below a limit, but for the rounding of decimals, 1E-12 of the limit: 0.3
/// reaches 1.5 times 0.2. Limits are above zero.
bool reaches(Real x, Real limit);

}  // namespace eterlab
