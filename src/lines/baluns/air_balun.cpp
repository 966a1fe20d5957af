#include "lines/baluns/air_balun.h"

#include "common/complex.h"
#include "common/physics.h"
#include "lines/line_section.h"
#include "lines/standing_wave.h"

namespace eterlab::lines {

namespace {

Real angular_frequency(Real frequency_mhz) { return 2 * pi * 1e6 * frequency_mhz; }

}  // namespace

std::optional<AirBalun> air_balun(AirBalunRatio ratio, Real lowest_frequency_mhz, Real cable_ohm,
                                  Real former_diameter_mm, Real wire_diameter_mm) {
  constexpr int most_turns = 100;
  constexpr double enough = 5;  // times the impedance of the cable
  constexpr double along_pairs = 0.8;
  // In the 1:1, two of three windings in series stand across the cable.
  const bool is_trifilar = ratio == AirBalunRatio::one;
  const int share = is_trifilar ? 4 : 1;
  const Real omega = angular_frequency(lowest_frequency_mhz);
  const auto winding = least_winding({former_diameter_mm, wire_diameter_mm, is_trifilar ? 3 : 2, 0},
                                     enough * cable_ohm / (share * omega), most_turns);
  if (!winding) {
    return std::nullopt;
  }
  const Real inductance_h = winding->inductance_h();
  const Complex shunted = parallel(Complex{cable_ohm}, Complex{0, share * omega * inductance_h});
  return AirBalun{*winding, inductance_h, standing_wave_ratio(shunted, cable_ohm),
                  wavelength_in_line_m(1, along_pairs) / (8 * winding->wire_length_m())};
}

std::optional<AirWinding> cable_choke(Real lowest_frequency_mhz, Real cable_ohm,
                                      Real former_diameter_mm, Real cable_diameter_mm) {
  constexpr int most_turns = 50;
  constexpr double enough = 10;  // times the impedance of the cable
  return least_winding({former_diameter_mm, cable_diameter_mm, 1, 0},
                       enough * cable_ohm / angular_frequency(lowest_frequency_mhz), most_turns);
}

}  // namespace eterlab::lines
