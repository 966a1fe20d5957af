#pragma once

#include "common/arithmetic.h"

namespace eterlab::signals {

/// @name Can feeds
/// A tin can, closed at one end, as a circular waveguide that lights a dish. All arguments must be
/// above zero. Source: N. Marcuvitz, Waveguide Handbook.
/// @{

/// What a can lets through.
struct CanCutoffs {
  Real te11_hz;  ///< lowest frequency of all
  Real tm01_hz;  ///< lowest of the next mode, which spoils the pattern
};

/// Of a can by its inner diameter.
CanCutoffs can_cutoffs(Real inner_diameter_m);

/// Whether a frequency is far enough above the TE11 cut-off, 1.001 times, to build for.
bool can_carries(Real inner_diameter_m, Real frequency_hz);
/// The smallest whole number of millimetres that do.
Real smallest_can_mm(Real frequency_hz);

/// The lengths of a feed.
struct CanFeed {
  Real guide_wavelength_m;   ///< in the can
  Real probe_from_bottom_m;  ///< a quarter of it
  Real probe_length_m;       ///< a quarter of a wave in air, less 5 %
  Real can_length_m;         ///< at least, three quarters of the wavelength in the can
};

/// Of a can that carries the frequency; at or below its cut-off there is a fault.
CanFeed can_feed(Real inner_diameter_m, Real frequency_hz);

/// @}

}  // namespace eterlab::signals
