#include "common/numerics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>

#include "support/kind_of_fault.h"

namespace eterlab {
namespace {

using Kind = ArithmeticFault::Kind;
using test::kind_of_fault;

constexpr double pi = std::numbers::pi;

void expect_relative(Real result, double expected, double tolerance, const char* what) {
  EXPECT_NEAR(result.value(), expected, tolerance * abs(expected).value()) << what;
}

Real one(Real /*x*/) { return 1; }

TEST(Roots, AreExactOverManyDecades) {
  const std::tuple<const char*, Real, double> table[] = {
      {"cosine", root_between(0, 2, cos), pi / 2},
      {"cosine, backwards", root_between(2, 0, cos), pi / 2},
      {"at an end", root_between(1, 3, [](Real x) { return x - 1; }), 1},
      {"flat", root_between(0, 1e9, [](Real x) { return pow(x, 9) - 1e-90; }), 1e-10},
      {"of many decades", root_between(1e-300, 1e300, [](Real x) { return ln(x) - ln(2e-12); }),
       2e-12},
      {"a jump", root_between(0, 1, [](Real x) { return x < 1e-200 ? Real{-1} : Real{1}; }),
       1e-200},
      {"below the guess", root_near(1, Slope::rising, [](Real x) { return x - 1e-20; }), 1e-20},
      {"above the guess", root_near(1, Slope::falling, [](Real x) { return 3e20 - x; }), 3e20},
      {"negative", root_near(-1, Slope::rising, [](Real x) { return x + 100; }), -100},
      {"the guess", root_near(7, Slope::rising, [](Real x) { return x - 7; }), 7},
  };
  for (const auto& [name, root, expected] : table) {
    expect_relative(root, expected, 2e-15, name);
  }
}

TEST(Roots, WantAChangeOfSign) {
  const auto above_zero = [](Real x) { return x + 1; };
  EXPECT_EQ(kind_of_fault([&] { root_between(0, 1, above_zero); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { root_between(1, 1, cos); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([&] { root_near(1, Slope::rising, above_zero); }),
            Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { root_near(1, Slope::falling, one); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { root_near(0, Slope::rising, cos); }), Kind::invalid_argument);
}

// Two signs about 0 and no zero there: no bracket is narrow for it.
TEST(Roots, EndTheirSearch) {
  int evaluations = 0;
  const auto jump_at_zero = [&](Real x) {
    ++evaluations;
    return x <= 0 ? Real{-1} : Real{1};
  };
  EXPECT_EQ(kind_of_fault([&] { root_between(-1, 1.5, jump_at_zero); }), Kind::invalid_argument);
  EXPECT_LE(evaluations, 10'000);
}

TEST(Minima, AreAsNearAsTheIntervalIsWide) {
  const auto parabola = [](Real x) { return (x - 3e-12) * (x - 3e-12) * 1e24 + 2; };
  const Minimum inside = minimum_between(0, 1e-11, parabola);
  EXPECT_NEAR(inside.at.value(), 3e-12, 1e-18);
  EXPECT_NEAR(inside.value.value(), 2, 1e-12);
  EXPECT_NEAR(minimum_between(1e-11, 0, parabola).at.value(), 3e-12, 1e-18);
  const auto kink = [](Real x) { return abs(x - 1000) + 5; };
  EXPECT_NEAR(minimum_between(900, 2000, kink).at.value(), 1000, 1.1e-4);
  EXPECT_NEAR(minimum_between(1000, 2000, kink).at.value(), 1000, 1e-4);
  EXPECT_NEAR(minimum_between(0, 1000, kink).at.value(), 1000, 1e-4);
  EXPECT_EQ(minimum_between(0, 1, one).value, 1);
}

// Primitives by hand; the sine integral of pi as published, 1.85193705198246617.
TEST(Integrals, AreThoseOfThePrimitives) {
  constexpr double smooth = 1e-13;
  const std::tuple<const char*, Real, double, double> table[] = {
      {"sine", integral(0, pi, sin), 2, smooth},
      {"backwards", integral(pi, 0, sin), -2, smooth},
      {"short", integral(0, 1e-12, [](Real x) { return 2 * x; }), 1e-24, smooth},
      {"long", integral(0, 1e12, [](Real x) { return 2 * x; }), 1e24, smooth},
      {"many waves", integral(0, 100, [](Real x) { return sin(x) * sin(x); }),
       50 - std::sin(200) / 4, smooth},
      {"infinite at the left", integral(0, 4, [](Real x) { return 1 / sqrt(x); }), 4, smooth},
      {"infinite at the right", integral(-4, 0, [](Real x) { return 1 / sqrt(-x); }), 4, smooth},
      {"logarithm", integral(0, 1, ln), -1, smooth},
      {"infinite beside 5", integral(5, 6, [](Real x) { return 1 / sqrt(x - 5); }), 2, 1e-7},
      {"kink", integral(0, 3, [](Real x) { return abs(x - 1); }), 2.5, 1e-8},
      {"sine integral", integral(0, pi, [](Real x) { return sin(x) / x; }), 1.85193705198246617,
       smooth},
      {"nothing", integral(2, 2, cos), 0, 0},
      {"zero", integral(0, 1, [](Real) { return Real{}; }), 0, 0},
  };
  for (const auto& [name, result, expected, tolerance] : table) {
    expect_relative(result, expected, tolerance, name);
  }
}

TEST(Integrals, OfWhatHasNoneAreFaults) {
  EXPECT_EQ(kind_of_fault([] { integral(0, 1, [](Real x) { return 1 / x; }); }),
            Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { integral(0, 3, [](Real x) { return x < 1 ? Real{0} : Real{1}; }); }),
            Kind::invalid_argument);
}

TEST(Numerics, LetFaultsOfTheFunctionPass) {
  const auto divides = [](Real x) { return 1 / (x - x); };
  EXPECT_EQ(kind_of_fault([&] { root_between(0, 1, divides); }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([&] { root_near(1, Slope::rising, divides); }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([&] { minimum_between(0, 1, divides); }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([&] { integral(0, 1, divides); }), Kind::division_by_zero);
}

// Computed to 30 digits with mpmath.
TEST(SpecialFunctions, HaveTheirValues) {
  constexpr double next_to_one = 1 - 0x1p-40;
  const std::tuple<const char*, Real, double> table[] = {
      {"K(0)", elliptic_k(0), pi / 2},
      {"K(0.8)", elliptic_k(0.8), 1.9953027776647293877},
      {"K(-0.8)", elliptic_k(-0.8), 1.9953027776647293877},
      {"K next to 1", elliptic_k(next_to_one), 14.902664382045373726},
      {"E(0)", elliptic_e(0), pi / 2},
      {"E(0.8)", elliptic_e(0.8), 1.2763499431699064233},
      {"E(1)", elliptic_e(1), 1},
      {"J0(0)", bessel_j(0, 0), 1},
      {"J0(1)", bessel_j(0, 1), 0.76519768655796655145},
      {"J1(1)", bessel_j(1, 1), 0.44005058574493351596},
      {"J1(1E6)", bessel_j(1, 1e6), -0.00072596835681376304185},
      {"J10(25)", bessel_j(10, 25), -0.075179843948523283841},
      {"J-3(2)", bessel_j(-3, 2), -0.1289432494744020511},
      {"Y0(2.5)", bessel_y(0, 2.5), 0.49807035961523188783},
      {"Y1(1)", bessel_y(1, 1), -0.78121282130028871655},
      {"Y3(0.5)", bessel_y(3, 0.5), -42.059494304723882688},
      {"I0(1)", bessel_i(0, 1), 1.2660658777520083356},
      {"I2(-3)", bessel_i(2, -3), 2.2452124409299511546},
      {"K0(1)", bessel_k(0, 1), 0.42102443824070833334},
      {"K1(0.1)", bessel_k(1, 0.1), 9.8538447808706061348},
      {"K4(30)", bessel_k(4, 30), 2.77125917598762492e-14},
      {"K0 of much", bessel_k(0, 1000), 0},
      {"Si(1E-8)", sine_integral(1e-8), 1e-8},
      {"Si(-1)", sine_integral(-1), -0.94608307036718301494},
      {"Si(4.9999)", sine_integral(4.9999), 1.54995042390558879},
      {"Si(5.0001)", sine_integral(5.0001), 1.54991206693465355},
      {"Si(-1000)", sine_integral(-1000), -1.57023312196877129},
      {"Ci(1E-8)", cosine_integral(1e-8), -17.8434650790508336},
      {"Ci(0.5)", cosine_integral(0.5), -0.1777840788066129},
      {"Ci(4.9999)", cosine_integral(4.9999), -0.190035421998139803},
      {"Ci(5.0001)", cosine_integral(5.0001), -0.190024075510764279},
      {"Ci(13.9999)", cosine_integral(13.9999), 0.0693953788758921705},
      {"Ci(14.0001)", cosine_integral(14.0001), 0.0693973322647238534},
      {"Ci(1000)", cosine_integral(1000), 0.000826315511090682246},
      {"Im E1(j 1000)", imaginary_exponential_integral(1000).imaginary(), -0.000563204826125401083},
      {"gamma of 5", gamma_function(5), 24},
      {"gamma of -1.5", gamma_function(-1.5), 2.3632718012073547031},
  };
  for (const auto& [name, result, expected] : table) {
    expect_relative(result, expected, 1e-14, name);
  }
}

TEST(SpecialFunctions, FaultWhereTheyHaveNoValue) {
  EXPECT_EQ(kind_of_fault([] { elliptic_k(1); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { elliptic_k(-1.01); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { elliptic_e(1.01); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { bessel_y(1, 0); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { bessel_y(0, -1); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { bessel_k(0, 0); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { bessel_k(1, -1); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { gamma_function(-2); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { cosine_integral(0); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { imaginary_exponential_integral(-1); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { bessel_y(5, 1e-100); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { bessel_k(3, 1e-200); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { bessel_i(0, 800); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { gamma_function(172); }), Kind::overflow);
}

}  // namespace
}  // namespace eterlab
