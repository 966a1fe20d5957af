#pragma once

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// Where a tuned circuit resonates.
struct HandbookResonance {
  Real frequency_khz;    ///< of resonance
  Real wavelength_m;     ///< in free space
  Single reactance_ohm;  ///< of the inductor and of the capacitor alike
};

/// Where an inductor and a capacitor resonate. The product of the two must be positive. Source:
/// Thomson's formula f = 1 / (2 pi sqrt(L C)), with 2 pi rounded to 6.283184 for the frequency, to
/// 6.28318 for the reactance, and the wavelength 2 pi c sqrt(L C) to 1.885 m per root of microhenry
/// times picofarad.
HandbookResonance handbook_resonance(Real inductance_uh, Real capacitance_pf);

}  // namespace eterlab::circuits
