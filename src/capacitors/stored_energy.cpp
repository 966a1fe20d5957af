#include "capacitors/stored_energy.h"

namespace eterlab::capacitors {

Real stored_energy_j(Real capacitance_f, Real voltage_v) {
  return capacitance_f * voltage_v * voltage_v / 2;
}

Real stored_charge_c(Real capacitance_f, Real voltage_v) { return capacitance_f * voltage_v; }

Real time_to_safety_s(Real capacitance_f, Real voltage_v, Real resistance_ohm) {
  // Of the difference, so that a voltage just above the safe one loses no digits.
  return resistance_ohm * capacitance_f * log1p((voltage_v - safe_voltage_v) / safe_voltage_v);
}

Real discharge_power_w(Real voltage_v, Real resistance_ohm) {
  return voltage_v * voltage_v / resistance_ohm;
}

}  // namespace eterlab::capacitors
