#include "common/complex.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>
#include <ostream>
#include <tuple>

#include "support/kind_of_fault.h"

namespace eterlab {

// NOLINTNEXTLINE(misc-use-internal-linkage): what GoogleTest prints with is found beside the class.
void PrintTo(Complex z, std::ostream* out) {
  *out << z.real().value() << " + j " << z.imaginary().value();
}

namespace {

using Kind = ArithmeticFault::Kind;
using test::kind_of_fault;

constexpr double largest = std::numeric_limits<double>::max();
constexpr Complex j = imaginary_unit;

TEST(Complex, IsComputedWithAsTheNumbersAre) {
  const Complex a{3, 4};
  const Complex b{1, -2};
  const std::tuple<const char*, Complex, Complex> table[] = {
      {"a + b", a + b, {4, 2}},    {"a + 1", a + 1, {4, 4}},    {"1 + a", 1 + a, {4, 4}},
      {"a - b", a - b, {2, 6}},    {"a - 1", a - 1, {2, 4}},    {"1 - a", 1 - a, {-2, -4}},
      {"-a", -a, {-3, -4}},        {"a b", a * b, {11, -2}},    {"2 a", 2 * a, {6, 8}},
      {"a 2", a * 2, {6, 8}},      {"a / b", a / b, {-1, 2}},   {"a / 2", a / 2, {1.5, 2}},
      {"25 / a", 25 / a, {3, -4}}, {"j j", j * j, Complex{-1}}, {"conj a", conj(a), {3, -4}},
  };
  for (const auto& [name, result, expected] : table) {
    EXPECT_EQ(result, expected) << name;
  }
  EXPECT_NE(a, Complex(3));
  EXPECT_NE(a, 4 * j);
}

TEST(Complex, IsDividedOverTheWholeRange) {
  EXPECT_EQ(Complex(1e300, 1e300) / Complex(1e300, 1e300), Complex{1});
  EXPECT_EQ(Complex(1e-300, 1e-300) / Complex(1e-300, 1e-300), Complex{1});
  EXPECT_EQ(Complex(3e-200, 4e-200) / Complex(0, 1e-200), Complex(4, -3));
  EXPECT_EQ(1 / Complex(0, 0x1p-1000), Complex(0, -0x1p1000));
}

TEST(Complex, FaultsInsteadOfLeavingTheNumbers) {
  const Complex a{3, 4};
  const Complex much{largest, largest};
  EXPECT_EQ(kind_of_fault([&] { return a / Complex{}; }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([&] { return Complex{} / Complex{}; }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([&] { return a / 0; }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([&] { return 1 / Complex{}; }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([&] { return much + much; }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([&] { return much * much; }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([&] { return much / Complex(1e-5, 1e-5); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([&] { return abs(much); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return exp(Complex(710, 1)); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return sinh(Complex(-712, 1)); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return cosh(Complex(1e300, 1e300)); }), Kind::overflow);
}

TEST(Complex, HasMagnitudeAndAngle) {
  constexpr double pi = std::numbers::pi;
  const std::tuple<Complex, double, double> table[] = {
      {{3e200, -3e200}, 4.24264068711928515e200, -pi / 4},
      {Complex{-2}, 2, pi},
      {-Complex{2}, 2, pi},  // no negative zero takes it across the cut
      {conj(Complex{-2}), 2, pi},
      {-5 * j, 5, -pi / 2},
      {Complex{}, 0, 0},
      {-Complex{}, 0, 0},
  };
  for (const auto& [z, magnitude, angle] : table) {
    EXPECT_DOUBLE_EQ(abs(z).value(), magnitude);
    EXPECT_DOUBLE_EQ(arg(z).value(), angle);
  }
}

// Computed to 40 digits with mpmath, but for whole numbers.
TEST(Complex, HasTheFunctionsOfLines) {
  const Complex z{0.75, -1.25};
  const std::tuple<const char*, Complex, Complex> table[] = {
      {"exp", exp(z), {0.66753744642913158694, -2.0090004549409487626}},
      {"sqrt", sqrt(z), {1.0506516962607839234, -0.59486888207037906788}},
      {"sqrt of a negative number", sqrt(Complex{-4}), 2 * j},
      {"sqrt of another's opposite", sqrt(-Complex{4}), 2 * j},
      {"sqrt of much",
       sqrt(Complex(0, 1e308)),
       {7.0710678118654752440e153, 7.0710678118654752440e153}},
      {"sinh", sinh(z), {0.25929485455116277915, -1.2286345240950955222}},
      {"cosh", cosh(z), {0.40824259187796880779, -0.78036593084585324039}},
      {"tanh", tanh(z), {1.3726075705337832026, -0.38579595260975066418}},
      {"tanh of a long line", tanh(Complex(400, 1)), Complex{1}},
      {"tanh of one as long, backwards", tanh(Complex(-25, 1)), {-1, 3.5076145474880304509e-22}},
      {"tanh next to a pole",
       tanh(Complex(1e-9, 1.5707963)),
       {1390885.4218405769305, 37268631.039842169202}},
      {"tanh of many wavelengths",
       tanh(Complex(0.001, 100.5)),
       {0.001000959104571058414, -0.030974784320684158055}},
  };
  for (const auto& [name, result, expected] : table) {
    EXPECT_DOUBLE_EQ(result.real().value(), expected.real().value()) << name;
    EXPECT_DOUBLE_EQ(result.imaginary().value(), expected.imaginary().value()) << name;
  }
}

TEST(Parallel, IsTheProductOverTheSum) {
  EXPECT_EQ(parallel(30, 60), 20);
  EXPECT_EQ(parallel(0, 60), 0);
  EXPECT_EQ(parallel(Real{}, Real{}), 0);
  EXPECT_EQ(parallel(Complex(10, 10), Complex(10, -10)), Complex{10});
  EXPECT_EQ(parallel(100 * j, Real{100}), Complex(50, 50));
  EXPECT_EQ(parallel(Complex{}, Complex{}), Complex{});
  // R X^2 / |Z|^2: of the product over the sum half the digits would be lost.
  EXPECT_DOUBLE_EQ(parallel(Complex(1e8, 1e8), -1.0 * j).real().value(),
                   1e8 / (1e16 + 99'999'999.0 * 99'999'999.0));
  EXPECT_EQ(kind_of_fault([] { return parallel(50, -50); }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([] { return parallel(50 * j, -50 * j); }), Kind::division_by_zero);
}

}  // namespace
}  // namespace eterlab
