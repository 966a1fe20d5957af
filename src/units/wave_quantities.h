#pragma once

#include "common/arithmetic.h"

namespace eterlab::units {

/// @name Waves
/// Four ways to tell how fast something oscillates, the wavelength in vacuum. All of them are above
/// zero; the one that is given stays as it is.
/// @{

/// The same wave told in each way.
struct WaveQuantities {
  Real wavelength_m;                 ///< c / f
  Real frequency_hz;                 ///< f
  Real angular_frequency_rad_per_s;  ///< 2 pi f
  Real period_s;                     ///< 1 / f
};

/// From a wavelength.
WaveQuantities wave_of_wavelength(Real wavelength_m);
/// From a frequency.
WaveQuantities wave_of_frequency(Real frequency_hz);
/// From an angular frequency.
WaveQuantities wave_of_angular_frequency(Real angular_frequency_rad_per_s);
/// From a period.
WaveQuantities wave_of_period(Real period_s);

/// @}

}  // namespace eterlab::units
