#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// Whole length of a half-wave folded dipole in metre, rounded to the centimetre: 142.5 / f. The
/// frequency must not be 0.
Single folded_dipole_length_m(Real frequency_mhz);

/// The two tubes of a folded dipole, of which the lower one is fed.
struct FoldedDipoleTubes {
  Real lower_diameter_mm;  ///< of the fed tube
  Real upper_diameter_mm;  ///< of the unbroken tube
  Real spacing_mm;         ///< between the axes of the tubes
};

/// What the second tube does to the impedance in the middle of the dipole.
struct ImpedanceStepUp {
  Real ratio;          ///< to the impedance of a plain dipole, rounded to one decimal
  Real impedance_ohm;  ///< of the folded dipole, from the rounded ratio and 75 ohm
};

/// How much two parallel tubes raise the impedance of a half-wave dipole, for thin tubes:
/// ratio = (1 + ln(2 s / d1) / ln(2 s / d2))^2, with d1 the fed tube (the step-up formula of
/// antenna handbooks). Both 2 s / d must be positive, and s not half of the upper diameter.
ImpedanceStepUp impedance_step_up(const FoldedDipoleTubes& tubes);

}  // namespace eterlab::antennas
