#pragma once

#include <string>

#include "antennas/thickness_range.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// Whether a conductor is neither too thin nor too thick at a wavelength; a limit as the refusal
/// tells it is suitable.
bool is_suitable(Real diameter_mm, const ThicknessRange& range, Real wavelength_m);
/// What the user is told, the limits rounded inwards.
std::string diameter_refusal(const ThicknessRange& range, Real wavelength_m);

}  // namespace eterlab::antennas
