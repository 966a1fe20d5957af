#include "resistors/meter_resistance.h"

namespace eterlab::resistors {

std::optional<Real> meter_resistance_ohm(Real series_ohm, Real shunt_ohm, Real first_reading,
                                         Real second_reading) {
  // What the meter would have if the series resistor kept the current constant.
  const Real apparent_ohm = (first_reading - second_reading) / second_reading * shunt_ohm;
  if (apparent_ohm >= series_ohm) {
    return std::nullopt;
  }
  return apparent_ohm * series_ohm / (series_ohm - apparent_ohm);
}

}  // namespace eterlab::resistors
