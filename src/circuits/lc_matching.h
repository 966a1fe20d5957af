#pragma once

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// @name Networks that match two resistances at one frequency
/// Lossless, from an input to an output resistance, both above zero. Reactances are magnitudes.
/// Source: ARRL Handbook; W. L. Everitt.
/// @{

/// Two parts.
struct LSection {
  Real quality_factor;  ///< sqrt(Rh / Rl - 1), not to be chosen
  Real series_ohm;      ///< Q Rl
  Real shunt_ohm;       ///< Rh / Q, across the larger resistance
};
/// Wants resistances that differ.
LSection l_section(Real input_ohm, Real output_ohm);

/// Three parts, from the input to the output.
struct ThreePartSection {
  Real first_ohm;
  Real middle_ohm;
  Real last_ohm;
};
/// Shunt, series, shunt. The quality factor is that of the side with the larger resistance, from
/// least_section_q() on.
ThreePartSection pi_section(Real input_ohm, Real output_ohm, Real quality_factor);
/// Series, shunt, series. The quality factor is that of the side with the smaller resistance, from
/// least_section_q() on.
ThreePartSection t_section(Real input_ohm, Real output_ohm, Real quality_factor);
/// The least quality factor to choose, to two decimals: a little above that of the L section, where
/// one part of three would vanish.
Real least_section_q(Real input_ohm, Real output_ohm);

/// @}

}  // namespace eterlab::circuits
