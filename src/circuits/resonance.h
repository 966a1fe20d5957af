#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// A coil and a capacitor, and where they resonate.
struct TunedCircuit {
  Real frequency_hz;   ///< of resonance
  Real inductance_h;   ///< of the coil
  Real capacitance_f;  ///< of the capacitor
  Real reactance_ohm;  ///< of either at resonance, sqrt(L / C)
  Real wavelength_m;   ///< in free space
};

/// @name Two of frequency, inductance and capacitance tell the third
/// All above zero. Source: Thomson's formula f = 1 / (2 pi sqrt(L C)).
/// @{
TunedCircuit tuned_by_inductance(Real frequency_hz, Real capacitance_f);
TunedCircuit tuned_by_capacitance(Real frequency_hz, Real inductance_h);
TunedCircuit tuned_circuit(Real inductance_h, Real capacitance_f);
/// @}

/// How sharply a coil, a capacitor and a resistor resonate.
struct Selectivity {
  Real frequency_hz;    ///< of resonance
  Real quality_factor;  ///< Q
  Real bandwidth_hz;    ///< between the points of half the power, f / Q
};

/// All three in series: Q = sqrt(L / C) / R. Wants values above zero.
Selectivity series_selectivity(Real inductance_h, Real capacitance_f, Real resistance_ohm);
/// Side by side: Q = R / sqrt(L / C). Wants values above zero.
Selectivity parallel_selectivity(Real inductance_h, Real capacitance_f, Real resistance_ohm);

/// Where a circuit is in phase, and what it is there.
struct PhaseResonance {
  Real frequency_hz;    ///< of no reactance
  Real resistance_ohm;  ///< of the circuit at that frequency
};

/// A coil with a resistance in series, and a capacitor across both. With R not below sqrt(L / C) it
/// is in phase at no frequency. Wants values above zero. Source: the susceptance of
/// 1 / (R + j w L) + j w C vanishes at w^2 = 1 / (L C) - (R / L)^2, where Z = L / (C R).
std::optional<PhaseResonance> lossy_coil_resonance(Real coil_resistance_ohm, Real inductance_h,
                                                   Real capacitance_f);

/// Where resistance and reactance of a resistor and a capacitor are equal, 1 / (2 pi R C). Wants
/// values above zero.
Real rc_cutoff_hz(Real resistance_ohm, Real capacitance_f);
/// The same of a resistor and a coil, R / (2 pi L).
Real rl_cutoff_hz(Real resistance_ohm, Real inductance_h);

}  // namespace eterlab::circuits
