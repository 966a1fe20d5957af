#include "coils/spaced_coil.h"

#include "coils/solenoid.h"
#include "common/numerics.h"
#include "common/physics.h"
#include "common/rounding.h"

namespace eterlab::coils {

namespace {

constexpr double half_permeability_uh_per_mm = 0.0002 * pi;
constexpr double least_pitch_mm = 0.2;

}  // namespace

Real wheeler_sheet_inductance_uh(Real turns, Real diameter_mm, Real pitch_mm) {
  if (turns == 0) {
    return 0;
  }
  return 1e6 * solenoid_inductance_h(diameter_mm / 2000, turns * pitch_mm / 1000, turns);
}

Real rosa_correction_uh(Real diameter_mm, int turns) {
  return half_permeability_uh_per_mm * diameter_mm *
         (0.634 - ln(turns) / (6.0 * turns) - 0.331 / turns);
}

Real inductance_uh(const SpacedCoil& coil) {
  return wheeler_sheet_inductance_uh(coil.turns, coil.diameter_mm, coil.pitch_mm) -
         coil.turns * rosa_correction_uh(coil.diameter_mm, coil.turns);
}

std::optional<SpacedCoil> spaced_coil(Real inductance_uh, Real diameter_mm) {
  SpacedCoil square{diameter_mm, 1, diameter_mm};
  while (coils::inductance_uh(square) < inductance_uh) {
    ++square.turns;
    square.pitch_mm = diameter_mm / square.turns;
    if (!can_be_wound(square)) {
      return {};
    }
  }
  return spaced_to_inductance(inductance_uh, diameter_mm, square.turns);
}

SpacedCoil spaced_to_inductance(Real inductance_uh, Real diameter_mm, int turns) {
  const Real square_pitch_mm = diameter_mm / turns;
  const auto excess_uh = [&](Real pitch_mm) {
    return coils::inductance_uh({diameter_mm, turns, pitch_mm}) - inductance_uh;
  };
  return {diameter_mm, turns,
          root_between(0.01 * square_pitch_mm, 100 * square_pitch_mm, excess_uh)};
}

bool can_be_wound(const SpacedCoil& coil) { return reaches(coil.pitch_mm, least_pitch_mm); }

}  // namespace eterlab::coils
