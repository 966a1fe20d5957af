#pragma once

#include <optional>

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// An EH antenna: two equal tubes on one axis, one diameter apart, with a coil wound on the same
/// tube. Electrically a very short, thick dipole.
struct EhAntenna {
  Real frequency_hz;  ///< of resonance
  Real diameter_m;    ///< of cylinders and coil
  Real cylinder_m;    ///< length of each: 1 to 12 diameters
  Real pitch_m;       ///< of the coil: up to a diameter
  Real coil_q;        ///< quality of the coil
};

/// What both kinds of it have in common.
struct EhBody {
  Real gap_capacitance_f;   ///< between the cylinders
  Real radiation_ohm;       ///< of the short dipole
  int turns;                ///< fewest that reach resonance
  Real coil_length_m;       ///< of the winding
  Real coil_capacitance_f;  ///< of the coil itself
};

/// What becomes of the power.
struct EhRadiation {
  Real efficiency;       ///< radiated share
  Real bandwidth_hz;     ///< between the points of SWR 2
  Real peak_v_at_100_w;  ///< between the cylinders
};

/// The kind whose coil lies across the cylinders and has a tap for the cable.
struct EhStar {
  Real inductance_h;      ///< that tunes it
  Real tap_wire_m;        ///< wire from the cold end to the tap for 50 ohm
  EhRadiation radiation;  ///< of it
};

/// The kind that is matched to 50 ohm by a coil in series and a capacitor across the cable.
struct EhPhasing {
  Real inductance_h;      ///< in series
  Real capacitance_f;     ///< in parallel
  Real resistance_ohm;    ///< radiation and loss, where the network sees them
  Real phase_degrees;     ///< of the antenna's current behind the generator's voltage
  EhRadiation radiation;  ///< of it
};

/// The whole length, at most a tenth of a wave.
Real eh_length_m(const EhAntenna& antenna);

/// The cylinders and the coil's turns; nothing where 300 turns are too few. Capacitance and the
/// distance of the charges' centres are fits to the electrostatic field of two coaxial tubes,
/// within 0.5 %; radiation as of any dipole with an even current over that distance (C. A. Balanis,
/// Antenna Theory).
std::optional<EhBody> eh_body(const EhAntenna& antenna);

/// The tapped coil; nothing where it loses so much that no tap shows 50 ohm. From the loop of coil
/// and cylinders, whose loss and radiation are in series, coupled to the turns below the tap.
std::optional<EhStar> eh_star(const EhAntenna& antenna, const EhBody& body);

/// The L network of the handbooks (ARRL Handbook; Terman, Radio Engineers' Handbook); nothing where
/// loss and radiation are 50 ohm or more, as it cannot step a resistance down.
std::optional<EhPhasing> eh_phasing(const EhAntenna& antenna, const EhBody& body);

}  // namespace eterlab::antennas
