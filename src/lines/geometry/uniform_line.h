#pragma once

#include "common/arithmetic.h"

namespace eterlab::lines {

/// @name Lossless lines
/// Of a uniform cross-section, with a wave that is purely transverse (TEM). Source: transmission
/// line theory; any text, for example Pozar, Microwave Engineering.
/// @{

/// Speed of a wave over that of light, in a medium that fills the whole cross-section.
Real velocity_factor(Real relative_permittivity);

/// One conductor against a screen or ground, by its geometry factor.
Real single_ended_impedance_ohm(Real geometry_factor, Real velocity_factor);
/// Two conductors in push-pull, by their geometry factor.
Real push_pull_impedance_ohm(Real geometry_factor, Real velocity_factor);
/// The geometry factor of one conductor with that impedance.
Real single_ended_geometry_factor(Real impedance_ohm, Real velocity_factor);
/// The geometry factor of two conductors with that impedance.
Real push_pull_geometry_factor(Real impedance_ohm, Real velocity_factor);

/// A line's capacitance and inductance.
struct LineConstants {
  Real capacitance_f_per_m;  ///< 1 / (Z c v)
  Real inductance_h_per_m;   ///< Z / (c v)
};
/// Of a line of that impedance.
LineConstants line_constants(Real impedance_ohm, Real velocity_factor);

/// @}

/// What the near end of a piece of line shows, shorter than a quarter wave: more inductance and
/// capacitance than its length times those of a metre.
struct LineStub {
  Real shorted_reactance_ohm;  ///< inductive, with its far end shorted
  Real shorted_inductance_h;   ///< the coil of that reactance
  Real open_reactance_ohm;     ///< capacitive, with its far end open; above zero
  Real open_capacitance_f;     ///< the capacitor of that reactance
};

/// A piece of lossless line. Source: Terman, Radio Engineers' Handbook, X = Z tan(theta) and
/// Z / tan(theta).
struct LinePiece {
  Real impedance_ohm;    ///< characteristic
  Real velocity_factor;  ///< above 0, up to 1
  Real length_m;         ///< above 0

  /// Electrical length at a frequency.
  [[nodiscard]] Real angle_degrees(Real frequency_hz) const;
  /// At a frequency at which the electrical length is below 90 degrees.
  [[nodiscard]] LineStub stub(Real frequency_hz) const;
};

}  // namespace eterlab::lines
