#include "antennas/verticals/collinear_vertical.h"

#include <array>
#include <cstddef>

namespace eterlab::antennas {

namespace {

/// What depends on the number of half waves.
struct Stack {
  ThicknessFit stub;
  ThicknessFit gain_dbi;
  double base_resistance_ohm;
  std::string_view cable;
  double cable_impedance_ohm;
  double velocity_factor;
};

constexpr std::array<Stack, 2> stacks{{
    {{0.2715, -0.00873, 0.000552}, {1.83, 0.139, 0}, 116, "RG 59 O RG 11", 75, 0.66},
    {{0.3181, -0.02034, 0.001299}, {1.32, 0.382, 0}, 190, "RG 62", 93, 0.84},
}};

}  // namespace

CollinearVertical collinear_vertical(const Tube& tube, int half_waves) {
  const Stack& stack = stacks.at(static_cast<std::size_t>(half_waves - 1));
  const Real wavelength_m = tube.wavelength_m();
  CollinearVertical antenna;
  antenna.base_element_m = wavelength_m / 4;
  antenna.half_wave_m = wavelength_m / 2;
  antenna.stub_m = stack.stub(tube) * wavelength_m;
  antenna.stub_width_m = 0.02 * wavelength_m;
  antenna.radial_m = wavelength_m / 4;
  antenna.height_m =
      antenna.base_element_m + half_waves * (antenna.half_wave_m + antenna.stub_width_m);
  antenna.base_resistance_ohm = stack.base_resistance_ohm;
  antenna.cable = stack.cable;
  antenna.cable_impedance_ohm = stack.cable_impedance_ohm;
  antenna.section_m = stack.velocity_factor * wavelength_m / 4;
  antenna.gain_dbi = stack.gain_dbi(tube);
  return antenna;
}

}  // namespace eterlab::antennas
