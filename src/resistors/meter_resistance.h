#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::resistors {

/// The inner resistance of a moving-coil meter from two readings in one unit: through a series
/// resistor, and then with a shunt across the meter besides. All above zero, the second reading
/// below the first. No value where no meter would show these readings.
///
/// Exact for a source of constant voltage without resistance of its own:
/// Ri = (k - 1) Rp Rs / (Rs - (k - 1) Rp), k the ratio of the readings. Source: Ohm's law.
std::optional<Real> meter_resistance_ohm(Real series_ohm, Real shunt_ohm, Real first_reading,
                                         Real second_reading);

}  // namespace eterlab::resistors
