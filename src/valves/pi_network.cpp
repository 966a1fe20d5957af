#include "valves/pi_network.h"

namespace eterlab::valves {

namespace {

circuits::PiTerminations ends_of(const PiNetworkTask& task) {
  return {task.anode_ohm, task.antenna_ohm, task.frequency_hz};
}

/// At the side with the greater resistance.
Real greater_side_q(const PiNetworkTask& task) {
  const Real ratio = task.anode_ohm / task.antenna_ohm;
  const Real q = task.quality_factor;
  return ratio >= 1 ? q : sqrt((q * q + 1 - ratio) / ratio);
}

}  // namespace

Real least_quality_factor(Real anode_ohm, Real antenna_ohm) {
  return floor(sqrt(anode_ohm / antenna_ohm - 1)) + 1;
}

bool can_match(const PiNetworkTask& task) {
  return task.quality_factor * task.quality_factor + 1 > task.anode_ohm / task.antenna_ohm;
}

circuits::PiNetwork pi_network(const PiNetworkTask& task) {
  return circuits::pi_network(ends_of(task), greater_side_q(task));
}

Real second_harmonic_attenuation_db(const PiNetworkTask& task) {
  return circuits::second_harmonic_attenuation_db(ends_of(task), pi_network(task));
}

PiNetworkStress pi_network_stress(const PiNetworkTask& task, Real power_w) {
  return {sqrt(2 * power_w * task.anode_ohm), sqrt(2 * power_w * task.antenna_ohm),
          circuits::pi_coil_current_a(ends_of(task), greater_side_q(task), power_w)};
}

}  // namespace eterlab::valves
