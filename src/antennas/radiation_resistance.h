#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// @name Radiation resistance
/// Of thin antennas in free space, or over ground that conducts perfectly, with a current like a
/// sine that ends at the tips. Lengths are in wavelengths, above zero. Source: the power through a
/// large sphere, as in Balanis, Antenna Theory; to 1E-8.
/// @{

inline constexpr double shortest_dipole_wavelengths = 0.005;  ///< for which that is of use
inline constexpr double longest_dipole_wavelengths = 1.25;    ///< for which that is of use

/// A dipole.
struct DipoleRadiation {
  Real loop_resistance_ohm;  ///< as of the highest current of the sine
  /// As of the current at the feed point. None next to whole wavelengths, where that current has
  /// less than a hundredth of the power of the highest one.
  std::optional<Real> centre_resistance_ohm;
  Real gain_dbi;  ///< broadside
};

/// Of a dipole fed in its middle.
DipoleRadiation dipole_radiation(Real length_wavelengths);
/// The loop resistance alone.
Real dipole_loop_resistance_ohm(Real length_wavelengths);

/// Of a vertical at its base, over ground. None next to multiples of half a wave, as that of a
/// dipole's centre.
std::optional<Real> vertical_base_resistance_ohm(Real height_wavelengths);

/// @}

}  // namespace eterlab::antennas
