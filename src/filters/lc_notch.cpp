#include "filters/lc_notch.h"

#include "common/physics.h"
#include "filters/attenuation.h"

namespace eterlab::filters {

Trap trap(TrapForm form, const NotchTask& task) {
  const auto& [frequency_hz, bandwidth_hz, impedance_ohm] = task;
  const Real four_pi_bandwidth = 4 * pi * bandwidth_hz;
  const Real angular_frequency = 2 * pi * frequency_hz;
  const Real squared = angular_frequency * angular_frequency;
  if (form == TrapForm::series_to_ground) {
    const Real inductance_h = impedance_ohm / four_pi_bandwidth;
    return {inductance_h, 1 / (squared * inductance_h)};
  }
  const Real capacitance_f = 1 / (four_pi_bandwidth * impedance_ohm);
  return {1 / (squared * capacitance_f), capacitance_f};
}

NotchEdges notch_edges(const NotchTask& task) {
  const Real half_band_hz = task.bandwidth_hz / 2;
  const Real upper_hz = hypot(task.frequency_hz, half_band_hz) + half_band_hz;
  return {task.frequency_hz * (task.frequency_hz / upper_hz), upper_hz};
}

Real notch_attenuation_db(const NotchTask& task, Real coil_quality_factor, Real frequency_hz) {
  const Real centre_hz = task.frequency_hz;
  const Real band = task.bandwidth_hz / centre_hz;
  const Real damping = 1 / coil_quality_factor;
  const Real detuning =
      (frequency_hz - centre_hz) / centre_hz * ((frequency_hz + centre_hz) / frequency_hz);
  return attenuation_db(band * (band + 2 * damping) / (damping * damping + detuning * detuning));
}

}  // namespace eterlab::filters
