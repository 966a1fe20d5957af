#pragma once

#include "antennas/antenna_wire.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// @name Full-wave square loops
/// Of wire on crossed spreaders.
/// @{

/// Perimeter of a square loop alone in space at resonance, for diameters from 1E-5 to 1E-2
/// wavelengths. Source: a fit to NEC-2, within 0.2 %.
Real quad_loop_perimeter_m(const AntennaWire& wire);

/// A spreader's arm, from the hub to a corner of a square of that perimeter.
Real spreader_arm_m(Real perimeter_m);

/// A quarter wave of coaxial cable insulated with solid polyethylene.
Real quarter_wave_cable_m(Real wavelength_m);

/// @}

}  // namespace eterlab::antennas
