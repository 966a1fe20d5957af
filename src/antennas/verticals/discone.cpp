#include "antennas/verticals/discone.h"

#include <numbers>

namespace eterlab::antennas {

Discone discone(Real longest_wavelength_m, Real top_diameter_m) {
  const Real slant_m = longest_wavelength_m / 4;
  const Real base_m = top_diameter_m + slant_m;
  return {.slant_m = slant_m,
          .base_m = base_m,
          .cone_height_m = slant_m * std::numbers::sqrt3 / 2,
          .disc_diameter_m = 0.7 * base_m,
          .gap_m = 0.3 * top_diameter_m};
}

}  // namespace eterlab::antennas
