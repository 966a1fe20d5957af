#include "filters/rc_filters.h"

#include <numbers>

#include "common/physics.h"

namespace eterlab::filters {

Real rc_frequency_hz(Real resistance_ohm, Real capacitance_f) {
  return 1 / (2 * pi * resistance_ohm * capacitance_f);
}

Real rc_resistance_ohm(Real frequency_hz, Real capacitance_f) {
  return 1 / (2 * pi * frequency_hz * capacitance_f);
}

Real rc_capacitance_f(Real frequency_hz, Real resistance_ohm) {
  return 1 / (2 * pi * frequency_hz * resistance_ohm);
}

ActiveCell active_low_pass_f(Real cutoff_hz, Real resistance_ohm) {
  const Real mean_f = rc_capacitance_f(cutoff_hz, resistance_ohm);
  return {mean_f * std::numbers::sqrt2, mean_f / std::numbers::sqrt2};
}

ActiveCell active_high_pass_ohm(Real cutoff_hz, Real capacitance_f) {
  const Real mean_ohm = rc_resistance_ohm(cutoff_hz, capacitance_f);
  return {mean_ohm / std::numbers::sqrt2, mean_ohm * std::numbers::sqrt2};
}

Real butterworth_attenuation_db(PassBand band, int order, Real cutoff_hz, Real frequency_hz) {
  const Real beyond = band == PassBand::low ? frequency_hz / cutoff_hz : cutoff_hz / frequency_hz;
  return attenuation_db(pow(beyond, 2 * order));
}

Real twin_t_attenuation_db(Real notch_hz, Real frequency_hz) {
  const Real ratio = frequency_hz / notch_hz;
  const Real leak = 4 * ratio / ((1 - ratio) * (1 + ratio));
  return attenuation_db(leak * leak);
}

}  // namespace eterlab::filters
