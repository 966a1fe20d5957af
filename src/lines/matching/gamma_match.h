#pragma once

#include "common/arithmetic.h"

namespace eterlab::lines {

/// A gamma match: a rod beside a half-wave radiator, joined to it by a sliding strap and fed in its
/// centre through a series capacitor.
struct GammaMatch {
  Real wavelength_m;     ///< in free space
  Real rod_length_cm;    ///< from the centre of the radiator to the strap
  Real spacing_cm;       ///< between the axes of rod and radiator
  Real capacitance_pf;   ///< of the series capacitor, a whole number
  Real cable_length_cm;  ///< of RG 8/213 cable that serves as the capacitor, a whole number
};

/// The match for a positive frequency. Source: the antenna handbooks' rule of thumb, by which a rod
/// of 1/16 of the wavelength is spaced by 0.7 % of it and tuned with 7 pF per metre of it. The
/// capacitance is taken in single precision and rounded to a 16-bit whole number, ties to even,
/// which overflows below some 64 kHz. The cable has 0.97 pF per centimetre and is one centimetre
/// longer than that asks for.
GammaMatch gamma_match(Real frequency_mhz);

}  // namespace eterlab::lines
