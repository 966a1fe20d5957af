#include "signals/free_space.h"

#include "common/number_text.h"

namespace eterlab::signals {

FreeSpacePath free_space_path(Real frequency_mhz, Real distance_km) {
  constexpr double shortest_km = 0.001;
  constexpr double log10_of_4_pi = 1.099;
  const Real wavelength_m = 300 / frequency_mhz;
  const Real distance_m = (distance_km == 0 ? shortest_km : distance_km) * 1000;
  const Real attenuation_db = 20 * (log10(distance_m) + log10_of_4_pi - log10(wavelength_m));
  return {distance_m / 1000, rounded(attenuation_db, 2)};
}

}  // namespace eterlab::signals
