#pragma once

#include <array>

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A rod of a Yagi beam, in whole centimetres.
struct YagiElement {
  Real length_cm;   ///< from tip to tip
  Real spacing_cm;  ///< from the element before; 0 for the reflector
};

/// @name Yagi beams
/// For a positive frequency, all elements grounded in their middle. Lengths are a constant over the
/// frequency, spacings a fraction of the wavelength of 30000 cm over the frequency in MHz. Source:
/// the usual dimensions of the antenna handbooks; each beam has its own.
/// @{

/// Reflector, radiator, director; some 6 to 7 dB over a dipole.
std::array<YagiElement, 3> three_element_yagi(Real frequency_mhz);
/// Reflector, radiator, first to third director; some 9 dB over a dipole.
std::array<YagiElement, 5> five_element_yagi(Real frequency_mhz);

/// @}

}  // namespace eterlab::antennas
