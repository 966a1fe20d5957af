#include "antennas/beams/axial_helix.h"

#include "common/interpolation.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

constexpr TablePoint gains_dbi[] = {
    // by turns
    {4, 9.6},   {5, 10.1},  {6, 10.5},  {8, 11.3},  {10, 12.1},
    {12, 12.7}, {16, 13.7}, {20, 14.5}, {25, 15.3}, {30, 16.0},
};

constexpr TablePoint beamwidths_degrees[] = {
    {4, 69}, {5, 63}, {6, 59}, {8, 51}, {10, 45}, {12, 41}, {16, 35}, {20, 30}, {25, 26}, {30, 24},
};

}  // namespace

AxialHelix axial_helix(Real wavelength_m, int turns) {
  constexpr double pitch_wavelengths = 0.23;
  constexpr double reflector_wavelengths = 0.8;
  return {.diameter_m = wavelength_m / pi,
          .pitch_m = pitch_wavelengths * wavelength_m,
          .length_m = turns * pitch_wavelengths * wavelength_m,
          .conductor_m = turns * wavelength_m * hypot(1, pitch_wavelengths),
          .reflector_diameter_m = reflector_wavelengths * wavelength_m,
          .gain_dbi = interpolated(gains_dbi, turns),
          .beamwidth_degrees = interpolated(beamwidths_degrees, turns)};
}

}  // namespace eterlab::antennas
