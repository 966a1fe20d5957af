#include "antennas/beams/moxon_rectangle.h"

#include "common/polynomial.h"

namespace eterlab::antennas {

MoxonRectangle moxon_rectangle(const AntennaWire& wire) {
  const Real u = log10(diameter_wavelengths(wire));
  const Real shortened_m = shortening_by_cover(wire) * wire.wavelength_m;
  return {
      .width_m = shortened_m * polynomial(u, {0.3398571429, -0.009571428571, -0.0008571428571}),
      .radiator_end_m =
          shortened_m * polynomial(u, {0.008285714286, -0.02035714286, -0.002142857143}),
      .gap_m = wire.wavelength_m * polynomial(u, {0.05164285714, 0.01780952381, 0.001809523381}),
      .reflector_end_m = shortened_m * polynomial(u, {0.07178571429, 0.001})};
}

Real depth_m(const MoxonRectangle& moxon) {
  return moxon.radiator_end_m + moxon.gap_m + moxon.reflector_end_m;
}

Real radiator_wire_m(const MoxonRectangle& moxon) {
  return moxon.width_m + 2 * moxon.radiator_end_m;
}

Real reflector_wire_m(const MoxonRectangle& moxon) {
  return moxon.width_m + 2 * moxon.reflector_end_m;
}

}  // namespace eterlab::antennas
