#pragma once

#include "common/arithmetic.h"

namespace eterlab::lines {

/// A run of line at a frequency. Source: IEC 60050-726, degrees = 360 l / lambda.
struct LineRun {
  Real frequency_mhz;    ///< of the wave
  Real length_m;         ///< of the line itself
  Real degrees;          ///< electrical length
  Real velocity_factor;  ///< above 0, up to 1

  /// What part of a wave it is long.
  [[nodiscard]] Real waves() const { return degrees / 360; }
  [[nodiscard]] Real radians() const;
  /// How long a wave takes.
  [[nodiscard]] Real delay_s() const;
  /// In the line.
  [[nodiscard]] Real wavelength_m() const;
  /// How long it is for a wave in air of the same delay.
  [[nodiscard]] Real length_in_air_m() const { return length_m / velocity_factor; }
};

/// @name Runs of line
/// Of which one quantity follows from the others, all above zero.
/// @{

/// From the length.
LineRun run_of_length(Real frequency_mhz, Real length_m, Real velocity_factor);
/// From the electrical length.
LineRun run_of_degrees(Real frequency_mhz, Real degrees, Real velocity_factor);
/// At the frequency at which a length has so many degrees.
LineRun run_of_length_and_degrees(Real length_m, Real degrees, Real velocity_factor);

/// @}

/// A cable cut to a whole number of pieces.
struct CableCut {
  Real pieces;    ///< how many, a whole number
  Real length_m;  ///< of all of them
};
/// The first whole number of half waves not shorter than a run: it repeats the impedance at its
/// end.
CableCut half_wave_cut(const LineRun& run);
/// The first odd number of quarter waves not shorter than a run: it inverts that impedance.
CableCut odd_quarter_wave_cut(const LineRun& run);

}  // namespace eterlab::lines
