#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// The conductor that an antenna is made of, for its wavelength.
struct AntennaWire {
  Real wavelength_m;          ///< in air
  Real diameter_m;            ///< of the metal, without what covers it
  bool is_insulated = false;  ///< covered with PVC, as flexible wire of 1 to 2.5 mm2 is
};

/// Its diameter as a share of the wavelength.
Real diameter_wavelengths(const AntennaWire& wire);

/// By how much its cover shortens a resonant length: 1 for a bare wire. For diameters below 0.04
/// wavelengths. Source: the inductance per metre that a thin sleeve adds to a wire, mu0 / (2 pi)
/// (1 - 1 / epsilon_r) ln(b / a), of epsilon_r = 3 and b / a = 1.9 (K. S. H. Lee, G. Balmain, Radio
/// Science 4, 1969), over the wire's own, mu0 / (2 pi) (ln(lambda / d) - 2.04); the 2.04 is a fit
/// to NEC-2, within 0.05 % of the length of resonant loops.
Real shortening_by_cover(const AntennaWire& wire);

}  // namespace eterlab::antennas
