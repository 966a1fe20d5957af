#include "circuits/handbook_reactance.h"

namespace eterlab::circuits {

Real handbook_inductive_reactance_ohm(Real frequency_mhz, Real inductance_uh) {
  return 6.28 * frequency_mhz * inductance_uh;
}

Real handbook_capacitive_reactance_ohm(Real frequency_mhz, Real capacitance_pf) {
  return 159000 / (frequency_mhz * capacitance_pf);
}

}  // namespace eterlab::circuits
