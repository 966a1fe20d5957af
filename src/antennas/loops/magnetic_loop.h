#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// What a tube is bent into.
enum class LoopShape : std::uint8_t { circle, octagon, square };

/// One turn of tube, closed by a capacitor that tunes it.
struct MagneticLoop {
  LoopShape shape;         ///< of the turn
  Real conductor_m;        ///< length of the tube: 0.01 to 0.25 wavelengths
  Real tube_mm;            ///< diameter of the tube: up to a fortieth of its length
  Real resistivity_ohm_m;  ///< of the metal
};

/// Resistivity of the aluminium alloy that tubes are drawn from, EN AW-6060.
inline constexpr double aluminium_tube_ohm_m = 1 / 3.1e7;

/// A loop tuned to a frequency. Resistances are seen by the current where it is greatest, opposite
/// the capacitor.
struct TunedLoop {
  Real inductance_h;   ///< at low frequencies
  Real capacitance_f;  ///< that tunes it
  Real radiation_ohm;  ///< radiation resistance
  Real loss_ohm;       ///< of the tube, by the skin effect
  Real efficiency;     ///< radiated share of the power
  Real q;              ///< unloaded
  Real bandwidth_hz;   ///< between the points of SWR 2, matched at the centre
  Real capacitor_ohm;  ///< voltage across the capacitor over the greatest current
};

/// What the power does to a loop.
struct LoopLoad {
  Real current_a;         ///< effective, at the greatest
  Real capacitor_peak_v;  ///< peak voltage across the capacitor
};

/// Diameter of a circle, side of the others.
Real loop_width_m(const MagneticLoop& loop);

/// Length of the small loop that couples the cable to it, a fifth of its conductor.
Real coupling_loop_m(const MagneticLoop& loop);

/// A loop tuned to a frequency, within the limits of its struct; losses of the capacitor, of joints
/// and of the ground come on top. The loop is a shorted line with the current I cos(k x), counted
/// from opposite the capacitor. Inductance: F. W. Grover, Inductance Calculations, skin effect
/// complete. Radiation: the magnetic dipole of the mean current, as in the ARRL Antenna Book, and
/// the electric dipole of its first harmonic: R. W. P. King, C. W. Harrison, Antennas and Waves.
TunedLoop tuned_loop(const MagneticLoop& loop, Real frequency_hz);

/// What a power does to it.
LoopLoad loop_load(const TunedLoop& tuned, Real power_w);

}  // namespace eterlab::antennas
