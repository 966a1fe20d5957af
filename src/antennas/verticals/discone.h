#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A disc over a cone with 60 degrees at its apex, fed between them.
struct Discone {
  Real slant_m;          ///< along the cone, a quarter of the longest wave
  Real base_m;           ///< lower diameter of the cone
  Real cone_height_m;    ///< upright
  Real disc_diameter_m;  ///< 0.7 of the base
  Real gap_m;            ///< between disc and cone, 0.3 of the upper diameter
};

/// Up to how many times its lowest frequency it can be used, roughly.
inline constexpr double discone_bandwidth = 8;
/// The widest top of the cone for which the dimensions hold.
inline constexpr double widest_discone_top_wavelengths = 1.0 / 16;

/// From the wavelength at the lowest frequency and the upper diameter of the cone, both above zero,
/// this at most widest_discone_top_wavelengths. Source: J. J. Nail, "Designing Discone Antennas",
/// Electronics, August 1953.
Discone discone(Real longest_wavelength_m, Real top_diameter_m);

}  // namespace eterlab::antennas
