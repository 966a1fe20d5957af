#include "circuits/handbook_resonance.h"

namespace eterlab::circuits {

HandbookResonance handbook_resonance(Real inductance_uh, Real capacitance_pf) {
  const Real root = sqrt(inductance_uh * capacitance_pf);
  const Real frequency_khz = 1e6 / (6.283184 * root);
  return {frequency_khz, 1.885 * root, Single{0.00628318 * inductance_uh * frequency_khz}};
}

}  // namespace eterlab::circuits
