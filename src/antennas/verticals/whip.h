#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A rod over a ground plane, its base on the level of the plane.
struct Whip {
  Real height_m;     ///< above zero
  Real diameter_mm;  ///< above zero
};

/// Whether its formulas hold: it must be at least 20 diameters high.
bool is_slender(const Whip& whip);

/// @name Of a slender whip
/// Frequencies are above zero.
/// @{

/// Angle of a wave over its height.
Real electrical_height_rad(const Whip& whip, Real frequency_mhz);

/// Capacitance at rest, 2 pi epsilon0 h / (ln(2 h / d) - 1). Source: G. W. O. Howe's average
/// potential; some percent low.
Real static_capacitance_pf(const Whip& whip);

/// Average characteristic impedance, 60 (ln(2 h / d) - 1). Source: Howe's capacitance.
Real characteristic_impedance_ohm(const Whip& whip);

/// Magnitude of the reactance at the base while that is capacitive; not above zero beyond. For less
/// than a quarter wave. Source: an open line after S. A. Schelkunoff, and a term that brings a
/// quarter wave to its +21.25 ohm; within some 2 % of a numerical solution from 7 to 76 degrees.
Real capacitive_reactance_ohm(const Whip& whip, Real frequency_mhz);

/// How fast that falls with frequency, f times its slope: positive.
Real reactance_slope_ohm(const Whip& whip, Real frequency_mhz);

/// Whether it is a capacitance at a frequency: shorter than a quarter wave and below its own
/// resonance.
bool is_capacitive(const Whip& whip, Real frequency_mhz);

/// Where it resonates by itself, a little below a quarter wave.
Real self_resonance_mhz(const Whip& whip);

/// Radiation resistance at the base, for a sinusoidal current and a height below half a wave. The
/// integral of the Poynting vector over the half space (J. D. Kraus, "Antennas").
Real whip_radiation_resistance_ohm(Real electrical_height_rad);

/// @}

}  // namespace eterlab::antennas
