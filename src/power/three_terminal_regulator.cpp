#include "power/three_terminal_regulator.h"

#include "common/number_text.h"

namespace eterlab::power {

std::optional<RegulatorDesign> raised_fixed_regulator(Real nominal_v, Real output_v) {
  constexpr double divider_a = 0.025;
  constexpr double highest_output_v = 35;
  if (output_v <= nominal_v || output_v > highest_output_v) {
    return std::nullopt;
  }
  return RegulatorDesign{rounded(nominal_v / divider_a, 0),
                         rounded((output_v - nominal_v) / divider_a, 0), 1.4 * output_v};
}

std::optional<RegulatorDesign> adjustable_regulator(Real output_v) {
  constexpr double reference_v = 1.25;
  constexpr double highest_output_v = 100;
  constexpr double r1_ohm = 220;
  if (output_v > highest_output_v || output_v <= reference_v) {
    return std::nullopt;
  }
  return RegulatorDesign{r1_ohm, (output_v / reference_v - 1) * r1_ohm, 1.3 * output_v};
}

Real adjustable_regulator_highest_input_v(Real output_v) { return output_v + 30; }

std::optional<Real> constant_current_resistor_ohm(Real current_ma) {
  constexpr double reference_mv = 1250;
  constexpr double highest_current_ma = 1000;
  if (current_ma <= 0 || current_ma > highest_current_ma) {
    return std::nullopt;
  }
  return rounded(reference_mv / current_ma, 1);
}

}  // namespace eterlab::power
