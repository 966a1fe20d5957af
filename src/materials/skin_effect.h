#pragma once

#include "common/arithmetic.h"
#include "common/complex.h"

namespace eterlab::materials {

/// @name Skin effect
/// In conductors that are not magnetic. Source: Ramo, Whinnery, Van Duzer, Fields and Waves in
/// Communication Electronics.
/// @{

/// Depth at which the density of an alternating current has fallen to 1/e of that at the surface:
/// sqrt(rho / (pi f mu0)). Resistivity and frequency above zero.
Real skin_depth_m(Real resistivity_ohm_m, Real frequency_hz);

/// Resistance of a square of a surface that is many skin depths thick: rho / delta.
Real surface_resistance_ohm(Real resistivity_ohm_m, Real frequency_hz);

/// Internal impedance of a straight round wire relative to its resistance in direct current, by its
/// radius in skin depths, from 0: (k a / 2) J0(k a) / J1(k a) with k a = (1 - j) a / delta. The
/// real part tells the rise of resistance, the imaginary one the reactance of the field inside the
/// wire. To 1E-9 up to 30 skin depths and 1E-6 beyond.
Complex round_wire_impedance_ratio(Real radius_in_skin_depths);

/// @}

}  // namespace eterlab::materials
