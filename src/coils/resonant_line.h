#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::coils {

/// What takes the place of a coil at UHF.
enum class LineConductor : std::uint8_t {
  rod_over_plane,    ///< by its diameter, and the height of its centre, half of that at least
  strip_over_plane,  ///< by its width and height; thin
  wire_fork,         ///< by its diameter, and the distance of the centres, that at least
};

/// Characteristic impedance in air. Source: see the geometry factors of lines.
Real line_impedance_ohm(LineConductor conductor, Real size_m, Real distance_m);

/// A line that is shorted at its cold end and tuned by a capacitor at its hot one.
struct ResonantLine {
  Real length_m;              ///< always less than a quarter wave
  Real inductance_h;          ///< that would resonate with the capacitor
  Real quarter_wavelength_m;  ///< in air
};

/// Source: the line's reactance Z0 tan(2 pi l / lambda) is that of the capacitor at resonance. The
/// fringing field of the hot end counts as part of the capacitance.
ResonantLine resonant_line(Real frequency_hz, Real capacitance_f, Real impedance_ohm);

}  // namespace eterlab::coils
