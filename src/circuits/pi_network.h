#pragma once

#include "common/arithmetic.h"

namespace eterlab::circuits {

/// @name Pi network
/// A low-pass of two capacitors to ground and a coil between them that matches two resistances at
/// one frequency, without losses: pi_section() by its parts. Source: The ARRL Handbook, pi-network
/// tank circuits; G. Grammer, QST 1957; E. Wingfield, QST 1983.
/// @{

/// What a pi network stands between. All above zero.
struct PiTerminations {
  Real input_ohm;     ///< that the stage before is to see
  Real output_ohm;    ///< of the antenna, say
  Real frequency_hz;  ///< of operation

  [[nodiscard]] Real higher_ohm() const;  ///< the greater of both resistances
  [[nodiscard]] Real lower_ohm() const;   ///< the smaller one
};

/// The parts of a pi network.
struct PiNetwork {
  Real input_f;       ///< C1, across the input
  Real inductance_h;  ///< L1, in the line
  Real output_f;      ///< C2, across the output
};

/// The quality factor is that of the side with the greater resistance: its square above the ratio
/// of the resistances less one.
PiNetwork pi_network(const PiTerminations& ends, Real quality_factor);
/// The current through the coil of a network of that quality factor, rms.
Real pi_coil_current_a(const PiTerminations& ends, Real quality_factor, Real power_w);
/// How much less of the second harmonic than of the fundamental reaches the output, in dB, from a
/// source of current. Negative where the network resonates near the harmonic.
Real second_harmonic_attenuation_db(const PiTerminations& ends, const PiNetwork& network);

/// @}

}  // namespace eterlab::circuits
