#pragma once

#include <string_view>

#include "antennas/verticals/tube.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// A quarter wave over four horizontal radials, and above it half waves, each joined through a
/// shorted quarter-wave stub that turns the phase.
struct CollinearVertical {
  Real base_element_m;       ///< over the radials
  Real half_wave_m;          ///< each of the half waves
  Real stub_m;               ///< length of a stub
  Real stub_width_m;         ///< opening between the sides of a stub
  Real radial_m;             ///< each of the four
  Real height_m;             ///< over the radials
  Real base_resistance_ohm;  ///< what is to be matched, without reactance
  std::string_view cable;    ///< of the matching section: its types
  Real cable_impedance_ohm;  ///< of the matching section
  Real section_m;            ///< a quarter wave in that cable
  Real gain_dbi;             ///< in free space
};

/// Of all conductors.
inline constexpr ThicknessRange collinear_thickness{0.0003, 0.004};

/// Of one or two half waves over the quarter wave, for a diameter that suits. Source of the
/// arrangement: C. S. Franklin's array; stubs, resistance and gain are fitted to numerical
/// solutions in free space (standing wave ratio at 50 ohm at most 1.17, gain within 0.2 dB).
CollinearVertical collinear_vertical(const Tube& tube, int half_waves);

}  // namespace eterlab::antennas
