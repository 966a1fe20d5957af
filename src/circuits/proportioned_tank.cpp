#include "circuits/proportioned_tank.h"

namespace eterlab::circuits {

Tank proportioned_tank(Real frequency_mhz) {
  const Real capacitance_pf = 400 / frequency_mhz;
  return {capacitance_pf, 25330 / (frequency_mhz * frequency_mhz * capacitance_pf)};
}

}  // namespace eterlab::circuits
