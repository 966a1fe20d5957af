#pragma once

#include <span>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::capacitors {

/// A temperature characteristic of class 1 ceramic capacitors.
struct CeramicCharacteristic {
  std::string_view name;     ///< its code, "N750"
  Real ppm_per_degree;       ///< change of capacitance with temperature
  std::string_view marking;  ///< the Italian names of its colours, IEC 60384-8: "ROSSO + VIOLA"
};

/// Those in use, from the rising one to the one that falls most.
std::span<const CeramicCharacteristic> ceramic_characteristics();

/// How much a capacitance changes with so many degrees, in its own unit.
Real ceramic_drift(Real capacitance, Real ppm_per_degree, Real degrees);

/// How far a circuit moves that this capacitor alone tunes, as a part of its frequency: above zero
/// where it rises. Source: f ~ 1 / sqrt(C). A capacitor that loses all its capacitance throws
/// invalid_argument.
Real tuning_drift(Real ppm_per_degree, Real degrees);

}  // namespace eterlab::capacitors
