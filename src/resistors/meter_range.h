#pragma once

#include "common/arithmetic.h"

namespace eterlab::resistors {

/// @name Ranges of a moving-coil meter
/// Source: Ohm's and Kirchhoff's laws.
/// @{

/// A resistor beside a meter, past which most of a current goes.
struct MeterShunt {
  Real resistance_ohm;    ///< beside the meter
  Real current_a;         ///< at full scale
  Real power_w;           ///< at full scale
  Real voltage_drop_v;    ///< at full scale, of shunt and meter
  Real wire_diameter_mm;  ///< of constantan for at most 3 A/mm2: whole tenths, at least one
  Real wire_length_m;     ///< of that wire
};

/// Makes an ammeter of a range of a meter. Wants range_a above the meter's full scale.
MeterShunt meter_shunt(Real meter_resistance_ohm, Real full_scale_ma, Real range_a);

/// A resistor before a meter, across which most of a voltage drops.
struct MeterMultiplier {
  Real resistance_ohm;            ///< exactly
  Real power_w;                   ///< at full scale
  Real sensitivity_ohm_per_v;     ///< of the voltmeter: 1 over the full scale current
  Real preferred_resistance_ohm;  ///< nearest value of E24
  Real preferred_range_v;         ///< with that one
};

/// Makes a voltmeter of a range of a meter. Wants range_v above the meter's own drop at full scale.
MeterMultiplier meter_multiplier(Real meter_resistance_ohm, Real full_scale_ua, Real range_v);

/// @}

}  // namespace eterlab::resistors
