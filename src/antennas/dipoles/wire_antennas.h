#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// @name Resonant wires
/// Lengths in metre. Factors are the usual ones of amateur handbooks: the wavelength 300 / f,
/// shortened for the effect of the wire's ends. The frequency must not be 0.
/// @{

/// One arm, a quarter wave, of a flat half-wave dipole: 71.3 / f.
Real dipole_arm_m(Single frequency_mhz);

/// One arm of a half-wave dipole hung as an inverted V, whose sloping arms are cut shorter: 71 / f.
Single inverted_v_arm_m(Single frequency_mhz);

/// A wire of so many half waves, of which only the outermost feel the effect of the ends:
/// 150 (N - 0.05) / f.
Real harmonic_wire_m(Real half_waves, Real frequency_mhz);

/// @}

}  // namespace eterlab::antennas
