#include "coils/toroids/toroid_transformer.h"

#include "coils/toroids/toroid_cores.h"

namespace eterlab::coils {

MatchingWindings matching_windings(Real frequency_mhz, Real antenna_ohm, Real cable_ohm,
                                   Real inductance_index_uh) {
  constexpr double reactance_per_impedance = 5;
  constexpr double two_pi = 6.28;
  const Real inductance_uh = reactance_per_impedance * antenna_ohm / (two_pi * frequency_mhz);
  const Real antenna_turns = toroid_turns(inductance_uh, inductance_index_uh);
  const Real turns_ratio = sqrt(antenna_ohm / cable_ohm);
  return {antenna_turns, antenna_turns / turns_ratio};
}

}  // namespace eterlab::coils
