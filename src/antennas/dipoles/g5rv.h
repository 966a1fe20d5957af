#pragma once

#include "antennas/dipoles/ladder_line.h"
#include "common/arithmetic.h"
#include "common/complex.h"

namespace eterlab::antennas {

/// A doublet of three half waves with a line of a half wave. Source: L. Varney (G5RV), Radio
/// Communication, July 1984: 150 (3 - 0.05) / f.
struct G5rv {
  Real antenna_m;  ///< both arms
  Real line_m;     ///< of the two-wire line
  Real diameter_mm;
  LadderLine line;

  /// In the middle of the antenna. Source: straight_wire.h.
  [[nodiscard]] Complex centre_impedance_ohm(Real frequency_mhz) const;
  /// At the lower end of the line, which has no loss, with that impedance at its upper one.
  [[nodiscard]] Complex line_impedance_ohm(Complex centre_ohm, Real frequency_mhz) const;
};

/// For the frequency of the three half waves, from 7 to 30 MHz; wire of at most 1/400 of the
/// wavelength.
G5rv g5rv(Real design_mhz, Real diameter_mm, const LadderLine& line);

}  // namespace eterlab::antennas
