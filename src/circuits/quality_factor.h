#pragma once

#include "circuits/resonance.h"
#include "common/arithmetic.h"

namespace eterlab::circuits {

/// A coil with losses at one frequency.
struct LossyCoil {
  Real reactance_ohm;
  Real quality_factor;  ///< Q = X / R
  Real bandwidth_hz;    ///< of a circuit with no other losses, f / Q
  Real parallel_ohm;    ///< the resistance across the coil with the same losses, R (1 + Q^2)
};

/// From the loss resistance in series. Values above zero.
LossyCoil lossy_coil(Real frequency_hz, Real inductance_h, Real resistance_ohm);

/// A circuit by the frequencies at which it gives half the power: the resonance is their geometric
/// mean. Wants upper_hz > lower_hz > 0.
Selectivity selectivity_between(Real lower_hz, Real upper_hz);

/// What a resonator loses between two equal loads.
struct LoadedResonator {
  Real loss_db;
  Real efficiency;  ///< of the power
};

/// Wants a loaded Q below the unloaded one. Source: S. B. Cohn, "Dissipation Loss in
/// Multiple-Coupled-Resonator Filters", Proc. IRE 47, 1959.
LoadedResonator loaded_resonator(Real unloaded_q, Real loaded_q);

/// @name The curve of a resonance
/// @{
/// Response relative to that at resonance, 0 or less: -10 log10(1 + Q^2 (f/f0 - f0/f)^2).
Real resonance_response_db(const Selectivity& circuit, Real frequency_hz);
/// Below and above resonance, where half the power is left.
struct HalfPower {
  Real lower_hz;
  Real upper_hz;
};
HalfPower half_power(const Selectivity& circuit);
/// @}

/// A tank whose losses are all in its coil, at resonance.
struct TankResistance {
  Real parallel_ohm;  ///< of coil and capacitor side by side, where it is a pure resistance
  Real series_ohm;    ///< of both in series: that of the coil
};

/// Source: Terman, Radio Engineers' Handbook, section 3: Q X and X / Q; exact. With Q up to 1 there
/// is no frequency at which the parallel circuit is a pure resistance.
TankResistance tank_resistance(Real reactance_ohm, Real quality_factor);

}  // namespace eterlab::circuits
