#pragma once

#include "antennas/straight_wire.h"

namespace eterlab::antennas {

/// An arm shorter than a quarter wave, with a pair of wires shorted at its far end in series at the
/// feed, stretched along the arm, one wire on each side of it.
struct LinearLoadedArm {
  Real arm_m;  ///< from 1/20 of the wavelength to below half_wave_arm_m()
  Conductor conductor;
  Real load_wire_mm;  ///< diameter
  Real spacing_mm;    ///< between the wires' centres: more than both take, to 1/100 of a wavelength
};

/// The pair that brings the arm to resonance.
struct LinearLoad {
  Real reactance_ohm;       ///< that the arm wants
  Real line_impedance_ohm;  ///< characteristic, of the pair around the arm
  Real length_m;            ///< below 0 where the two cross pieces alone are too much
  Real wire_m;              ///< that it takes, with the cross pieces
  Real resistance_ohm;      ///< of the arm at the feed, the loss of the copper in it
  Real efficiency;          ///< what the copper of the pair leaves of 1
};

/// The load of one arm of a dipole, or of a vertical over a perfect plane. Sources:
/// straight_wire.h; the pair by images, Z0 = 120 ln((2 s / w) (s^2 - d^2) / (s^2 + d^2)), 0.03 %
/// from a solution of the charges; its loss, R. W. P. King, Transmission-Line Theory. Within 3.4 %
/// of NEC-2 in length.
LinearLoad linear_load(const LinearLoadedArm& arm);

}  // namespace eterlab::antennas
