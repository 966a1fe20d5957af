#pragma once

#include "common/arithmetic.h"

namespace eterlab::resistors {

/// @name Resistive pads
/// Networks of resistors between two impedances, in ohm and dB. Source: the image-parameter design
/// of resistive pads.
/// @{

/// The L of two resistors that matches two impedances with the least loss.
struct HandbookMinimumLossPad {
  Real series_ohm;  ///< on the side of the higher impedance
  Real shunt_ohm;   ///< across the lower impedance
  Single loss_db;   ///< rounded to two decimals
};

/// series = sqrt(H (H - L)), shunt = sqrt(L^2 H / (H - L)). Wants H > L > 0; two negative
/// impedances are a fault.
HandbookMinimumLossPad handbook_minimum_loss_pad(Real higher_ohm, Real lower_ohm);

/// The resistors of a T, each rounded half up to two decimals.
struct HandbookTPad {
  Real series_in_ohm;   ///< from the input to the shunt
  Real series_out_ohm;  ///< from the shunt to the output
  Real shunt_ohm;       ///< from between the two to ground
};

/// The resistors of a pi, each rounded half up to two decimals.
struct HandbookPiPad {
  Real shunt_in_ohm;   ///< across the input
  Real shunt_out_ohm;  ///< across the output
  Single series_ohm;   ///< from the input to the output
};

/// The least loss that handbook_t_pad and handbook_pi_pad may be asked for: 20 log(r + sqrt(r - 1))
/// dB, with r the ratio of the impedances, at least 1. (The bound in theory has the root of r as
/// its first term and is lower.)
Real handbook_least_loss_db(Real input_ohm, Real output_ohm);

/// How the least loss is told: in whole dB, cut off after a two-hundredth has been added.
Real told_in_whole_db(Real loss_db);

/// Attenuators of this loss between an input impedance and an output impedance that is not above
/// it. Valid from the least loss on; a loss that does not change the power divides by zero.
HandbookTPad handbook_t_pad(Real input_ohm, Real output_ohm, Real loss_db);
/// @copydoc handbook_t_pad
HandbookPiPad handbook_pi_pad(Real input_ohm, Real output_ohm, Real loss_db);

/// The attenuator between equal impedances whose loss two resistors alone decide; the two in series
/// equal the impedance.
struct HandbookBridgedTPad {
  Real series_ohm;  ///< each of the two in series
  Real shunt_ohm;   ///< from between the two to ground
  Real bridge_ohm;  ///< across both of them
};

/// shunt = Z / (K - 1), bridge = Z (K - 1), with the voltage ratio K in single precision: a loss so
/// small that K is 1 divides by zero.
HandbookBridgedTPad handbook_bridged_t_pad(Real impedance_ohm, Real loss_db);

/// @}

}  // namespace eterlab::resistors
