#pragma once

#include "common/arithmetic.h"
#include "filters/attenuation.h"
#include "filters/lc_filters.h"

namespace eterlab::filters {

/// @name Response of LC filters
/// Of a filter of three elements without losses between equal resistances, however it was designed.
/// Everything is above zero. Source: the chain matrix. With f0 = 1 / (2 pi sqrt(L C)),
/// v = (f / f0)^2 and a = sqrt(L / C) / Z, the power ratio of a low-pass in pi form is
/// 1 + v / 4 (a - (2 - v) / a)^2. For the T form a is the inverse, for a high-pass v is.
/// @{

/// A filter as it was built.
struct ThreeElementFilter {
  PassBand band;
  FilterForm form;
  Real inductance_h;   ///< of each inductor
  Real capacitance_f;  ///< of each capacitor
  Real impedance_ohm;  ///< of source and load
};

/// Attenuation, in dB, never below 0.
Real attenuation_db(const ThreeElementFilter& filter, Real frequency_hz);

/// The outermost frequency with half of the power: the highest of a low-pass, the lowest of a
/// high-pass. To 1E-14 of it. Of a badly matched filter it bounds a narrow window near sqrt(2) f0.
Real cutoff_hz(const ThreeElementFilter& filter);

/// @}

}  // namespace eterlab::filters
