#pragma once

#include <optional>

#include "common/arithmetic.h"
#include "common/complex.h"

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

/// The reflection coefficient of the voltage, (Z - Z0) / (Z + Z0), of a load with some resistance.
Complex reflection_coefficient(Complex load_ohm, Real line_ohm);
/// The standing-wave ratio on a line with that load, also next to total reflection to all digits.
Real standing_wave_ratio(Complex load_ohm, Real line_ohm);

}  // namespace eterlab::lines
