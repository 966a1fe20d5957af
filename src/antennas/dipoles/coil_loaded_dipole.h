#pragma once

#include "antennas/straight_wire.h"

namespace eterlab::antennas {

/// A dipole shorter than a half wave, fed in the middle, with a coil in each arm.
struct CoilLoadedDipole {
  Real arm_m;         ///< from 1/20 of the wavelength to below half_wave_arm_m()
  Real coil_place_m;  ///< from the middle, 1/20 to 9/10 of the arm
  Conductor conductor;
};

/// What brings it to resonance, and what it is then.
struct CoilLoading {
  Real reactance_ohm;   ///< of each coil
  Real inductance_h;    ///< of each coil
  Real resistance_ohm;  ///< in the middle, the loss of the coils in it
  Real efficiency;      ///< what the coils leave of 1
  Real bandwidth_hz;    ///< between standing-wave ratios of 2, matched in the middle
};

/// The Q of the coils in all of these.
inline constexpr double loading_coil_q = 200;

/// Whether it needs no coils: arms a hair shorter than those of a half wave may not.
bool is_resonant_without_coils(const CoilLoadedDipole& dipole);

/// The coils of a dipole that needs them. Source: straight_wire.h; bandwidth f / (sqrt(2) Q) of a
/// resonator with Q = (f / 2R) dX / df. Within 2 % of NEC-2 in reactance and inductance, 0.6 % in
/// bandwidth.
CoilLoading coil_loading(const CoilLoadedDipole& dipole);
/// Only its efficiency; 1 where no coils are needed.
Real coil_loading_efficiency(const CoilLoadedDipole& dipole);

}  // namespace eterlab::antennas
