#pragma once

#include <cstdint>
#include <optional>

#include "common/arithmetic.h"

namespace eterlab::resistors {

/// @name Exact resistive pads
/// Networks of resistors that match their impedances and lose so many dB on the way, without any
/// rounding. Impedances and losses are above zero. Source: the image-parameter design of resistive
/// pads.
/// @{

/// The part of the power that a matched pad turns to heat, 0 to 1.
Real dissipated_share(Real loss_db);

/// The networks of an attenuator.
enum class Cell : std::uint8_t {
  t,   ///< two resistors in series, one to ground between them
  pi,  ///< one resistor in series, one to ground at either end
  l    ///< one resistor in series, one across the load; only the input keeps its impedance
};

/// The resistors of an attenuator between equal impedances; what a cell has two of are equal.
struct AttenuatorCell {
  Real series_ohm;  ///< each from the input towards the output
  Real shunt_ohm;   ///< each to ground
};

/// In series and to ground, with the ratio k of the voltages: T, Z (k - 1) / (k + 1) and
/// 2 Z k / (k^2 - 1); pi, Z (k^2 - 1) / (2 k) and Z (k + 1) / (k - 1); L, Z (k - 1) / k and
/// Z / (k - 1).
AttenuatorCell attenuator_cell(Cell cell, Real impedance_ohm, Real loss_db);

/// The least loss of a pad between two impedances, wherever the higher one is:
/// 20 log(sqrt(r) + sqrt(r - 1)) dB, r their ratio.
Real least_loss_db(Real higher_ohm, Real lower_ohm);

/// By so much, for the digits of a typed loss, a loss may stay below the least one.
inline constexpr double least_loss_slack_db = 1e-9;

/// A balanced T.
struct HPad {
  Real series_in_ohm;   ///< in each leg, towards the input
  Real series_out_ohm;  ///< in each leg, towards the output
  Real shunt_ohm;       ///< from leg to leg
};

/// A balanced pi.
struct OPad {
  std::optional<Real> shunt_in_ohm;   ///< across the input, if any
  std::optional<Real> shunt_out_ohm;  ///< across the output, if any
  Real series_ohm;                    ///< in each leg
};

/// Between an input impedance and an output impedance that is not above it, from the least loss on:
/// with the power ratio K and c = (K + 1) / (K - 1), the T has R3 = 2 sqrt(ZI ZO K) / (K - 1) to
/// ground, R1 = ZI c - R3 and R2 = ZO c - R3; the pi has the same in conductances. At the least
/// loss one resistor vanishes, to 0 in series, to none across; so does what is below a billionth of
/// the impedance, or conductance, at its end.
HPad h_pad(Real input_ohm, Real output_ohm, Real loss_db);
/// @copydoc h_pad
OPad o_pad(Real input_ohm, Real output_ohm, Real loss_db);

/// @}

}  // namespace eterlab::resistors
