#include "resistors/voltmeter_probe.h"

#include <algorithm>

namespace eterlab::resistors {

VoltmeterProbe voltmeter_probe(Real meter_ohm, Real division_ratio, Real highest_v) {
  constexpr double highest_resistor_v = 350;
  constexpr double slack = 1e-9;  // a voltage of whole resistors needs no further one
  const Real series_ohm = (division_ratio - 1) * meter_ohm;
  const Real meter_v = highest_v / division_ratio;
  const Real current_a = meter_v / meter_ohm;
  const Real drop_v = meter_v * (division_ratio - 1);
  const Real resistors = std::max(ceil(drop_v / highest_resistor_v - slack), Real{1});
  return {series_ohm, meter_v, current_a, current_a * drop_v, resistors, series_ohm / resistors};
}

}  // namespace eterlab::resistors
