#include "common/numerics.h"

// An interval without a double between its ends is no reason to abort.
#define BOOST_DISABLE_ASSERTS

#include <algorithm>
#include <array>
#include <boost/math/quadrature/tanh_sinh.hpp>
#include <boost/math/special_functions/bessel.hpp>
#include <boost/math/special_functions/ellint_2.hpp>
#include <boost/math/special_functions/ellint_rf.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/math/tools/minima.hpp>
#include <boost/math/tools/toms748_solve.hpp>
#include <cmath>
#include <complex>
#include <cstddef>
#include <limits>
#include <numbers>
#include <utility>

// What the policy below calls where a function has no value.
namespace boost::math::policies {

using eterlab::ArithmeticFault;

template <class T>
T user_domain_error(const char* /*function*/, const char* /*message*/, const T& /*value*/) {
  throw ArithmeticFault{ArithmeticFault::Kind::invalid_argument};
}

template <class T>
T user_pole_error(const char* /*function*/, const char* /*message*/, const T& /*value*/) {
  throw ArithmeticFault{ArithmeticFault::Kind::invalid_argument};
}

template <class T>
T user_overflow_error(const char* /*function*/, const char* /*message*/, const T& /*value*/) {
  throw ArithmeticFault{ArithmeticFault::Kind::overflow};
}

template <class T>
T user_evaluation_error(const char* /*function*/, const char* /*message*/, const T& /*value*/) {
  throw ArithmeticFault{ArithmeticFault::Kind::invalid_argument};
}

template <class T, class Target>
T user_rounding_error(const char* /*function*/, const char* /*message*/, const T& /*value*/,
                      const Target& /*target*/) {
  throw ArithmeticFault{ArithmeticFault::Kind::overflow};
}

template <class T>
T user_indeterminate_result_error(const char* /*function*/, const char* /*message*/,
                                  const T& /*value*/) {
  throw ArithmeticFault{ArithmeticFault::Kind::invalid_argument};
}

}  // namespace boost::math::policies

namespace eterlab {

namespace {

namespace policies = boost::math::policies;

/// Every error is an ArithmeticFault. No detour over wider types, which not every processor has.
using Faults = policies::policy<
    policies::domain_error<policies::user_error>, policies::pole_error<policies::user_error>,
    policies::overflow_error<policies::user_error>,
    policies::evaluation_error<policies::user_error>,
    policies::rounding_error<policies::user_error>,
    policies::indeterminate_result_error<policies::user_error>, policies::promote_double<false>>;

/// Far more than bisection takes through all decades of a double.
constexpr boost::uintmax_t most_evaluations = 10'000;

/// Of plain numbers.
auto unwrapped(const RealFunction& f) {
  return [&f](double x) { return f(x).value(); };
}

void require(bool holds) {
  if (!holds) {
    throw ArithmeticFault{ArithmeticFault::Kind::invalid_argument};
  }
}

/// Whether the ends of a bracket differ by no more than rounding.
bool is_narrow(double low, double high) {
  return boost::math::tools::eps_tolerance<double>{}(low, high);
}

/// Of the bracket in which a search has ended.
Real middle_of(const std::pair<double, double>& bracket) {
  const auto [low, high] = bracket;
  require(is_narrow(low, high));
  return low + (high - low) / 2;
}

/// Sine and cosine integral go by their power series up to here, where it loses a digit, and by
/// x exp(jx) E1(jx), which is smooth to infinity, beyond.
constexpr double end_of_series = 5;

/// Powers of x^2 from the first up, of magnitudes 1 / (k k!): of every second k from 1 or from 2.
template <std::size_t Terms>
constexpr std::array<double, Terms> integrated_series(int first_k) {
  std::array<double, Terms> terms{};
  double factorial = 1;
  for (int k = 1, sign = 1; k < first_k + 2 * static_cast<int>(Terms); ++k) {
    factorial *= k;
    if (k >= first_k && (k - first_k) % 2 == 0) {
      terms[static_cast<std::size_t>((k - first_k) / 2)] = sign / (k * factorial);
      sign = -sign;
    }
  }
  return terms;
}

/// Of a series whose terms fall fast; fewer of them do up to 1.
template <std::size_t Terms>
double power_series(const std::array<double, Terms>& terms, double x) {
  constexpr std::size_t enough_up_to_one = 9;
  double sum = 0;
  for (std::size_t term = x > 1 ? Terms : enough_up_to_one; term-- > 0;) {
    sum = sum * x + terms[term];
  }
  return sum;
}

double sine_series(double x) {
  static constexpr auto terms = integrated_series<18>(1);
  return x * power_series(terms, x * x);
}

double cosine_series(double x) {
  static constexpr auto terms = integrated_series<18>(2);
  return std::numbers::egamma + std::log(x) - x * x * power_series(terms, x * x);
}

/// x exp(jx) E1(jx) from the continued fraction (NIST Digital Library of Mathematical Functions,
/// 6.9.1).
std::complex<double> scaled_exponential_integral(double x) {
  constexpr int depth = 100;
  const std::complex<double> z{0, x};
  std::complex<double> fraction = z + (2.0 * depth + 1);
  for (int k = depth; k > 0; --k) {
    fraction = z + (2.0 * k - 1) - static_cast<double>(k) * k / fraction;
  }
  return x / fraction;
}

/// The same as Chebyshev's series in the reciprocal of x, over a range of that.
class ScaledExponentialIntegral {
 public:
  ScaledExponentialIntegral(double from, double to)
      : middle_{(from + to) / 2}, half_{to - middle_} {
    for (std::size_t node = 0; node < terms; ++node) {
      const double angle = std::numbers::pi * (static_cast<double>(node) + 0.5) / terms;
      const std::complex<double> value =
          scaled_exponential_integral(1 / (middle_ + half_ * std::cos(angle)));
      for (std::size_t term = 0; term < terms; ++term) {
        coefficients_[term] +=
            value * (std::cos(static_cast<double>(term) * angle) * (term == 0 ? 1.0 : 2.0) / terms);
      }
    }
  }

  [[nodiscard]] std::complex<double> operator()(double reciprocal) const {
    const double place = (reciprocal - middle_) / half_;
    std::complex<double> last;
    std::complex<double> last_but_one;
    for (std::size_t term = terms; term-- > 1;) {
      last_but_one = std::exchange(last, coefficients_[term] + 2 * place * last - last_but_one);
    }
    return coefficients_[0] + place * last - last_but_one;
  }

 private:
  static constexpr std::size_t terms = 16;

  double middle_;
  double half_;
  std::array<std::complex<double>, terms> coefficients_{};
};

}  // namespace

Real root_between(Real a, Real b, const RealFunction& f) {
  boost::uintmax_t evaluations = most_evaluations;
  return middle_of(boost::math::tools::toms748_solve(unwrapped(f), std::min(a, b).value(),
                                                     std::max(a, b).value(), is_narrow, evaluations,
                                                     Faults{}));
}

Real root_near(Real guess, Slope slope, const RealFunction& f) {
  require(guess != 0);
  constexpr double factor = 2;
  boost::uintmax_t evaluations = most_evaluations;
  return middle_of(boost::math::tools::bracket_and_solve_root(unwrapped(f), guess.value(), factor,
                                                              slope == Slope::rising, is_narrow,
                                                              evaluations, Faults{}));
}

Minimum minimum_between(Real a, Real b, const RealFunction& f) {
  constexpr int as_many_bits_as_can_be = std::numeric_limits<double>::digits / 2;
  const auto argument = [&](double fraction) { return a + (b - a) * fraction; };
  boost::uintmax_t evaluations = most_evaluations;
  // Over a fraction of the interval: the tolerance is not only relative but also one of 1.
  const auto [fraction, value] =
      boost::math::tools::brent_find_minima([&](double x) { return f(argument(x)).value(); }, 0.0,
                                            1.0, as_many_bits_as_can_be, evaluations);
  require(evaluations < most_evaluations);
  return {argument(fraction), value};
}

Real integral(Real a, Real b, const RealFunction& f) {
  static boost::math::quadrature::tanh_sinh<double, Faults> quadrature;
  constexpr double tolerance = 1e-8;
  double error = 0;  // of an interval from -1 to 1
  double magnitude = 0;
  const Real result =
      quadrature.integrate(unwrapped(f), a.value(), b.value(), tolerance, &error, &magnitude);
  require(error * abs(b - a) / 2 <= tolerance * abs(magnitude));
  return result;
}

Real elliptic_k(Real k) {
  // By Carlson's form: 1 - k^2 would lose digits next to 1.
  return boost::math::ellint_rf(0.0, ((1 - k) * (1 + k)).value(), 1.0, Faults{});
}

Real elliptic_e(Real k) { return boost::math::ellint_2(k.value(), Faults{}); }

Real bessel_j(int order, Real x) { return boost::math::cyl_bessel_j(order, x.value(), Faults{}); }

Real bessel_y(int order, Real x) {
  require(x > 0);
  return boost::math::cyl_neumann(order, x.value(), Faults{});
}

Real bessel_i(int order, Real x) { return boost::math::cyl_bessel_i(order, x.value(), Faults{}); }

Real bessel_k(int order, Real x) {
  require(x > 0);
  return boost::math::cyl_bessel_k(order, x.value(), Faults{});
}

Real gamma_function(Real x) { return boost::math::tgamma(x.value(), Faults{}); }

Real sine_integral(Real x) {
  if (abs(x) <= end_of_series) {
    return sine_series(x.value());
  }
  const Real magnitude = std::numbers::pi / 2 + imaginary_exponential_integral(abs(x)).imaginary();
  return x < 0 ? -magnitude : magnitude;
}

Real cosine_integral(Real x) { return -imaginary_exponential_integral(x).real(); }

Complex imaginary_exponential_integral(Real x) {
  require(x > 0);
  const double at = x.value();
  if (at <= end_of_series) {
    return {-cosine_series(at), sine_series(at) - std::numbers::pi / 2};
  }
  constexpr double far = 14;
  static const ScaledExponentialIntegral beyond{0, 1 / far};
  static const ScaledExponentialIntegral before{1 / far, 1 / end_of_series};
  const double reciprocal = 1 / at;
  const std::complex<double> integral =
      (at > far ? beyond : before)(reciprocal)*std::complex<double>{std::cos(at), -std::sin(at)};
  return {integral.real() * reciprocal, integral.imag() * reciprocal};
}

}  // namespace eterlab
