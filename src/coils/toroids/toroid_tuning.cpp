#include "coils/toroids/toroid_tuning.h"

namespace eterlab::coils {

namespace {

/// Of inductance and capacitance, in uH and pF, the one that resonates with the other.
Real counterpart(Real frequency_mhz, Real other) {
  return 25300 / (other * (frequency_mhz * frequency_mhz));
}

}  // namespace

TunedCircuit from_inductance_and_capacitance(Real inductance_uh, Real capacitance_pf) {
  return {159 / sqrt(inductance_uh * capacitance_pf), inductance_uh, capacitance_pf};
}

TunedCircuit from_frequency_and_inductance(Real frequency_mhz, Real inductance_uh) {
  return {frequency_mhz, inductance_uh, counterpart(frequency_mhz, inductance_uh)};
}

TunedCircuit from_frequency_and_capacitance(Real frequency_mhz, Real capacitance_pf) {
  return {frequency_mhz, counterpart(frequency_mhz, capacitance_pf), capacitance_pf};
}

}  // namespace eterlab::coils
