#include "lines/matching/gamma_match.h"

#include "common/number_text.h"

namespace eterlab::lines {

GammaMatch gamma_match(Real frequency_mhz) {
  const Real wavelength_m = 299.793 / frequency_mhz;
  const Real capacitance_pf = round_to_int16(Single{2100 / frequency_mhz});
  // For no whole capacitance does the cable end half-way between two centimetres, so how ties are
  // rounded does not matter.
  const Real cable_length_cm = rounded(capacitance_pf / 0.97 + 1, 0);
  return {wavelength_m, 6.25 * wavelength_m, 0.7 * wavelength_m, capacitance_pf, cable_length_cm};
}

}  // namespace eterlab::lines
