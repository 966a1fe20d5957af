#include "antennas/beams/hb9cv.h"

#include "common/physics.h"
#include "common/polynomial.h"

namespace eterlab::antennas {

Hb9cv hb9cv(Real wavelength_m, Real element_diameter_m) {
  constexpr double original_diameter = 0.0019;  // in wavelengths, as the rest
  const Real u = log10(element_diameter_m / wavelength_m);
  const Real thickness_factor = 1 - 0.058 * (u - log10(original_diameter));
  const Real feed_reactance_ohm = polynomial(u, {105.5, 58.8, 15.7});
  return {.reflector_m = 0.5 * thickness_factor * wavelength_m,
          .director_m = 0.46 * thickness_factor * wavelength_m,
          .spacing_m = wavelength_m / 8,
          .reflector_tap_m = 0.0675 * wavelength_m,
          .director_tap_m = 0.0625 * wavelength_m,
          .rod_diameter_m = element_diameter_m / 2,
          .rod_height_m = 0.003 * wavelength_m + 2 * element_diameter_m,
          .capacitance_f = wavelength_m / (2 * pi * speed_of_light_m_per_s * feed_reactance_ohm)};
}

}  // namespace eterlab::antennas
