#include "common/numerics.h"

// An interval without a double between its ends is no reason to abort.
#define BOOST_DISABLE_ASSERTS

#include <algorithm>
#include <boost/math/quadrature/tanh_sinh.hpp>
#include <boost/math/special_functions/bessel.hpp>
#include <boost/math/special_functions/ellint_2.hpp>
#include <boost/math/special_functions/ellint_rf.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/math/tools/minima.hpp>
#include <boost/math/tools/toms748_solve.hpp>
#include <limits>
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

}  // namespace eterlab
