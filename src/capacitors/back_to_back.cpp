#include "capacitors/back_to_back.h"

#include "common/physics.h"
#include "common/preferred_values.h"

namespace eterlab::capacitors {

BackToBack back_to_back(Real wanted_f, Real rms_v, Real frequency_hz) {
  const Real each_f = 2 * wanted_f;
  const Real standard_each_f = nearest_preferred(each_f, Series::e6);
  const Real obtained_f = standard_each_f / 2;
  const Real reactance_ohm = 1 / (2 * pi * frequency_hz * obtained_f);
  return {each_f, standard_each_f, obtained_f, reactance_ohm, rms_v / reactance_ohm};
}

}  // namespace eterlab::capacitors
