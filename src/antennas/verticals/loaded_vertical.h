#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A vertical radiator shorter than a quarter wave, with a loading coil in it.
struct LoadedVertical {
  Real length_m;         ///< from the base to the tip
  Single coil_height_m;  ///< from the base to the coil
  Real diameter_mm;      ///< of the radiator
  Real frequency_mhz;    ///< of resonance
};

/// Whether radiator and image together reach the half wave, 142 over the frequency in MHz. The
/// frequency must not be 0.
bool reaches_half_wave(const LoadedVertical& antenna);

/// Whether the coil stands at the tip or above it, compared in the precision of the coil's height.
bool has_coil_beyond_tip(const LoadedVertical& antenna);

/// @name Of an antenna to be loaded
/// For positive dimensions with the coil below the tip and an antenna that does not reach the half
/// wave. Outside of that these compute what can be computed; the logarithm of a negative number and
/// a division by zero are faults.
/// @{

/// Inductance of the coil that brings the antenna to resonance: it makes up for what the part above
/// it lacks to a full quarter wave. Source: the antenna handbooks' formula for dipoles with two
/// loading coils, in feet and inches, with pi taken as 3.14.
Real loading_inductance_uh(const LoadedVertical& antenna);

/// Length of the radiator in degrees of a wavelength of 300 m over the frequency.
Real electrical_length_degrees(const LoadedVertical& antenna);

/// Radiation resistance, roughly: the square of 24 times the length in wavelengths. The wavelength
/// is taken in single precision.
Real radiation_resistance_ohm(const LoadedVertical& antenna);

/// Length of a radial, a quarter of a wave.
Real radial_length_m(Real frequency_mhz);

/// @}

}  // namespace eterlab::antennas
