#pragma once

#include "common/arithmetic.h"
#include "materials/metals.h"

namespace eterlab::materials {

/// @name Round wires in direct current and at low frequencies
/// @{

/// Section of a round rod or wire.
Real round_section_mm2(Real diameter_mm);

/// Resistance of a metal at a temperature, relative to that at 20 degrees Celsius:
/// 1 + alpha (T - 20). Right to a few per cent from some -70 to 200 degrees, of iron to 80, and
/// only where it is above zero: of iron it is not below some -180 degrees.
Real temperature_factor(const Metal& metal, Real temperature_c);

/// Resistance at 20 degrees Celsius of a conductor of constant section, which must not be zero.
Real resistance_ohm(const Metal& metal, Real section_mm2, Real length_m);

/// @}

}  // namespace eterlab::materials
