#include "power/ac_power.h"

#include "common/physics.h"

namespace eterlab::power {

AcPower ac_power(Real rms_v, Real rms_a, Real power_factor, Real frequency_hz) {
  const Real apparent_va = rms_v * rms_a;
  const Real sine = sqrt((1 - power_factor) * (1 + power_factor));
  return {.apparent_va = apparent_va,
          .active_w = apparent_va * power_factor,
          .reactive_var = apparent_va * sine,
          .phase_degrees = atan2(sine, power_factor) * 180 / pi,
          .impedance_ohm = rms_v / rms_a,
          .correcting_capacitor_f = rms_a * sine / (2 * pi * frequency_hz * rms_v)};
}

}  // namespace eterlab::power
