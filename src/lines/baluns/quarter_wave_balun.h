#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::lines {

/// What makes a quarter wave of line with the outside of a cable's braid.
enum class QuarterWaveBalunKind : std::uint8_t {
  pawsey_stub,  ///< a rod or a cable of the same diameter beside it
  sleeve,       ///< a tube around it
};

/// A 1:1 balun, a shorted quarter wave outside the feed cable.
struct QuarterWaveBalun {
  Real length_m;               ///< of the stub or sleeve
  Real impedance_ohm;          ///< of the outer line
  Real lowest_frequency_mhz;   ///< of the useful band
  Real highest_frequency_mhz;  ///< of the useful band
};

/// The spacing of the axes, or the inner diameter of the sleeve, is above the braid's diameter; the
/// velocity factor is that of the line outside the braid, not that within the cable. In the useful
/// band the stub has at least five times the cable's impedance. Source: Kraus, Antennas; Jasik,
/// Antenna Engineering Handbook.
QuarterWaveBalun quarter_wave_balun(QuarterWaveBalunKind kind, Real frequency_mhz, Real cable_ohm,
                                    Real braid_diameter_mm, Real spacing_mm, Real velocity_factor);

}  // namespace eterlab::lines
