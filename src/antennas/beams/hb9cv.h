#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A beam of two driven elements an eighth of a wave apart, grounded in their middle and fed by two
/// rods joined by a phasing line.
struct Hb9cv {
  Real reflector_m;      ///< from tip to tip
  Real director_m;       ///< from tip to tip
  Real spacing_m;        ///< between the two
  Real reflector_tap_m;  ///< of its rod, from the boom
  Real director_tap_m;   ///< of its rod, from the boom
  Real rod_diameter_m;   ///< of rods and phasing line
  Real rod_height_m;     ///< of their axes over those of elements and boom
  Real capacitance_f;    ///< in series, for 50 ohm
};

/// For elements of a diameter from 0.0003 to 0.006 wavelengths. Source: R. Baumgartner, HB9CV, as
/// in Rothammel, Antennenbuch; what depends on the diameter is a fit to NEC-2 models of the whole
/// antenna, 50 ohm within 3.5 %, the capacitor up to 16 % too small.
Hb9cv hb9cv(Real wavelength_m, Real element_diameter_m);

}  // namespace eterlab::antennas
