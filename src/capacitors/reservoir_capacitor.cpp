#include "capacitors/reservoir_capacitor.h"

#include <algorithm>

#include "common/physics.h"
#include "common/preferred_values.h"

namespace eterlab::capacitors {

RectifiedMains rectified_mains(Rectifier rectifier, Real rms_v, Real frequency_hz) {
  constexpr double drop_of_a_diode_v = 0.7;
  const int conducting_diodes = rectifier == Rectifier::bridge ? 2 : 1;
  return {rectifier, std::numbers::sqrt2 * rms_v - conducting_diodes * drop_of_a_diode_v,
          frequency_hz};
}

ReservoirCapacitor reservoir_capacitor(const RectifiedMains& mains, Real load_a,
                                       Real ripple_percent) {
  const Real ripple = ripple_percent / 100;
  const Real ripple_v = ripple * mains.peak_v;
  const Real mains_period_s = 1 / mains.frequency_hz;
  const Real period_s = mains_period_s / (mains.rectifier == Rectifier::bridge ? 2 : 1);
  const Real discharge_s = period_s - mains_period_s * acos(1 - ripple) / (2 * pi);
  const Real capacitance_f = load_a * discharge_s / ripple_v;
  return {capacitance_f,
          next_preferred_up(capacitance_f, Series::e6),
          ripple_v,
          ripple_v / sqrt(12),
          mains.peak_v - ripple_v / 2,
          period_s,
          discharge_s};
}

Real rectified_voltage_v(const RectifiedMains& mains, Real time_s) {
  const Real voltage_v = mains.peak_v * cos(2 * pi * mains.frequency_hz * time_s);
  return mains.rectifier == Rectifier::bridge ? abs(voltage_v) : std::max(voltage_v, Real{0});
}

Real reservoir_voltage_v(const RectifiedMains& mains, const ReservoirCapacitor& reservoir,
                         Real time_s) {
  const Real since_peak_s = time_s - floor(time_s / reservoir.period_s) * reservoir.period_s;
  const Real falling_v = mains.peak_v - reservoir.ripple_v * since_peak_s / reservoir.discharge_s;
  return std::max(falling_v, rectified_voltage_v(mains, time_s));
}

}  // namespace eterlab::capacitors
