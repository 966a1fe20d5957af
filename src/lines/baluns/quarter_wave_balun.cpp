#include "lines/baluns/quarter_wave_balun.h"

#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/uniform_line.h"
#include "lines/line_section.h"

namespace eterlab::lines {

QuarterWaveBalun quarter_wave_balun(QuarterWaveBalunKind kind, Real frequency_mhz, Real cable_ohm,
                                    Real braid_diameter_mm, Real spacing_mm, Real velocity_factor) {
  constexpr double enough = 5;  // times the impedance of the cable
  const Real impedance_ohm =
      kind == QuarterWaveBalunKind::sleeve
          ? single_ended_impedance_ohm(coaxial_factor(braid_diameter_mm, spacing_mm),
                                       velocity_factor)
          : push_pull_impedance_ohm(wire_pair_factor(braid_diameter_mm, spacing_mm),
                                    velocity_factor);
  const Real lowest_ratio = atan(enough * cable_ohm / impedance_ohm) / quarter_wave;
  return {wavelength_in_line_m(frequency_mhz, velocity_factor) / 4, impedance_ohm,
          frequency_mhz * lowest_ratio, frequency_mhz * (2 - lowest_ratio)};
}

}  // namespace eterlab::lines
