#pragma once

#include "circuits/pi_network.h"
#include "common/arithmetic.h"
#include "common/complex.h"

namespace eterlab::transistors {

/// @name Matching of transistor stages
/// Lossless networks between a tuned collector, an antenna and a base, exact at one frequency. All
/// resistances, frequencies and powers are above zero.
/// @{

/// The load that a tuned collector wants to give a power at full swing: (V - Vsat)^2 / (2 P).
/// Source: Krauss, Bostian, Raab, "Solid State Radio Engineering".
Real collector_load_ohm(Real supply_v, Real saturation_v, Real power_w);

/// The mean of the half-sine current of a class B collector with full swing into its load, the
/// least that the supply must give: 2 (V - Vsat) / (pi R).
Real class_b_current_a(Real supply_v, Real saturation_v, Real load_ohm);

/// The choke that feeds a collector: ten times the reactance of its load.
Real feed_choke_h(Real load_ohm, Real frequency_hz);
/// The capacitor that couples it onwards: the first of E6 not below a twentieth of that reactance.
Real blocking_capacitor_f(Real load_ohm, Real frequency_hz);

/// The square of the Q that a network of quality q at the higher of two resistances has at the
/// lower one; not above zero where q is too low for them: low (1 + q^2) / high - 1.
Real other_q_squared(Real high_ohm, Real low_ohm, Real q);
/// Below this the other Q has no value that a network can be built with.
inline constexpr double least_other_q_squared = 0.0001;
/// The q that gives the least square of the other Q.
Real least_q(Real high_ohm, Real low_ohm);

/// @}

/// @name Tapped capacitor
/// From a tuned collector to the low resistance of a base: the coil and C1 at the collector, C2
/// across the base. Source: Krauss, Bostian, Raab, "Solid State Radio Engineering".
/// @{

/// The parts, and the load that the collector sees.
struct TappedCapacitor {
  Real inductance_h;  ///< of the coil, from the collector to the supply
  Real series_f;      ///< C1, from the collector to the base
  Real shunt_f;       ///< C2, across the base
  Real load_ohm;      ///< with the coil in tune
};

/// Wants load_ohm above base_ohm and a square of the other Q above zero.
TappedCapacitor tapped_capacitor(Real load_ohm, Real base_ohm, Real q, Real frequency_hz);
/// With the pair of E12 capacitors, each next to the exact one, whose load comes nearest.
TappedCapacitor with_standard_values(const TappedCapacitor& exact, Real base_ohm,
                                     Real frequency_hz);

/// @}

/// @name Pi network that can be bought
/// From a collector to an antenna.
/// @{

/// A network of capacitors that can be bought, its coil retuned.
struct StandardPiNetwork {
  circuits::PiNetwork parts;  ///< with C1 and C2 of E12
  Real standing_wave_ratio;   ///< that is left
};
/// The pair of E12 capacitors, each next to the exact one, with the lowest standing-wave ratio.
StandardPiNetwork with_standard_values(const circuits::PiTerminations& ends,
                                       const circuits::PiNetwork& exact);

/// @}

/// @name Series coil and two trimmers
/// Between a low impedance in series with the coil and a higher resistance behind the series
/// trimmer, with the other trimmer across. Source: Motorola application notes AN-267, F. Davis, and
/// AN-721, B. Becciolini.
/// @{

/// A resistance and a reactance in series.
struct SeriesImpedance {
  Real resistance_ohm;  ///< above zero
  Real reactance_ohm;   ///< negative if capacitive
};

/// What a collector's output capacitance leaves of its load, as it must be seen by the capacitance:
/// the conjugate of both side by side.
SeriesImpedance seen_past_output_capacitance(Real load_ohm, Real capacitance_f, Real frequency_hz);

/// The parts of the network and the stress of the trimmer across.
struct CoilAndTrimmers {
  Real inductance_h;    ///< of the series coil
  Real shunt_f;         ///< across, behind the coil
  Real series_f;        ///< towards the higher resistance
  Real coil_current_a;  ///< rms
  Real shunt_peak_v;    ///< across the shunt trimmer
};

/// Turns a higher resistance into a resistance and reactance towards the coil. Wants a square of
/// the other Q above zero, and q times the low resistance above minus the reactance.
CoilAndTrimmers coil_and_trimmers(SeriesImpedance towards_coil, Real high_ohm, Real q,
                                  Real frequency_hz, Real power_w);

/// The impedance that the network shows at a frequency, behind the series trimmer, with the base of
/// a transistor at the coil. The base's reactance follows the frequency as that of an inductance or
/// of a capacitance does.
Complex impedance_towards_base_ohm(const CoilAndTrimmers& network, SeriesImpedance base,
                                   Real base_known_at_hz, Real frequency_hz);

/// @}

}  // namespace eterlab::transistors
