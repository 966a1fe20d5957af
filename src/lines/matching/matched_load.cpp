#include "lines/matching/matched_load.h"

#include <algorithm>

#include "common/numerics.h"
#include "lines/standing_wave.h"

namespace eterlab::lines {

namespace {

/// Lengths repeat after half a wave, and so short a rest of it is none.
Real within_half_a_wave(Real angle) {
  constexpr double noise = 1e-9;
  const Real rest = angle - pi * floor(angle / pi);
  return pi - rest < noise ? 0 : rest;
}

/// 1 - rho^2
Real absorbed_share(Complex load_ohm, Real line_ohm) {
  const Real sum = abs(load_ohm + line_ohm);
  return 4 * (load_ohm.real() / sum) * (line_ohm / sum);
}

}  // namespace

Complex MatchedLoad::input_impedance_ohm(Real frequency_ratio) const {
  Complex impedance_ohm = load_ohm;
  for (const LineSection& section : sections) {
    impedance_ohm = section.input_impedance_ohm(impedance_ohm, frequency_ratio);
  }
  return stub ? 1 / (1 / impedance_ohm + stub->admittance(frequency_ratio)) : impedance_ohm;
}

Real MatchedLoad::swr(Real frequency_ratio) const {
  return standing_wave_ratio(input_impedance_ohm(frequency_ratio), line_ohm);
}

Real MatchedLoad::unmatched_swr() const { return standing_wave_ratio(load_ohm, line_ohm); }

MatchedBand MatchedLoad::band(Real greatest_swr) const {
  constexpr int steps = 500;
  constexpr double step = 0.001;
  const auto excess = [&](Real frequency_ratio) { return swr(frequency_ratio) - greatest_swr; };
  const auto edge = [&](int direction) -> Real {
    Real inside = 1;
    for (int i = 1; i <= steps; ++i) {
      const Real outside = 1 + direction * i * step;
      if (excess(outside) > 0) {
        return excess(inside) < 0 ? root_between(inside, outside, excess) : inside;
      }
      inside = outside;
    }
    return inside;
  };
  return {edge(-1), edge(1)};
}

QuarterWaveMatch quarter_wave_match(Real load_ohm, Real line_ohm) {
  constexpr double greatest_swr = 1.5;
  constexpr double greatest_share = 0.99;
  const Real impedance_ohm = quarter_wave_impedance_ohm(load_ohm, line_ohm);
  const LineOnSale& cable = nearest_line(lines_on_sale(), impedance_ohm);
  const Real with_cable =
      standing_wave_ratio(quarter_wave_input_ohm(cable.impedance_ohm, load_ohm), line_ohm);
  const bool helps = with_cable <= greatest_swr &&
                     with_cable <= greatest_share * standing_wave_ratio(load_ohm, line_ohm);
  const Real used_ohm = helps ? Real{cable.impedance_ohm} : impedance_ohm;
  return {
      impedance_ohm, helps ? &cable : nullptr, {load_ohm, line_ohm, {{used_ohm, quarter_wave}}}};
}

std::optional<MatchedLoad> series_section_match(Complex load_ohm, Real line_ohm, Real section_ohm) {
  constexpr double noise = 1e-9;
  const Complex reflection = reflection_coefficient(load_ohm, line_ohm);
  const Real n = section_ohm / line_ohm;
  const Real numerator = 2 * n * abs(reflection);
  const Real denominator = abs(n * n - 1) * sqrt(absorbed_share(load_ohm, line_ohm));
  if (numerator > (1 + noise) * denominator) {
    return std::nullopt;
  }
  const Real sine = std::min<Real>(numerator / denominator, 1);
  const Real length = asin(sine);
  const Real turned = atan2((n * n + 1) * sine, 2 * n * cos(length));
  const Real to_section = n > 1 ? turned - quarter_wave : turned + quarter_wave;
  const Real distance = within_half_a_wave((arg(reflection) - to_section) / 2);
  return MatchedLoad{load_ohm, line_ohm, {{line_ohm, distance}, {section_ohm, length}}};
}

SeriesSectionLimits series_section_limits(Real line_ohm, Real standing_wave_ratio) {
  const Real root = sqrt(standing_wave_ratio);
  return {line_ohm / root, line_ohm * root};
}

MatchedLoad stub_match(StubEnd end, Complex load_ohm, Real line_ohm, Real stub_ohm) {
  const Complex reflection = reflection_coefficient(load_ohm, line_ohm);
  // The susceptance to be taken away, over that of the line.
  const Real b = 2 * abs(reflection) / sqrt(absorbed_share(load_ohm, line_ohm));
  const Real turned = quarter_wave + atan(b / 2);
  const bool is_open = end == StubEnd::open;
  const Real distance = within_half_a_wave((arg(reflection) + (is_open ? -turned : turned)) / 2);
  const Real length = is_open ? atan(b * stub_ohm / line_ohm) : atan(line_ohm / (stub_ohm * b));
  return {load_ohm, line_ohm, {{line_ohm, distance}}, Stub{end, {stub_ohm, length}}};
}

Real twelfth_wave_angle(Real line_ohm, Real other_line_ohm) {
  const Real n = other_line_ohm / line_ohm;
  return atan(sqrt(n / (n * n + n + 1)));
}

}  // namespace eterlab::lines
