#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A short thick tube, a coil under it, and a length of the cable itself, ended by a choke, as its
/// counterpoise.
struct Microvert {
  Real tube_capacitance_pf;   ///< of the tube
  Real inductance_uh;         ///< of the coil
  Real counterpoise_m;        ///< of the cable, up to the choke
  int choke_turns;            ///< of RG 58, side by side on a diameter of 100 mm: 1000 ohm or more
  Real input_resistance_ohm;  ///< at resonance
  Real standing_wave_ratio;   ///< of that at 50 ohm
  Real matched_series_uh;     ///< the coil that takes the other one's place for an exact match ...
  Real matched_shunt_uh;      ///< ... with this one between the conductors of the cable
};

/// Length of the tube for a frequency above zero: 4.7 / f. Source: the designer's rule, Juergen
/// Schaefer DL7PE.
Real microvert_tube_m(Real frequency_mhz);

/// @{
/// The diameters for which the tube's capacitance is known: from 1/150 to 1/6 of its length.
Real thinnest_microvert_mm(Real frequency_mhz);
/// @copydoc thinnest_microvert_mm
Real thickest_microvert_mm(Real frequency_mhz);
/// @}

/// For 1.8 to 30 MHz and a tube between the thinnest and the thickest. The capacitance is midway
/// between the tube alone in space and over a ground plane, the counterpoise a resonant quarter
/// wave of braid in PVC; radiation by a moment-method solution, the coil with a Q of 200.
Microvert microvert(Real frequency_mhz, Real tube_diameter_mm);

}  // namespace eterlab::antennas
