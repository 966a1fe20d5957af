#pragma once

#include "circuits/pi_network.h"
#include "common/arithmetic.h"

namespace eterlab::valves {

/// What the pi network between a valve and its antenna has to match. All above zero.
struct PiNetworkTask {
  Real anode_ohm;       ///< load that the valve is to see
  Real antenna_ohm;     ///< impedance of the antenna
  Real frequency_hz;    ///< of operation
  Real quality_factor;  ///< loaded, of the anode's end: its resistance over the reactance of C1
};

/// Least quality factor, a whole number, with which a pi network of two capacitors can match.
Real least_quality_factor(Real anode_ohm, Real antenna_ohm);
/// Whether a quality factor is enough for the ratio of impedances.
bool can_match(const PiNetworkTask& task);

/// The network, if it can match; its input is the anode.
circuits::PiNetwork pi_network(const PiNetworkTask& task);

/// How much more the second harmonic of the anode current is held back than the fundamental.
Real second_harmonic_attenuation_db(const PiNetworkTask& task);

/// What the parts must stand at a power into a matched antenna.
struct PiNetworkStress {
  Real anode_peak_v;    ///< across C1
  Real antenna_peak_v;  ///< across C2
  Real coil_a;          ///< r.m.s. through L
};
/// @copydoc PiNetworkStress
PiNetworkStress pi_network_stress(const PiNetworkTask& task, Real power_w);

}  // namespace eterlab::valves
