#pragma once

#include "common/arithmetic.h"
#include "common/complex.h"
#include "common/physics.h"

namespace eterlab::lines {

/// @name Sections of lossless line
/// Their lengths are electrical, in radians at the frequency that they are cut for. Source:
/// transmission line theory; any text, for example Pozar, Microwave Engineering.
/// @{

/// Degrees in an angle of one radian.
inline constexpr double degrees_in_radian = 180 / pi;
/// The electrical length of a quarter wave.
inline constexpr double quarter_wave = pi / 2;

/// Of a wave in a line whose velocity factor is above 0 and at most 1.
Real wavelength_in_line_m(Real frequency_mhz, Real velocity_factor);

/// A piece of line between others.
struct LineSection {
  Real impedance_ohm;  ///< characteristic
  Real angle;          ///< electrical length

  /// What it shows with a load at its far end, which must not be a pure reactance, at a frequency
  /// so many times that it is cut for.
  [[nodiscard]] Complex input_impedance_ohm(Complex load_ohm, Real frequency_ratio = 1) const;
};

/// What a quarter wave makes of a resistance: Z^2 / R.
Real quarter_wave_input_ohm(Real impedance_ohm, Real load_ohm);
/// The line that turns one resistance into another by a quarter wave: their geometric mean.
Real quarter_wave_impedance_ohm(Real load_ohm, Real input_ohm);

/// How the far end of a stub is left.
enum class StubEnd : bool { shorted, open };

/// A piece of line across another one.
struct Stub {
  StubEnd end;       ///< the far one
  LineSection line;  ///< itself, longer than 0

  /// At a frequency so many times that it is cut for.
  [[nodiscard]] Complex admittance(Real frequency_ratio = 1) const;
};

/// @}

}  // namespace eterlab::lines
