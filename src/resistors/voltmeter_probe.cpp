#include "resistors/voltmeter_probe.h"

#include <algorithm>

#include "common/rounding.h"

namespace eterlab::resistors {

VoltmeterProbe voltmeter_probe(Real meter_ohm, Real division_ratio, Real highest_v) {
  constexpr double highest_resistor_v = 350;
  const Real series_ohm = (division_ratio - 1) * meter_ohm;
  const Real meter_v = highest_v / division_ratio;
  const Real current_a = meter_v / meter_ohm;
  const Real drop_v = meter_v * (division_ratio - 1);
  const Real resistors = std::max(rounded_up(drop_v / highest_resistor_v), Real{1});
  return {series_ohm, meter_v, current_a, current_a * drop_v, resistors, series_ohm / resistors};
}

}  // namespace eterlab::resistors
