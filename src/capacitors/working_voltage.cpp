#include "capacitors/working_voltage.h"

#include <algorithm>
#include <numbers>

#include "common/rounding.h"

namespace eterlab::capacitors {

namespace {

// Ascending.
constexpr Real standard_voltages_v[] = {
    6.3, 10, 16, 25, 35, 50, 63, 100, 160, 250, 350, 400, 450, 630, greatest_standard_voltage_v};

}  // namespace

std::optional<Real> standard_working_voltage_v(Real least_v) {
  constexpr double slack = 1e-9;
  const auto* const found = std::ranges::lower_bound(standard_voltages_v, least_v * (1 - slack));
  return found == std::end(standard_voltages_v) ? std::nullopt : std::optional{*found};
}

Real mains_working_voltage_v(Real rms_v) {
  constexpr double reserve = 1.2;
  return reserve * alternating_peak_v(rms_v, 0);
}

Real direct_peak_v(Real direct_v, Real ripple_peak_to_peak_v) {
  return direct_v + ripple_peak_to_peak_v / 2;
}

Real alternating_peak_v(Real rms_v, Real direct_v) {
  return std::numbers::sqrt2 * rms_v + direct_v;
}

Real line_peak_v(Real power_w, Real impedance_ohm, Real standing_wave_ratio) {
  return sqrt(2 * power_w * impedance_ohm * standing_wave_ratio);
}

Real least_working_voltage_v(Real peak_v) { return 1.5 * peak_v; }

Real least_whole_working_voltage_v(Real peak_v) {
  return rounded_up(least_working_voltage_v(peak_v));
}

}  // namespace eterlab::capacitors
