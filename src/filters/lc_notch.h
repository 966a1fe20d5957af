#pragma once

#include "common/arithmetic.h"

namespace eterlab::filters {

/// @name LC notch
/// A trap of one coil and one capacitor that takes a frequency out of a line between equal
/// resistances. Everything is above zero. Source: nodal analysis. With B the band that a trap
/// without losses attenuates by 3 dB or more, and Q the quality factor of its coil, both forms have
/// the response |1 + (B / f0) / (1 / Q + j (f / f0 - f0 / f))|.
/// @{

/// How the coil and the capacitor of a trap stand to the line.
enum class TrapForm : unsigned char {
  series_to_ground,  ///< both in series, across the line
  parallel_in_line,  ///< both in parallel, in series with the line
};

/// What a notch is for.
struct NotchTask {
  Real frequency_hz;   ///< to be taken out
  Real bandwidth_hz;   ///< at 3 dB
  Real impedance_ohm;  ///< of the line: source and load
};

/// The parts of a trap.
struct Trap {
  Real inductance_h;   ///< of the coil
  Real capacitance_f;  ///< of the capacitor
};
/// In series to ground L = Z / (4 pi B), parallel in the line C = 1 / (4 pi B Z); the other part by
/// resonance.
Trap trap(TrapForm form, const NotchTask& task);

/// Where a trap without losses attenuates by 3 dB. Their geometric mean is the frequency taken out.
struct NotchEdges {
  Real lower_hz;  ///< sqrt(f0^2 + B^2 / 4) - B / 2
  Real upper_hz;  ///< sqrt(f0^2 + B^2 / 4) + B / 2
};
/// Of any ratio of bandwidth and frequency.
NotchEdges notch_edges(const NotchTask& task);

/// Attenuation, in dB, of a trap in either form at any frequency above zero: by a coil of finite Q
/// it is greatest, and finite, at the frequency to be taken out.
Real notch_attenuation_db(const NotchTask& task, Real coil_quality_factor, Real frequency_hz);

/// @}

}  // namespace eterlab::filters
