#include "resistors/voltage_divider.h"

#include <algorithm>

#include "common/complex.h"
#include "common/preferred_values.h"

namespace eterlab::resistors {

LoadedDivider loaded_divider(Real input_v, Real upper_ohm, Real lower_ohm,
                             std::optional<Real> load_ohm) {
  const Real loaded_ohm = load_ohm ? parallel(lower_ohm, *load_ohm) : lower_ohm;
  const Real current_a = input_v / (upper_ohm + loaded_ohm);
  const Real output_v = current_a * loaded_ohm;
  return {output_v, current_a, current_a * current_a * upper_ohm, output_v * output_v / lower_ohm};
}

DividerDesign design_divider(Real input_v, Real output_v, Real load_current_a,
                             Real lower_current_a) {
  const Real drop_v = input_v - output_v;
  const Real current_a = lower_current_a + load_current_a;
  const Real upper_ohm = drop_v / current_a;
  const Real lower_ohm = output_v / lower_current_a;
  const Real nearest_upper_ohm = nearest_preferred(upper_ohm, Series::e24);
  const Real nearest_lower_ohm = nearest_preferred(lower_ohm, Series::e24);
  const Real nearest_output_v = (input_v - load_current_a * nearest_upper_ohm) * nearest_lower_ohm /
                                (nearest_upper_ohm + nearest_lower_ohm);
  return {.upper_ohm = upper_ohm,
          .lower_ohm = lower_ohm,
          .input_current_a = current_a,
          .upper_power_w = current_a * drop_v,
          .lower_power_w = output_v * lower_current_a,
          .nearest_upper_ohm = nearest_upper_ohm,
          .nearest_lower_ohm = nearest_lower_ohm,
          .nearest_output_v = std::max(nearest_output_v, Real{0})};
}

}  // namespace eterlab::resistors
