#pragma once

#include "antennas/thickness_range.h"
#include "antennas/wavelength.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// The bare tube, rod or wire that an antenna is made of.
struct Tube {
  Real diameter_mm;    ///< above zero
  Real frequency_mhz;  ///< above zero, of the antenna

  /// In vacuum.
  [[nodiscard]] Real wavelength_m() const { return antennas::wavelength_m(frequency_mhz); }
  /// The diameter over the wavelength.
  [[nodiscard]] Real thickness() const { return diameter_mm / 1000 / wavelength_m(); }
};

/// What depends on the thickness of a tube: p0 + p1 x + p2 x^2, where x is the logarithm of the
/// wavelength over the diameter. Fitted to numerical solutions (method of moments) of antennas in
/// free space.
struct ThicknessFit {
  double p0;
  double p1;
  double p2;

  /// For a tube of the fit's range.
  [[nodiscard]] Real operator()(const Tube& tube) const;
};

/// Resonant length of a half wave. Within 0.7 % of numerical solutions for a thickness from 0.0001
/// to 0.01.
Real resonant_half_wave_m(const Tube& tube);

}  // namespace eterlab::antennas
