#include "antennas/verticals/j_antennas.h"

#include "common/physics.h"

namespace eterlab::antennas {

namespace {

Real acosh(Real x) { return ln(x + sqrt(x * x - 1)); }

}  // namespace

OpenJ open_j(const Tube& tube) {
  constexpr ThicknessFit section{0.1827, 0.00784, -0.0002616};
  constexpr ThicknessFit spacing{0.1404, -0.01645, 0.000545};
  const Real wavelength_m = tube.wavelength_m();
  OpenJ j;
  j.short_conductor_m = section(tube) * wavelength_m;
  j.long_conductor_m = j.short_conductor_m + resonant_half_wave_m(tube);
  j.spacing_m = spacing(tube) * wavelength_m;
  j.section_impedance_ohm =
      free_space_impedance_ohm / pi * acosh(j.spacing_m * 1000 / tube.diameter_mm);
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
