#pragma once

#include <array>
#include <cstdint>

#include "common/complex.h"

namespace eterlab::antennas {

/// @name L networks
/// Two reactances without losses that make of an antenna what a line wants.
/// @{

/// Where the reactance across the line stands.
enum class Shunt : std::uint8_t { at_antenna, at_line };

/// What one network is made of.
struct LNetwork {
  Real series_ohm;     ///< reactance in the line, positive of a coil; 0 where none is wanted
  Real shunt_siemens;  ///< susceptance across it, positive of a capacitor; 0 where none is wanted
};

/// Both networks that match.
struct LMatch {
  Shunt shunt;                       ///< of both
  std::array<LNetwork, 2> networks;  ///< the first with the positive root
};

/// For an antenna with a resistance above zero. What is below 1E-9 of the line's impedance or
/// admittance is none. Source: Pozar, Microwave Engineering, in a form without cancellation.
LMatch l_match(Complex antenna_ohm, Real line_ohm);

/// Whether it needs no network: within 1E-6 of the line.
bool is_matched(Complex antenna_ohm, Real line_ohm);

/// @}

}  // namespace eterlab::antennas
