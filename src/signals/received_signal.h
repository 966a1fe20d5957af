#pragma once

#include "common/arithmetic.h"

namespace eterlab::signals {

/// @name Received signals
/// What an antenna without losses, turned to the wave, takes out of a field. All arguments must be
/// above zero, but for the gain, which may be any.
/// @{

/// Radiation resistance of the thin half-wave dipole, R = eta0 Cin(2 pi) / (4 pi); books that take
/// 120 pi ohm for the wave impedance have 73.13 ohm.
inline constexpr double half_wave_dipole_resistance_ohm = 73.08;

/// What a half-wave dipole receives.
struct DipoleSignal {
  Real effective_length_m;  ///< open-circuit voltage over field strength
  Real open_circuit_v;      ///< RMS, where nothing is connected
  Real matched_load_v;      ///< RMS, across its own resistance
  Real available_power_w;   ///< into that
};

/// Source: J. D. Kraus, Antennas: effective length lambda / pi, P = U0^2 / (4 R).
DipoleSignal dipole_signal(Real field_v_per_m, Real frequency_hz);

/// What an antenna of a known gain receives.
struct AntennaSignal {
  Real effective_area_m2;        ///< received power over power density
  Real power_density_w_per_m2;   ///< of the wave
  Real available_power_w;        ///< into a matched receiver
  Real receiver_v;               ///< RMS, across the impedance of that
  Real antenna_factor_db_per_m;  ///< field strength over that voltage
};

/// Source: J. D. Kraus, Antennas: A = g lambda^2 / (4 pi), S = E^2 / eta0.
AntennaSignal antenna_signal(Real field_v_per_m, Real frequency_hz, Real gain_dbi,
                             Real receiver_ohm);

/// @}

}  // namespace eterlab::signals
