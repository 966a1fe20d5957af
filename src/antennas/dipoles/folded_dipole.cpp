#include "antennas/dipoles/folded_dipole.h"

#include "common/number_text.h"

namespace eterlab::antennas {

Single folded_dipole_length_m(Real frequency_mhz) {
  return Single{rounded(142.5 / frequency_mhz, 2)};
}

ImpedanceStepUp impedance_step_up(const FoldedDipoleTubes& tubes) {
  constexpr double plain_dipole_ohm = 75;
  const Real root = 1 + ln(2 * tubes.spacing_mm / tubes.lower_diameter_mm) /
                            ln(2 * tubes.spacing_mm / tubes.upper_diameter_mm);
  const Real ratio = rounded(root * root, 1);
  return {ratio, ratio * plain_dipole_ohm};
}

}  // namespace eterlab::antennas
