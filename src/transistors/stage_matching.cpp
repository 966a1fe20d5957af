#include "transistors/stage_matching.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

#include "common/physics.h"
#include "common/preferred_values.h"

namespace eterlab::transistors {

namespace {

Real angular(Real frequency_hz) { return 2 * pi * frequency_hz; }

Complex reactance(Real ohm) { return {0, ohm}; }

using Badness = std::function<Real(Real c1, Real c2)>;

/// Of the standard capacitors below and above both, the pair with the least badness.
std::pair<Real, Real> best_standard_pair(Real c1, Real c2, const Badness& badness) {
  constexpr double noise = 1e-9;
  const std::array c1_values{next_preferred_down(c1, Series::e12),
                             next_preferred_up(c1, Series::e12)};
  const std::array c2_values{next_preferred_down(c2, Series::e12),
                             next_preferred_up(c2, Series::e12)};
  std::pair best{c1_values[0], c2_values[0]};
  Real least = badness(best.first, best.second);
  for (const Real first : c1_values) {
    for (const Real second : c2_values) {
      if (const Real next = badness(first, second); next < least - noise) {
        least = next;
        best = {first, second};
      }
    }
  }
  return best;
}

}  // namespace

Real collector_load_ohm(Real supply_v, Real saturation_v, Real power_w) {
  const Real swing_v = supply_v - saturation_v;
  return swing_v * swing_v / (2 * power_w);
}

Real class_b_current_a(Real supply_v, Real saturation_v, Real load_ohm) {
  return 2 * (supply_v - saturation_v) / (pi * load_ohm);
}

Real feed_choke_h(Real load_ohm, Real frequency_hz) {
  return 10 * load_ohm / angular(frequency_hz);
}

Real blocking_capacitor_f(Real load_ohm, Real frequency_hz) {
  return next_preferred_up(20 / (angular(frequency_hz) * load_ohm), Series::e6);
}

Real other_q_squared(Real high_ohm, Real low_ohm, Real q) {
  return low_ohm * (1 + q * q) / high_ohm - 1;
}

Real least_q(Real high_ohm, Real low_ohm) {
  return sqrt((1 + least_other_q_squared) * high_ohm / low_ohm - 1);
}

TappedCapacitor tapped_capacitor(Real load_ohm, Real base_ohm, Real q, Real frequency_hz) {
  const Real omega = angular(frequency_hz);
  const Real base_q = sqrt(other_q_squared(load_ohm, base_ohm, q));
  return {.inductance_h = load_ohm / (omega * q),
          .series_f = (1 + q * q) / (omega * load_ohm * (q - base_q)),
          .shunt_f = base_q / (omega * base_ohm),
          .load_ohm = load_ohm};
}

TappedCapacitor with_standard_values(const TappedCapacitor& exact, Real base_ohm,
                                     Real frequency_hz) {
  const Real omega = angular(frequency_hz);
  const auto admittance = [&](Real series_f, Real shunt_f) {
    const Complex base = 1 / Complex{1 / base_ohm, omega * shunt_f};
    return 1 / (base + reactance(-1 / (omega * series_f)));
  };
  const auto [series_f, shunt_f] = best_standard_pair(
      exact.series_f, exact.shunt_f,
      [&](Real c1, Real c2) { return abs(ln(exact.load_ohm * admittance(c1, c2).real())); });
  const Complex seen = admittance(series_f, shunt_f);
  return {.inductance_h = 1 / (omega * seen.imaginary()),
          .series_f = series_f,
          .shunt_f = shunt_f,
          .load_ohm = 1 / seen.real()};
}

StandardPiNetwork with_standard_values(const circuits::PiTerminations& ends,
                                       const circuits::PiNetwork& exact) {
  const Real omega = angular(ends.frequency_hz);
  // What a capacitor across a resistance leaves of it in series.
  const auto in_series = [omega](Real resistance_ohm, Real capacitance_f) {
    const Real q = omega * capacitance_f * resistance_ohm;
    return resistance_ohm / (1 + q * q);
  };
  const auto standing_wave_ratio = [&](Real input_f, Real output_f) {
    const Real input_ohm = in_series(ends.input_ohm, input_f);
    const Real output_ohm = in_series(ends.output_ohm, output_f);
    return std::max(input_ohm / output_ohm, output_ohm / input_ohm);
  };
  const auto [input_f, output_f] =
      best_standard_pair(exact.input_f, exact.output_f, standing_wave_ratio);
  const Real inductance_h = in_series(ends.input_ohm, input_f) * ends.input_ohm * input_f +
                            in_series(ends.output_ohm, output_f) * ends.output_ohm * output_f;
  return {{input_f, inductance_h, output_f}, standing_wave_ratio(input_f, output_f)};
}

SeriesImpedance seen_past_output_capacitance(Real load_ohm, Real capacitance_f, Real frequency_hz) {
  const Real q = angular(frequency_hz) * capacitance_f * load_ohm;
  const Real resistance_ohm = load_ohm / (1 + q * q);
  return {resistance_ohm, q * resistance_ohm};
}

CoilAndTrimmers coil_and_trimmers(SeriesImpedance towards_coil, Real high_ohm, Real q,
                                  Real frequency_hz, Real power_w) {
  const Real omega = angular(frequency_hz);
  const Real low_ohm = towards_coil.resistance_ohm;
  const Real across_ohm = low_ohm * (1 + q * q);
  const Real other_q = sqrt(other_q_squared(high_ohm, low_ohm, q));
  return {.inductance_h = (q * low_ohm + towards_coil.reactance_ohm) / omega,
          .shunt_f = (q - other_q) / (omega * across_ohm),
          .series_f = 1 / (omega * other_q * high_ohm),
          .coil_current_a = sqrt(power_w / low_ohm),
          .shunt_peak_v = sqrt(2 * power_w * across_ohm)};
}

Complex impedance_towards_base_ohm(const CoilAndTrimmers& network, SeriesImpedance base,
                                   Real base_known_at_hz, Real frequency_hz) {
  const Real omega = angular(frequency_hz);
  const Real detuning = frequency_hz / base_known_at_hz;
  const Real base_reactance_ohm =
      base.reactance_ohm > 0 ? base.reactance_ohm * detuning : base.reactance_ohm / detuning;
  const Complex behind_coil{base.resistance_ohm, base_reactance_ohm + omega * network.inductance_h};
  return reactance(-1 / (omega * network.series_f)) +
         1 / (reactance(omega * network.shunt_f) + 1 / behind_coil);
}

}  // namespace eterlab::transistors
