#pragma once

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// @{
/// Reactance of one part at one frequency, in the units of the short waves. Any values are valid
/// but a frequency or capacitance of zero, by which is divided. Source: X = 2 pi f L and X = 1 / (2
/// pi f C), with 2 pi rounded to 6.28 and 10^6 / 2 pi to 159000.
Real handbook_inductive_reactance_ohm(Real frequency_mhz, Real inductance_uh);
Real handbook_capacitive_reactance_ohm(Real frequency_mhz, Real capacitance_pf);
/// @}

}  // namespace eterlab::circuits
