#pragma once

#include <string>

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// The diameters of a conductor, as shares of the wavelength, for which the dimensions of an
/// antenna hold.
struct SuitableDiameter {
  double least_wavelengths;
  double greatest_wavelengths;

  /// A limit as the refusal tells it is admitted.
  [[nodiscard]] bool admits(Real diameter_mm, Real wavelength_m) const;
  /// What the user is told, the limits rounded inwards.
  [[nodiscard]] std::string refusal(Real wavelength_m) const;
};

}  // namespace eterlab::antennas
