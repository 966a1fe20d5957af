#pragma once

#include "antennas/dipoles/ladder_line.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A dipole for two bands whose inner arms are of two-wire line, bridged a quarter wave before
/// their outer end, where one wire stops and the other goes on as the outer wire.
struct LinearTrapDipole {
  Real line_m;              ///< of each arm
  Real bridge_m;            ///< from the outer end of the line
  Real outer_m;             ///< of each arm; below 0 where the bands are too near to each other
  Real trap_reactance_ohm;  ///< in the lower band
};

/// Whether a line does for the higher band: its wires not further apart than 1/80 of the
/// wavelength, the bridge before the middle.
bool suits_linear_trap(const LadderLine& line, Real high_mhz);

/// The lower frequency at most 0.9 of the higher one, for which the line does. Sources: decoupling
/// stubs, G. Lattin, QST, December 1960; the mean characteristic impedances of wires, S. A.
/// Schelkunoff. Within 0.9 % of NEC-2 with both wires of the line, bare, in both resonances.
LinearTrapDipole linear_trap_dipole(const LadderLine& line, Real high_mhz, Real low_mhz,
                                    Real outer_diameter_mm);

}  // namespace eterlab::antennas
