#include "antennas/beams/two_element_quad.h"

#include "common/polynomial.h"

namespace eterlab::antennas {

TwoElementQuad two_element_quad(const AntennaWire& wire) {
  const Real u = log10(diameter_wavelengths(wire));
  const Real shortened_m = shortening_by_cover(wire) * wire.wavelength_m;
  return {.radiator_m = shortened_m * polynomial(u, {1.644147937, 0.6716364021, 0.2731955556,
                                                     0.04966518519, 0.00336}),
          .reflector_m = shortened_m * polynomial(u, {2.040064444, 0.8663851852, 0.3081977778,
                                                      0.0508237037, 0.003173333333}),
          .spacing_m = wire.wavelength_m * polynomial(u, {-0.02540079365, -0.2902116402,
                                                          -0.1553055556, -0.03551851852, -0.003}),
          .feed_ohm = 172.5 + 10.3 * u};
}

}  // namespace eterlab::antennas
