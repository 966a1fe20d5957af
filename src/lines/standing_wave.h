#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::lines {

/// What a standing-wave ratio tells about a load on a 50 ohm line fed by a 50 ohm source.
struct Mismatch {
  Real high_impedance_ohm;      ///< the resistive load above the line's impedance that causes it
  Real low_impedance_ohm;       ///< the one below
  Real reflection_coefficient;  ///< of the voltage, 0 to below 1
  Real reflected_percent;       ///< of the power, rounded to one decimal
  Real radiated_percent;        ///< what the rounded reflected part leaves of 100
  std::optional<Real> return_loss_db;  ///< none for a perfect match, where it is infinite
};

/// The ratio must be 1 or more. Source: transmission line theory, rho = (S - 1) / (S + 1), return
/// loss = -20 log rho.
Mismatch mismatch_of(Real standing_wave_ratio);

}  // namespace eterlab::lines
