#include "power/voltage_doubler.h"

#include <numbers>

namespace eterlab::power {

namespace {

constexpr double diode_drop_v = 0.7;
constexpr double voltage_reserve = 1.2;

}  // namespace

Real rectified_peak_v(Real winding_rms_v) {
  return std::numbers::sqrt2 * winding_rms_v - diode_drop_v;
}

DoublerDesign voltage_doubler(VoltageDoubler circuit, Real winding_rms_v, Real load_a,
                              Real ripple_fraction, Real mains_hz) {
  const bool is_full_wave = circuit == VoltageDoubler::full_wave;
  const Real no_load_v = 2 * rectified_peak_v(winding_rms_v);
  const Real ripple_v = ripple_fraction * no_load_v;
  const Real part_v = voltage_reserve * std::numbers::sqrt2 * winding_rms_v;
  return {.no_load_v = no_load_v,
          .mean_v = no_load_v - (is_full_wave ? 1 : 1.5) * ripple_v,
          .capacitance_f = load_a / (mains_hz * ripple_v),
          .ripple_v = ripple_v,
          .ripple_hz = is_full_wave ? 2 * mains_hz : mains_hz,
          .first_capacitor_v = part_v,
          .second_capacitor_v = is_full_wave ? part_v : 2 * part_v,
          .diode_reverse_v = 2 * part_v};
}

}  // namespace eterlab::power
