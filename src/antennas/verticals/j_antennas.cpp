#include "antennas/verticals/j_antennas.h"

#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/uniform_line.h"

namespace eterlab::antennas {

OpenJ open_j(const Tube& tube) {
  constexpr ThicknessFit section{0.1827, 0.00784, -0.0002616};
  constexpr ThicknessFit spacing{0.1404, -0.01645, 0.000545};
  const Real wavelength_m = tube.wavelength_m();
  OpenJ j;
  j.short_conductor_m = section(tube) * wavelength_m;
  j.long_conductor_m = j.short_conductor_m + resonant_half_wave_m(tube);
  j.spacing_m = spacing(tube) * wavelength_m;
  constexpr double velocity_factor = 1;  // bare conductors
  j.section_impedance_ohm = lines::push_pull_impedance_ohm(
      lines::wire_pair_factor(tube.diameter_mm, j.spacing_m * 1000), velocity_factor);
  return j;
}

ShortedJ shorted_j(const Tube& tube) {
  constexpr ThicknessFit section{0.2135, 0.00716, -0.000191};
  constexpr ThicknessFit tap{0.0717, -0.01615, 0.001192};
  const Real wavelength_m = tube.wavelength_m();
  ShortedJ j;
  j.short_conductor_m = section(tube) * wavelength_m;
  j.long_conductor_m = j.short_conductor_m + resonant_half_wave_m(tube);
  j.spacing_m = (0.01 + 2 * tube.thickness()) * wavelength_m;
  j.tap_m = tap(tube) * wavelength_m;
  return j;
}

SlimJim slim_jim(const Tube& tube) {
  constexpr ThicknessFit height{0.5157, 0.04174, -0.001356};
  constexpr ThicknessFit tap{0.1666, -0.04341, 0.003198};
  const Real wavelength_m = tube.wavelength_m();
  SlimJim jim;
  jim.height_m = height(tube) * wavelength_m;
  jim.below_cut_m = 0.25 * wavelength_m;
  jim.cut_m = 0.0125 * wavelength_m;
  jim.above_cut_m = jim.height_m - jim.below_cut_m - jim.cut_m;
  jim.spacing_m = (0.003 + 2.5 * tube.thickness()) * wavelength_m;
  jim.tap_m = tap(tube) * wavelength_m;
  return jim;
}

}  // namespace eterlab::antennas
