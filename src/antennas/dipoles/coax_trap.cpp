#include "antennas/dipoles/coax_trap.h"

#include "circuits/resonance.h"
#include "coils/solenoid.h"
#include "common/numerics.h"
#include "common/physics.h"

namespace eterlab::antennas {

namespace {

/// Both conductors as one, and the capacitance between them.
CoaxTrap winding(const TrapCable& cable, Real form_mm, Real turns) {
  const Real pitch_m = cable.diameter_mm / 1000;
  const Real diameter_m = form_mm / 1000 + pitch_m;
  const Real length_m = turns * pitch_m;
  const Real cable_m = turns * hypot(pi * diameter_m, pitch_m);
  return {.turns = turns,
          .cable_m = cable_m,
          .winding_m = length_m,
          .inductance_h = coils::solenoid_inductance_h(diameter_m / 2, length_m, turns),
          .capacitance_f = cable_m * cable.capacitance_pf_per_m * 1e-12};
}

}  // namespace

std::span<const TrapCable> trap_cables() {
  static constexpr TrapCable cables[] = {
      {"RG 58 C/U", 101, 4.95}, {"RG 59 B/U", 67, 6.15}, {"RG 62 A/U", 43, 6.15},
      {"RG 174 A/U", 101, 2.8}, {"RG 213/U", 101, 10.3}, {"RG 8 X", 83, 6.15},
      {"RG 316/U", 96, 2.5},
  };
  return cables;
}

Real coax_trap_hz(const TrapCable& cable, Real form_mm, Real turns) {
  const CoaxTrap trap = winding(cable, form_mm, turns);
  return circuits::tuned_circuit(trap.inductance_h, trap.capacitance_f).frequency_hz;
}

CoaxTrap coax_trap(const TrapCable& cable, Real form_mm, Real frequency_mhz, TrapOutput output) {
  constexpr double usual_turns = 10;
  const Real turns = root_near(usual_turns, Slope::falling, [&](Real tried) {
    return coax_trap_hz(cable, form_mm, tried) - frequency_mhz * 1e6;
  });
  CoaxTrap trap = winding(cable, form_mm, turns);
  if (output == TrapOutput::inner_conductor) {
    trap.inductance_h *= 4;
    trap.capacitance_f /= 4;
  }
  return trap;
}

}  // namespace eterlab::antennas
