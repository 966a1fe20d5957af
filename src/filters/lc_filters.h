#pragma once

#include "common/arithmetic.h"

namespace eterlab::filters {

/// @name LC filters
/// Passive filters between equal resistances, image-parameter design. Frequencies in MHz must not
/// be zero and neither must impedances, since both are divided by; their signs are not looked at.
/// Sources: Zobel's constant-k and m-derived sections, with pi and the powers of ten of the units
/// folded into rounded factors.
/// @{

/// Where the two equal elements of three stand: across the ends (pi) or in series (T).
enum class FilterForm : unsigned char { pi, tee };

/// The values of a filter of three elements: each kind of element has one.
struct FilterElements {
  Real inductance_uh;     ///< of each inductor
  Single capacitance_pf;  ///< of each capacitor, rounded to one decimal
};

/// Constant-k low-pass, 18 dB per octave: capacitors across the line, inductors in series. With
/// R the impedance: L = R / (pi f) and C = 1 / (2 pi f R) for pi, L = R / (2 pi f) and
/// C = 1 / (pi f R) for T.
FilterElements low_pass(FilterForm form, Real cutoff_mhz, Real impedance_ohm);

/// Constant-k high-pass, 18 dB per octave: inductors across the line, capacitors in series.
/// L = R / (2 pi f) and C = 1 / (4 pi f R) for pi, L = R / (4 pi f) and C = 1 / (2 pi f R) for T.
FilterElements high_pass(FilterForm form, Real cutoff_mhz, Real impedance_ohm);

/// A low-pass in pi form with the elements of an m-derived half-section, m = 0.6: a trap in series,
/// a capacitor across each end. It loses nothing at the cutoff, 3 dB at 1.38 times it, and most at
/// 1.756 times, where the trap stands.
struct TrapLowPass {
  Real trap_inductance_uh;    ///< in the line
  Real trap_capacitance_pf;   ///< parallel to it
  Real shunt_capacitance_pf;  ///< each of the two; rounded to one decimal
};
/// L = m R / (2 pi f), trap capacitor (1 - m^2) / (4 m) / (pi f R), shunt capacitors
/// m / (2 pi f R).
TrapLowPass trap_low_pass(Real cutoff_mhz, Real impedance_ohm);

/// A constant-k band-pass: a series circuit in the line, a parallel circuit across it. Inductances
/// and capacitances are rounded to one decimal, the shunt inductance to three.
struct BandPass {
  Real centre_mhz;             ///< the arithmetic mean of the edges
  Real bandwidth_mhz;          ///< from edge to edge
  Real quality_factor;         ///< centre over bandwidth
  Real series_inductance_uh;   ///< in the line
  Real series_capacitance_pf;  ///< in the line
  Real shunt_inductance_uh;    ///< across the line
  Real shunt_capacitance_pf;   ///< across the line
};
/// Band-pass designs above it are not practical.
inline constexpr double highest_practical_quality_factor = 10;
/// With B = f2 - f1: series L = R / (pi B) and C = B / (4 pi f1 f2 R), shunt L = R B / (4 pi f1 f2)
/// and C = 1 / (pi R B). Equal edges throw division_by_zero; edges in the wrong order give negative
/// values.
BandPass band_pass(Real impedance_ohm, Real lower_edge_mhz, Real upper_edge_mhz);

/// The same band-pass as a pi: the series elements in two halves, in series, and the shunt ones in
/// two, one across each end. The value of each half.
struct SplitBandPass {
  Real series_inductance_uh;   ///< half of the undivided one
  Real series_capacitance_pf;  ///< twice the undivided one
  Real shunt_inductance_uh;    ///< twice the undivided one
  Real shunt_capacitance_pf;   ///< half of the undivided one
};
/// The halves of a band-pass.
SplitBandPass split(const BandPass& filter);

/// @}

}  // namespace eterlab::filters
