#include "common/preferred_values.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <vector>

#include "common/decimal_digits.h"

namespace eterlab {

namespace {

constexpr double slack = 1e-9;

/// Ascending, from 10 to 100.
std::vector<Real> values_of(Series series) {
  constexpr int e24[] = {10, 11, 12, 13, 15, 16, 18, 20, 22, 24, 27, 30, 33,
                         36, 39, 43, 47, 51, 56, 62, 68, 75, 82, 91, 100};
  // E12 is every second value of E24, and E6 of E12.
  const std::size_t step = series == Series::e6 ? 4 : series == Series::e12 ? 2 : 1;
  std::vector<Real> values;
  for (std::size_t i = 0; i < std::size(e24); i += step) {
    values.emplace_back(e24[i]);
  }
  return values;
}

/// Lets choose(values, x) take one, with x brought to between 10 and 100 as the values are. Powers
/// of ten are put on and off in decimal digits: a product of doubles would miss the decimal number.
template <class Choice>
Real preferred(Real x, Series series, Choice choose) {
  if (x <= 0) {
    throw ArithmeticFault{ArithmeticFault::Kind::invalid_argument};
  }
  DecimalDigits digits{x};
  const int power_of_ten = digits.exponent() - 1;
  digits.shift(-power_of_ten);
  DecimalDigits chosen{choose(values_of(series), digits.value())};
  chosen.shift(power_of_ten);
  return chosen.value();
}

}  // namespace

Real nearest_preferred(Real x, Series series) {
  return preferred(x, series, [](std::span<const Real> values, Real wanted) {
    const auto ratio = [&](Real value) { return std::max(value / wanted, wanted / value); };
    return *std::ranges::min_element(values, {}, ratio);
  });
}

Real next_preferred_up(Real x, Series series) {
  return preferred(x, series, [](std::span<const Real> values, Real wanted) {
    return *std::ranges::lower_bound(values, wanted * (1 - slack));
  });
}

Real next_preferred_down(Real x, Series series) {
  return preferred(x, series, [](std::span<const Real> values, Real wanted) {
    return *std::prev(std::ranges::upper_bound(values, wanted * (1 + slack)));
  });
}

}  // namespace eterlab
