#include "valves/pi_network.h"

#include "common/complex.h"
#include "common/physics.h"

namespace eterlab::valves {

namespace {

/// Output voltage over the current of the valve.
Real transfer_ohm(const PiNetwork& network, Real antenna_ohm, Real rad_per_s) {
  const Complex anode{0, rad_per_s * network.anode_capacitance_f};
  const Complex antenna{1 / antenna_ohm, rad_per_s * network.antenna_capacitance_f};
  const Complex coil{0, rad_per_s * network.inductance_h};
  return 1 / abs(anode + antenna + anode * antenna * coil);
}

}  // namespace

Real least_quality_factor(Real anode_ohm, Real antenna_ohm) {
  return floor(sqrt(anode_ohm / antenna_ohm - 1)) + 1;
}

bool can_match(const PiNetworkTask& task) {
  return task.quality_factor * task.quality_factor + 1 > task.anode_ohm / task.antenna_ohm;
}

PiNetwork pi_network(const PiNetworkTask& task) {
  const Real rad_per_s = 2 * pi * task.frequency_hz;
  const Real ratio = task.anode_ohm / task.antenna_ohm;
  const Real q = task.quality_factor;
  const Real antenna_q = sqrt((q * q + 1 - ratio) / ratio);
  return {q / (rad_per_s * task.anode_ohm),
          task.anode_ohm * (q + antenna_q) / ((q * q + 1) * rad_per_s),
          antenna_q / (rad_per_s * task.antenna_ohm)};
}

Real second_harmonic_attenuation_db(const PiNetworkTask& task) {
  const PiNetwork network = pi_network(task);
  const Real rad_per_s = 2 * pi * task.frequency_hz;
  return 20 * log10(transfer_ohm(network, task.antenna_ohm, rad_per_s) /
                    transfer_ohm(network, task.antenna_ohm, 2 * rad_per_s));
}

PiNetworkStress pi_network_stress(const PiNetworkTask& task, Real power_w) {
  const Real q = task.quality_factor;
  return {sqrt(2 * power_w * task.anode_ohm), sqrt(2 * power_w * task.antenna_ohm),
          sqrt(power_w * (1 + q * q) / task.anode_ohm)};
}

}  // namespace eterlab::valves
