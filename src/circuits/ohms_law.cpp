#include "circuits/ohms_law.h"

namespace eterlab::circuits {

OperatingPoint from_voltage_and_current(Real voltage_v, Real current_a) {
  return {voltage_v, current_a, voltage_v / current_a, voltage_v * current_a};
}

OperatingPoint from_voltage_and_resistance(Real voltage_v, Real resistance_ohm) {
  return {voltage_v, voltage_v / resistance_ohm, resistance_ohm,
          voltage_v * voltage_v / resistance_ohm};
}

OperatingPoint from_voltage_and_power(Real voltage_v, Real power_w) {
  return {voltage_v, power_w / voltage_v, voltage_v * voltage_v / power_w, power_w};
}

OperatingPoint from_current_and_resistance(Real current_a, Real resistance_ohm) {
  return {current_a * resistance_ohm, current_a, resistance_ohm,
          current_a * current_a * resistance_ohm};
}

OperatingPoint from_current_and_power(Real current_a, Real power_w) {
  return {power_w / current_a, current_a, power_w / (current_a * current_a), power_w};
}

OperatingPoint from_resistance_and_power(Real resistance_ohm, Real power_w) {
  return {sqrt(power_w * resistance_ohm), sqrt(power_w / resistance_ohm), resistance_ohm, power_w};
}

}  // namespace eterlab::circuits
