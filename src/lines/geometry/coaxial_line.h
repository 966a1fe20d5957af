#pragma once

#include "common/arithmetic.h"

namespace eterlab::lines {

/// @name Coaxial lines
/// A round conductor in a round screen, filled with a dielectric. Its impedance is that of its
/// coaxial_factor().
/// @{

/// The conductor that gives a geometry factor in a screen: D exp(-X).
Real coaxial_inner_diameter(Real screen_diameter, Real geometry_factor);
/// The inner diameter of the screen that gives a geometry factor around a conductor: d exp(X).
Real coaxial_screen_diameter(Real diameter, Real geometry_factor);

/// Up to here no wave but the wanted one can travel: 0.9 times the usual approximation of the
/// cutoff of the first waveguide mode TE11, 2 c / (pi sqrt(er) (D + d)), and always below the exact
/// one. Source: Pozar, Microwave Engineering.
Real coaxial_highest_frequency_hz(Real diameter_m, Real screen_diameter_m,
                                  Real relative_permittivity);

/// @}

}  // namespace eterlab::lines
