#include "lines/baluns/air_winding.h"

#include "common/physics.h"

namespace eterlab::lines {

Real AirWinding::mean_diameter_m() const { return (former_diameter_mm + wire_diameter_mm) / 1000; }

Real AirWinding::pitch_m() const { return wires * wire_diameter_mm / 1000; }

Real AirWinding::length_m() const { return turns * pitch_m(); }

Real AirWinding::wire_length_m() const { return turns * hypot(pi * mean_diameter_m(), pitch_m()); }

Real AirWinding::inductance_h() const {
  const Real radius_m = mean_diameter_m() / 2;
  const Real slenderness = length_m() / radius_m;
  const Real shape =
      log1p(pi / slenderness) + 1 / (2.3 + 1.6 * slenderness + 0.44 * slenderness * slenderness);
  return vacuum_permeability_h_per_m * turns * turns * radius_m * shape;
}

Real AirWinding::self_resonance_hz() const {
  const Real diameter_cm = 100 * mean_diameter_m();
  const Real slenderness = length_m() / mean_diameter_m();
  const Real capacitance_pf =
      diameter_cm * (0.1126 * slenderness + 0.08 + 0.27 / sqrt(slenderness));
  return 1 / (2 * pi * sqrt(inductance_h() * (1e-12 * capacitance_pf)));
}

std::optional<AirWinding> least_winding(AirWinding winding, Real inductance_h, int most_turns) {
  constexpr double noise = 1e-9;
  for (winding.turns = 2; winding.turns <= most_turns; ++winding.turns) {
    if (winding.inductance_h() >= inductance_h * (1 - noise)) {
      return winding;
    }
  }
  return std::nullopt;
}

}  // namespace eterlab::lines
