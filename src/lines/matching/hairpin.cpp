#include "lines/matching/hairpin.h"

#include <algorithm>

#include "common/physics.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/uniform_line.h"
#include "lines/line_section.h"

namespace eterlab::lines {

namespace {

/// The length of line that stands for the strap.
Real strap_length(Real rod_diameter, Real spacing) {
  const Real in_straps =
      (ln(4 * spacing / rod_diameter) - 2) / (2 * wire_pair_factor(rod_diameter, spacing));
  return std::max<Real>(in_straps, 0) * spacing;
}

/// Average impedance of a radiator, each half of it a quarter wave.
Real radiator_impedance_ohm(Real wavelength_m, Real diameter_m) {
  return 120 * (ln(wavelength_m / diameter_m) - 1);
}

}  // namespace

Hairpin hairpin(const HairpinTask& task) {
  constexpr double in_air = 1;
  const Real wavelength_m = wavelength_in_line_m(task.frequency_mhz, in_air);
  const Real metres_in_radian = wavelength_m / (2 * pi);
  const Real missing_ohm = task.cable_ohm - task.radiator_ohm;
  const Real radiator_reactance_ohm = sqrt(task.radiator_ohm * missing_ohm);
  const Real reactance_ohm = task.cable_ohm * sqrt(task.radiator_ohm / missing_ohm);
  const Real impedance_ohm =
      push_pull_impedance_ohm(wire_pair_factor(task.rod_diameter_mm, task.spacing_mm), in_air);
  return {radiator_reactance_ohm,
          reactance_ohm,
          reactance_ohm / (2 * pi * 1e6 * task.frequency_mhz),
          impedance_ohm,
          metres_in_radian * atan(reactance_ohm / impedance_ohm) -
              strap_length(task.rod_diameter_mm, task.spacing_mm) / 1000,
          metres_in_radian * radiator_reactance_ohm /
              radiator_impedance_ohm(wavelength_m, task.radiator_diameter_mm / 1000)};
}

}  // namespace eterlab::lines
