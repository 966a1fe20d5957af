#pragma once

#include "common/arithmetic.h"

namespace eterlab::coils {

/// A coil and a capacitor in resonance. Source: Thomson's formula f = 1 / (2 pi sqrt(L C)), with
/// 1 / (2 pi) written as 0.159 and 1 / (4 pi^2) as 0.0253.
struct TunedCircuit {
  Real frequency_mhz;   ///< of resonance
  Real inductance_uh;   ///< of the coil
  Real capacitance_pf;  ///< of the capacitor
};

/// @{
/// The quantity that is not given, from the two that are; none of them may be zero. Negative values
/// are computed, but the product of inductance and capacitance must be positive.
TunedCircuit from_inductance_and_capacitance(Real inductance_uh, Real capacitance_pf);
TunedCircuit from_frequency_and_inductance(Real frequency_mhz, Real inductance_uh);
TunedCircuit from_frequency_and_capacitance(Real frequency_mhz, Real capacitance_pf);
/// @}

}  // namespace eterlab::coils
