#include "signals/decibel_watt.h"

namespace eterlab::signals {

Real level_dbw(Real power_w) { return 10 * log10(power_w); }

Real power_w(Real level_dbw) { return pow(10, level_dbw / 10); }

Real rms_voltage_v(Real power_w, Real resistance_ohm) { return sqrt(power_w * resistance_ohm); }

Real level_dbm_of_voltage(Real rms_voltage_v, Real resistance_ohm) {
  return 20 * log10(rms_voltage_v) - level_dbw(resistance_ohm) + one_watt_dbm;
}

}  // namespace eterlab::signals
