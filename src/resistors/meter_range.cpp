#include "resistors/meter_range.h"

#include <algorithm>

#include "common/physics.h"
#include "common/preferred_values.h"
#include "common/rounding.h"
#include "materials/metals.h"
#include "materials/round_wire.h"

namespace eterlab::resistors {

namespace {

/// The thinnest wire, in whole tenths of a millimetre, that stays cool.
Real cool_wire_diameter_mm(Real current_a) {
  constexpr double largest_a_per_mm2 = 3;
  constexpr double steps_per_mm = 10;
  const Real exact_mm = sqrt(4 * current_a / (largest_a_per_mm2 * pi));
  return std::max(rounded_up(exact_mm * steps_per_mm), Real{1}) / steps_per_mm;
}

}  // namespace

MeterShunt meter_shunt(Real meter_resistance_ohm, Real full_scale_ma, Real range_a) {
  const Real full_scale_a = full_scale_ma / 1000;
  const Real current_a = range_a - full_scale_a;
  const Real voltage_drop_v = full_scale_a * meter_resistance_ohm;
  const Real resistance_ohm = voltage_drop_v / current_a;
  const Real diameter_mm = cool_wire_diameter_mm(current_a);
  const Real length_m = resistance_ohm * materials::round_section_mm2(diameter_mm) /
                        materials::constantan.resistivity_ohm_mm2_per_m;
  return {resistance_ohm, current_a,   current_a * voltage_drop_v,
          voltage_drop_v, diameter_mm, length_m};
}

MeterMultiplier meter_multiplier(Real meter_resistance_ohm, Real full_scale_ua, Real range_v) {
  const Real full_scale_a = full_scale_ua / 1e6;
  const Real drop_v = range_v - full_scale_a * meter_resistance_ohm;
  const Real resistance_ohm = drop_v / full_scale_a;
  const Real preferred_ohm = nearest_preferred(resistance_ohm, Series::e24);
  return {resistance_ohm, drop_v * full_scale_a, 1 / full_scale_a, preferred_ohm,
          full_scale_a * (meter_resistance_ohm + preferred_ohm)};
}

}  // namespace eterlab::resistors
