#pragma once

#include <optional>

#include "common/complex.h"

namespace eterlab::circuits {

/// @name Parts at one frequency
/// Frequency, inductance and capacitance above zero. Impedances add up in series; for those side by
/// side there is parallel().
/// @{

/// Magnitude of the reactance, X = 2 pi f L.
Real inductive_reactance_ohm(Real frequency_hz, Real inductance_h);
/// Magnitude of the reactance, X = 1 / (2 pi f C).
Real capacitive_reactance_ohm(Real frequency_hz, Real capacitance_f);

/// Impedance of a lossless coil, j X.
Complex inductor_ohm(Real frequency_hz, Real inductance_h);
/// Impedance of a lossless capacitor, -j X.
Complex capacitor_ohm(Real frequency_hz, Real capacitance_f);
/// Resistance in series that gives a coil its Q, X / Q. Q above zero.
Real coil_loss_ohm(Real frequency_hz, Real inductance_h, Real quality_factor);

/// @}

/// A lossless coil and capacitor together, at one frequency.
struct LosslessPair {
  Real inductive_ohm;   ///< magnitude of the coil's reactance
  Real capacitive_ohm;  ///< magnitude of the capacitor's reactance
  /// Of both together, positive where they act as a coil. None where they resonate: where the two
  /// reactances differ by less than one part in a million.
  std::optional<Real> reactance_ohm;
};

/// In series: X = XL - XC.
LosslessPair lossless_in_series(Real frequency_hz, Real inductance_h, Real capacitance_f);
/// Side by side: 1 / X = 1 / XL - 1 / XC.
LosslessPair lossless_in_parallel(Real frequency_hz, Real inductance_h, Real capacitance_f);

/// The coil that has a reactance at a frequency, both above zero.
Real inductance_of_reactance_h(Real frequency_hz, Real reactance_ohm);
/// The capacitor that has a reactance, told as its magnitude, at a frequency, both above zero.
Real capacitance_of_reactance_f(Real frequency_hz, Real reactance_ohm);

/// A lossless coil and capacitor in series as a trap: nothing at all at its resonance, where less
/// than 1E-9 of the coil's reactance is left.
Complex trap_ohm(Real frequency_hz, Real inductance_h, Real capacitance_f);

/// A resistor, coil and capacitor side by side, all above zero: 1 / Z = 1 / R + 1 / jX + j w C.
Complex parallel_rlc_ohm(Real frequency_hz, Real inductance_h, Real capacitance_f,
                         Real resistance_ohm);
/// The same in series: Z = R + j (XL - XC).
Complex series_rlc_ohm(Real frequency_hz, Real inductance_h, Real capacitance_f,
                       Real resistance_ohm);

/// An impedance as it is to be told: a part smaller than 1E-9 of the magnitude is zero.
Complex without_negligible_part(Complex impedance_ohm);

}  // namespace eterlab::circuits
