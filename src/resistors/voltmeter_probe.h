#pragma once

#include "common/arithmetic.h"

namespace eterlab::resistors {

/// The series resistance that multiplies the range of an electronic voltmeter, as a chain of equal
/// resistors.
struct VoltmeterProbe {
  Real series_ohm;    ///< of the whole chain
  Real meter_v;       ///< at the voltmeter, at the highest voltage
  Real current_a;     ///< then
  Real power_w;       ///< dissipated then in the chain
  Real resistors;     ///< whole number, so that none has more than 350 V across it
  Real resistor_ohm;  ///< each of them
};

/// For a voltmeter of this input resistance. Wants division_ratio > 1, the others above zero.
/// Source: the voltage divider of chain and voltmeter; 350 V is what resistors of 1/2 W bear.
VoltmeterProbe voltmeter_probe(Real meter_ohm, Real division_ratio, Real highest_v);

}  // namespace eterlab::resistors
