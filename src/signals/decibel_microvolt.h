#pragma once

#include "common/arithmetic.h"

namespace eterlab::signals {

/// @name Decibels referred to one microvolt
/// A voltage and its level, L = 20 lg(U / 1 uV). Both results are rounded to two decimals and in
/// single precision.
/// @{

/// Throws invalid_argument for a voltage that is not positive.
Single level_dbuv(Real voltage_uv);

/// Any level is valid whose voltage single precision can hold, up to about 770 dB.
Single voltage_uv(Real level_dbuv);

/// @}

}  // namespace eterlab::signals
