#include "antennas/l_network.h"

namespace eterlab::antennas {

namespace {

/// What is left of x when noise counts as nothing.
Real unless_noise(Real x, Real unit) {
  constexpr double noise = 1e-9;
  return abs(x) < noise * unit ? 0 : x;
}

}  // namespace

LMatch l_match(Complex antenna_ohm, Real line_ohm) {
  constexpr double margin = 1e-9;
  const Real r = antenna_ohm.real();
  const Real x = antenna_ohm.imaginary();
  const auto network = [&](Real series_ohm, Real shunt_siemens) {
    return LNetwork{unless_noise(series_ohm, line_ohm), unless_noise(shunt_siemens, 1 / line_ohm)};
  };
  if (r > line_ohm * (1 + margin)) {
    // The susceptances solve B^2 (R^2 + X^2) - 2 B X - (R / Z0 - 1) = 0.
    const Real root = sqrt(r * (r - line_ohm) + x * x);
    const Real series_ohm = sqrt(line_ohm / r) * root;
    const Real sum = x + (x < 0 ? -1 : 1) * sqrt(r / line_ohm) * root;
    const Real larger = sum / (r * r + x * x);
    const Real smaller = (1 - r / line_ohm) / sum;
    const Real positive = x < 0 ? smaller : larger;
    const Real negative = x < 0 ? larger : smaller;
    return {Shunt::at_antenna, {network(series_ohm, positive), network(-series_ohm, negative)}};
  }
  const Real missing = line_ohm > r ? line_ohm - r : 0;
  const Real reactance_ohm = sqrt(r * missing);
  const Real shunt_siemens = sqrt(missing / r) / line_ohm;
  return {Shunt::at_line,
          {network(reactance_ohm - x, shunt_siemens), network(-reactance_ohm - x, -shunt_siemens)}};
}

bool is_matched(Complex antenna_ohm, Real line_ohm) {
  constexpr double tolerance = 1e-6;
  return abs(antenna_ohm - line_ohm) <= tolerance * line_ohm;
}

}  // namespace eterlab::antennas
