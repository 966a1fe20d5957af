#pragma once

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// A coil and a capacitor in parallel.
struct Tank {
  Real capacitance_pf;  ///< of the capacitor
  Real inductance_uh;   ///< of the coil
};

/// Of all the pairs that resonate at a short-wave frequency, the one that a rule of thumb prefers:
/// C = 400 / f. The inductance follows from Thomson's formula, L = 25330 / (f^2 C). The
/// frequency must not be zero.
Tank proportioned_tank(Real frequency_mhz);

}  // namespace eterlab::circuits
