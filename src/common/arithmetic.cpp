#include "common/arithmetic.h"

#include <cmath>
#include <limits>

namespace eterlab {

namespace {

const char* description(ArithmeticFault::Kind kind) {
  switch (kind) {
    case ArithmeticFault::Kind::division_by_zero:
      return "division by zero";
    case ArithmeticFault::Kind::overflow:
      return "overflow";
    case ArithmeticFault::Kind::invalid_argument:
      break;
  }
  return "invalid argument";
}

}  // namespace

ArithmeticFault::ArithmeticFault(Kind kind) : std::runtime_error{description(kind)}, kind_{kind} {}

void Real::fail() const {
  throw ArithmeticFault{std::isnan(value_) ? ArithmeticFault::Kind::invalid_argument
                                           : ArithmeticFault::Kind::overflow};
}

Real operator/(Real a, Real b) {
  if (b == 0) {
    throw ArithmeticFault{ArithmeticFault::Kind::division_by_zero};
  }
  return Real{a.value() / b.value()};
}

Single::Single(Real value) : value_{static_cast<float>(value.value())} {
  if (std::isinf(value_)) {
    throw ArithmeticFault{ArithmeticFault::Kind::overflow};
  }
}

Real sqrt(Real x) { return Real{std::sqrt(x.value())}; }

Real ln(Real x) {
  if (x <= 0) {
    throw ArithmeticFault{ArithmeticFault::Kind::invalid_argument};
  }
  return Real{std::log(x.value())};
}

Real pow(Real base, Real exponent) {
  if (base == 0 && exponent < 0) {
    throw ArithmeticFault{ArithmeticFault::Kind::division_by_zero};
  }
  return Real{std::pow(base.value(), exponent.value())};
}

Real floor(Real x) { return Real{std::floor(x.value())}; }

std::int16_t round_to_int16(Real x) {
  const double nearest = std::nearbyint(x.value());
  if (nearest < std::numeric_limits<std::int16_t>::min() ||
      nearest > std::numeric_limits<std::int16_t>::max()) {
    throw ArithmeticFault{ArithmeticFault::Kind::overflow};
  }
  return static_cast<std::int16_t>(nearest);
}

}  // namespace eterlab
