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

void require_above(Real limit, Real x) {
  if (x <= limit) {
    throw ArithmeticFault{ArithmeticFault::Kind::invalid_argument};
  }
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

Real abs(Real x) { return Real{std::abs(x.value())}; }

Real sqrt(Real x) { return Real{std::sqrt(x.value())}; }

Real hypot(Real a, Real b) { return Real{std::hypot(a.value(), b.value())}; }

Real pow(Real base, Real exponent) {
  if (base == 0 && exponent < 0) {
    throw ArithmeticFault{ArithmeticFault::Kind::division_by_zero};
  }
  return Real{std::pow(base.value(), exponent.value())};
}

Real exp(Real x) { return Real{std::exp(x.value())}; }

Real expm1(Real x) { return Real{std::expm1(x.value())}; }

Real ln(Real x) {
  require_above(0, x);
  return Real{std::log(x.value())};
}

Real log1p(Real x) {
  require_above(-1, x);
  return Real{std::log1p(x.value())};
}

Real log10(Real x) {
  require_above(0, x);
  return Real{std::log10(x.value())};
}

Real sin(Real angle) { return Real{std::sin(angle.value())}; }

Real cos(Real angle) { return Real{std::cos(angle.value())}; }

Real tan(Real angle) { return Real{std::tan(angle.value())}; }

Real asin(Real sine) { return Real{std::asin(sine.value())}; }

Real acos(Real cosine) { return Real{std::acos(cosine.value())}; }

Real atan(Real tangent) { return Real{std::atan(tangent.value())}; }

Real atan2(Real y, Real x) {
  // The sum of two zeros is the positive one: a negative zero would be below the branch cut.
  return Real{std::atan2(y.value() + 0.0, x.value() + 0.0)};
}

Real sinh(Real x) { return Real{std::sinh(x.value())}; }

Real cosh(Real x) { return Real{std::cosh(x.value())}; }

Real tanh(Real x) { return Real{std::tanh(x.value())}; }

Real asinh(Real x) { return Real{std::asinh(x.value())}; }

Real floor(Real x) { return Real{std::floor(x.value())}; }

Real ceil(Real x) { return Real{std::ceil(x.value())}; }

Real round(Real x) { return Real{std::round(x.value())}; }

std::int16_t round_to_int16(Real x) {
  const double nearest = std::nearbyint(x.value());
  if (nearest < std::numeric_limits<std::int16_t>::min() ||
      nearest > std::numeric_limits<std::int16_t>::max()) {
    throw ArithmeticFault{ArithmeticFault::Kind::overflow};
  }
  return static_cast<std::int16_t>(nearest);
}

}  // namespace eterlab
