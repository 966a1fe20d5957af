#pragma once

#include "common/arithmetic.h"

namespace eterlab::capacitors {

/// Two equal electrolytics with their negative poles joined and a diode across each, in place of a
/// capacitor without poles.
struct BackToBack {
  Real each_f;           ///< either electrolytic, to obtain the wanted capacitance
  Real standard_each_f;  ///< the nearest preferred value of E6
  Real obtained_f;       ///< capacitance of two of those
  Real reactance_ohm;    ///< of what is obtained, without its sign
  Real current_a;        ///< effective value
};

/// For a sine of so many volts (effective value). Once the electrolytics are charged, the diodes
/// conduct no more: the two stand in series, and each swings between zero and the peak of the whole
/// voltage. Source: C = Ce / 2, X = 1 / (2 pi f C).
BackToBack back_to_back(Real wanted_f, Real rms_v, Real frequency_hz);

}  // namespace eterlab::capacitors
