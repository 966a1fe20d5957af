#include "coils/short_coil.h"

#include "coils/winding_inductance.h"
#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::coils {

namespace {

constexpr int most_turns = 50;

/// What the mutual inductance of round wires is less than that of a sheet, over mu0 r N; nothing
/// for one turn.
Real mutual_correction(Real turns) {
  const auto without_last = [](Real n) {
    const Real n2 = n * n;
    const Real n3 = n2 * n;
    const Real n5 = n3 * n2;
    return ln(2 * pi) - 1.5 - ln(n) / (6 * n) - 0.33084236 / n - 1 / (120 * n3) + 1 / (504 * n5) -
           0.0011925 / (n5 * n2);
  };
  return without_last(turns) - without_last(1) / pow(turns, 9);
}

}  // namespace

Real widest_pitch_m(const ShortCoil& coil) { return coil.mean_diameter_m / 2; }

Real short_coil_inductance_h(const ShortCoil& coil, Real turns, Real pitch_m) {
  const Real radius_m = coil.mean_diameter_m / 2;
  const Real self_correction = 1.5 - ln(2 * pitch_m / coil.wire_m);  // the current on the skin
  return current_sheet_inductance_h(radius_m, turns * pitch_m, turns) -
         vacuum_permeability_h_per_m * radius_m * turns *
             (self_correction + mutual_correction(turns));
}

Real short_coil_wire_m(const ShortCoil& coil, Real turns, Real pitch_m) {
  return turns * hypot(pi * coil.mean_diameter_m, pitch_m);
}

std::optional<Real> fewest_turns(const ShortCoil& coil, Real closest_pitch_m, Real inductance_h) {
  for (int turns = 2; turns <= most_turns; ++turns) {
    if (short_coil_inductance_h(coil, turns, closest_pitch_m) >= inductance_h) {
      return turns;
    }
  }
  return {};
}

std::optional<Real> stretched_pitch_m(const ShortCoil& coil, Real turns, Real closest_pitch_m,
                                      Real inductance_h) {
  const auto excess_h = [&](Real pitch_m) {
    return short_coil_inductance_h(coil, turns, pitch_m) - inductance_h;
  };
  const Real widest_m = widest_pitch_m(coil);
  if (excess_h(widest_m) > 0) {
    return {};
  }
  return excess_h(closest_pitch_m) <= 0 ? closest_pitch_m
                                        : root_between(closest_pitch_m, widest_m, excess_h);
}

}  // namespace eterlab::coils
