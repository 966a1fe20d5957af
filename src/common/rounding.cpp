#include "common/rounding.h"

#include <cmath>

#include "common/number_text.h"

namespace eterlab {

namespace {

constexpr double noise = 1e-9;

Real power_of_ten(int exponent) { return std::pow(10, exponent); }

}  // namespace

Real rounded_up(Real x) { return ceil(x - noise); }

Real rounded_down(Real x) { return floor(x + noise); }

std::string fixed_up(Real x, int decimals) {
  const Real scale = power_of_ten(decimals);
  return fixed(rounded_up(x * scale) / scale, decimals);
}

std::string fixed_down(Real x, int decimals) {
  const Real scale = power_of_ten(decimals);
  return fixed(rounded_down(x * scale) / scale, decimals);
}

bool reaches(Real x, Real limit) {
  constexpr double noise_share = 1e-12;
  return x >= limit * (1 - noise_share);
}

}  // namespace eterlab
