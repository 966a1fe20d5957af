#pragma once

#include <optional>

#include "antennas/straight_wire.h"

namespace eterlab::antennas {

/// A half-wave dipole with its feeder elsewhere than in the middle.
struct OffCentreDipole {
  Real half_m;  ///< of its length
  Real tap_m;   ///< from the middle

  /// At the tap, where the wire is cut.
  [[nodiscard]] Complex impedance_ohm(const Conductor& conductor) const;
};

/// Where a single wire of an impedance is attached without standing waves. None where the impedance
/// is too high for the conductor. Source: W. L. Everitt and J. F. Byrne, Proc. IRE, 1929: the wire
/// takes its power by the voltage against the neutral, I0 Za sin(pi x / 2h), of arms of the mean
/// characteristic impedance Za.
std::optional<OffCentreDipole> single_wire_tap(Real feeder_ohm, const Conductor& conductor);

/// Where the cut wire shows a resistance and no reactance, its length adapted to the tap. The
/// resistance is above that of the middle. None where no tap up to 0.85 of an arm has it. Within
/// 1.4 % of NEC-2 in resistance.
std::optional<OffCentreDipole> cut_wire_tap(Real resistance_ohm, const Conductor& conductor);

}  // namespace eterlab::antennas
