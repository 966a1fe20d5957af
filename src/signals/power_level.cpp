#include "signals/power_level.h"

#include "common/number_text.h"

namespace eterlab::signals {

Real rms_voltage(Real power, Real resistance_ohm, const PowerUnit& unit) {
  return sqrt(resistance_ohm * power) * unit.voltage_factor;
}

Real level_dbm(Real power, const PowerUnit& unit) {
  const Real power_mw = power * unit.milliwatts / unit.milliwatts_per;
  return rounded(10 * ln(power_mw) / ln(10), 1);
}

}  // namespace eterlab::signals
