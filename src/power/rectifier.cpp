#include "power/rectifier.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numbers>
#include <string_view>

#include "common/numerics.h"
#include "common/physics.h"
#include "common/rounding.h"

namespace eterlab::power {

namespace {

constexpr double mains_hz = 50;
constexpr double diode_drop_v = 0.9;

/// Where a condition that holds at `from` ceases to hold on the way to `to`.
Real last_that(Real from, Real to, const std::function<bool(Real)>& holds) {
  constexpr double precision = 1e-13;
  while (to - from > precision) {
    const Real middle = (from + to) / 2;
    (holds(middle) ? from : to) = middle;
  }
  return from;
}

}  // namespace

Rectifier::Rectifier(const RectifierSupply& supply)
    : supply_{supply},
      peak_v_{std::numbers::sqrt2 * supply.winding_v},
      drop_v_{supply.circuit == RectifierCircuit::bridge ? 2 * diode_drop_v : diode_drop_v},
      period_{supply.circuit == RectifierCircuit::half_wave ? 2 * pi : pi},
      time_constant_{2 * pi * mains_hz * supply.winding_ohm * supply.capacitance_f},
      opening_{asin(drop_v_ / peak_v_)} {}

std::optional<Rectifier> Rectifier::in_steady_state(const RectifierSupply& supply) {
  Rectifier rectifier{supply};
  if (rectifier.gain_v(rectifier.opening_) <= 0) {
    return std::nullopt;
  }
  rectifier.begin_ = last_that(rectifier.opening_, pi / 2,
                               [&](Real begin) { return rectifier.gain_v(begin) > 0; });
  rectifier.end_ = rectifier.pulse_end(rectifier.begin_);
  if (rectifier.lowest_v() <= 0) {
    return std::nullopt;
  }
  return rectifier;
}

Real Rectifier::winding_less_drop_v(Real angle) const { return peak_v_ * sin(angle) - drop_v_; }

Real Rectifier::forced_v(Real angle) const {
  const Real tau = time_constant_;
  return peak_v_ * tau * (tau * sin(angle) + cos(angle)) / (1 + tau * tau) +
         supply_.load_a * supply_.winding_ohm;
}

Real Rectifier::pulse_a(Real begin, Real angle) const {
  const Real decay = exp((begin - angle) / time_constant_);
  return (forced_v(angle) - forced_v(begin) * decay) / supply_.winding_ohm;
}

Real Rectifier::pulse_end(Real begin) const {
  return last_that(begin, pi - opening_, [&](Real angle) { return pulse_a(begin, angle) > 0; });
}

Real Rectifier::gain_v(Real begin) const {
  const Real end = pulse_end(begin);
  return peak_v_ * (sin(end) - sin(begin)) -
         supply_.load_a * (period_ + begin - end) / (2 * pi * mains_hz * supply_.capacitance_f);
}

Real Rectifier::peak_angle() const {
  return minimum_between(begin_, end_, [this](Real angle) { return -pulse_a(begin_, angle); }).at;
}

Real Rectifier::no_load_v() const { return peak_v_ - drop_v_; }

Real Rectifier::mean_v() const {
  const Real between = period_ + begin_ - end_;
  const Real charging = peak_v_ * (cos(begin_) - cos(end_)) - drop_v_ * (end_ - begin_) -
                        supply_.winding_ohm * supply_.load_a * period_;
  const Real falling = (winding_less_drop_v(begin_) + winding_less_drop_v(end_)) / 2 * between;
  return (charging + falling) / period_;
}

Real Rectifier::lowest_v() const {
  const Real angle = last_that(begin_, peak_angle(),
                               [this](Real at) { return pulse_a(begin_, at) < supply_.load_a; });
  return winding_less_drop_v(angle) - supply_.load_a * supply_.winding_ohm;
}

Real Rectifier::highest_v() const {
  const Real angle = last_that(peak_angle(), end_,
                               [this](Real at) { return pulse_a(begin_, at) > supply_.load_a; });
  return winding_less_drop_v(angle) - supply_.load_a * supply_.winding_ohm;
}

Real Rectifier::inverse_v() const {
  return supply_.circuit == RectifierCircuit::bridge ? peak_v_ : 2 * peak_v_;
}

Real Rectifier::pulse_peak_a() const { return pulse_a(begin_, peak_angle()); }

Real Rectifier::pulse_rms_a() const {
  const Real squares = integral(begin_, end_, [this](Real angle) {
    const Real current_a = pulse_a(begin_, angle);
    return current_a * current_a;
  });
  return sqrt(squares / period_);
}

Real Rectifier::diode_mean_a() const {
  return supply_.circuit == RectifierCircuit::half_wave ? supply_.load_a : supply_.load_a / 2;
}

Real Rectifier::switch_on_a() const { return no_load_v() / supply_.winding_ohm; }

Real Rectifier::winding_rms_a() const {
  const Real rms_a = pulse_rms_a();
  return supply_.circuit == RectifierCircuit::centre_tap ? rms_a / std::numbers::sqrt2 : rms_a;
}

Real Rectifier::winding_va() const {
  const int halves = supply_.circuit == RectifierCircuit::centre_tap ? 2 : 1;
  return halves * supply_.winding_v * winding_rms_a();
}

Real Rectifier::capacitor_rms_a() const {
  const Real rms_a = pulse_rms_a();
  return sqrt(rms_a * rms_a - supply_.load_a * supply_.load_a);
}

Real Rectifier::ripple_hz() const { return 2 * pi / period_ * mains_hz; }

Real Rectifier::output_v(Real angle) const {
  // From the beginning of a pulse to that of the next one.
  const Real in_period = angle - floor((angle - begin_) / period_) * period_;
  if (in_period < end_) {
    return winding_less_drop_v(in_period) - supply_.winding_ohm * pulse_a(begin_, in_period);
  }
  return winding_less_drop_v(end_) -
         supply_.load_a * (in_period - end_) / (2 * pi * mains_hz * supply_.capacitance_f);
}

Real Rectifier::rectified_v(Real angle) const {
  return winding_less_drop_v(angle - floor(angle / period_) * period_);
}

RectifierDiodes suitable_diodes(const Rectifier& rectifier) {
  struct Family {
    double mean_a;
    double switch_on_a;
    std::array<std::string_view, 7> types;
  };
  static constexpr double derating = 0.8;
  static constexpr std::array<int, 7> inverse_voltages_v{50, 100, 200, 400, 600, 800, 1000};
  static constexpr std::array families{
      Family{1, 30, {"1N4001", "1N4002", "1N4003", "1N4004", "1N4005", "1N4006", "1N4007"}},
      Family{3, 200, {"1N5400", "1N5401", "1N5402", "1N5404", "1N5406", "1N5407", "1N5408"}}};

  const Real mean_a = rectifier.diode_mean_a();
  const Real inverse_v = 1.5 * rectifier.inverse_v();
  RectifierDiodes diodes{std::nullopt, rounded_up(mean_a / derating), rounded_up(inverse_v)};
  const auto family = std::ranges::find_if(families, [&](const Family& candidate) {
    return mean_a <= derating * candidate.mean_a &&
           rectifier.switch_on_a() <= candidate.switch_on_a;
  });
  const auto voltage = std::ranges::find_if(inverse_voltages_v,
                                            [&](int highest_v) { return inverse_v <= highest_v; });
  if (family != families.end() && voltage != inverse_voltages_v.end()) {
    diodes.type = family->types[static_cast<std::size_t>(voltage - inverse_voltages_v.begin())];
  }
  return diodes;
}

}  // namespace eterlab::power
