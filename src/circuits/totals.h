#pragma once

#include <span>

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// The sum of values: of resistors in series, of capacitors in parallel. 0 without any.
Real sum_of(std::span<const Real> values);

/// The reciprocal of the sum of reciprocals: of resistors in parallel, of capacitors in series. Of
/// one value or more, all above zero.
Real parallel_of(std::span<const Real> values);

}  // namespace eterlab::circuits
