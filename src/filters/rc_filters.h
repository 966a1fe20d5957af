#pragma once

#include "common/arithmetic.h"
#include "filters/attenuation.h"

namespace eterlab::filters {

/// @name RC filters
/// For audio: a cell of one resistor and one capacitor, the active cell of second order, the twin
/// T. Everything is above zero. They are fed by a source of low resistance and loaded by next to
/// nothing.
/// @{

/// 1 / (2 pi R C): the cut-off of a cell, the notch of a twin T.
Real rc_frequency_hz(Real resistance_ohm, Real capacitance_f);
/// The resistance that has this frequency with a capacitance.
Real rc_resistance_ohm(Real frequency_hz, Real capacitance_f);
/// The capacitance that has this frequency with a resistance.
Real rc_capacitance_f(Real frequency_hz, Real resistance_ohm);

/// The two parts that make the response of an active cell of second order and unity gain a
/// Butterworth one, Q = 1 / sqrt(2). Source: Sallen and Key, "A Practical Method of Designing RC
/// Active Filters", 1955.
struct ActiveCell {
  Real feedback;  ///< the part to the output
  Real shunt;     ///< the part to ground
};
/// Capacitances, in F, of a low-pass whose two resistors are equal: C sqrt(2) and C / sqrt(2) with
/// C = 1 / (2 pi f R).
ActiveCell active_low_pass_f(Real cutoff_hz, Real resistance_ohm);
/// Resistances, in ohm, of a high-pass whose two capacitors are equal: R / sqrt(2) and R sqrt(2)
/// with R = 1 / (2 pi f C).
ActiveCell active_high_pass_ohm(Real cutoff_hz, Real capacitance_f);

/// Attenuation, in dB, of a Butterworth filter: 3 dB at the cut-off, then 6 dB per octave and
/// order. The first order is an RC cell, the second an active cell.
Real butterworth_attenuation_db(PassBand band, int order, Real cutoff_hz, Real frequency_hz);

/// Attenuation, in dB, of a twin T of R, R and 2 C, and C, C and R / 2. At its notch it is
/// infinite: throws division_by_zero.
Real twin_t_attenuation_db(Real notch_hz, Real frequency_hz);

/// @}

}  // namespace eterlab::filters
