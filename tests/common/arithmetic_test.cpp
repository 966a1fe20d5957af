#include "common/arithmetic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numbers>
#include <tuple>

#include "support/kind_of_fault.h"

namespace eterlab {
namespace {

using Kind = ArithmeticFault::Kind;
using test::kind_of_fault;

constexpr double largest = std::numeric_limits<double>::max();

TEST(Real, FaultsInsteadOfLeavingTheNumbers) {
  const Real zero;
  EXPECT_EQ(kind_of_fault([&] { return 1 / zero; }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([&] { return zero / zero; }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([] { return Real{largest} + largest; }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return Real{-largest} - largest; }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return Real{largest} * 2; }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return Real{largest} / 0.5; }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return sqrt(-1); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { return ln(0); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { return ln(-1); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { return pow(10, 400); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return pow(-8, 0.5); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { return pow(0, -1); }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([] { return log10(0); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { return log1p(-1); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { return asin(1.0000001); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { return acos(-1.0000001); }), Kind::invalid_argument);
  EXPECT_EQ(kind_of_fault([] { return exp(710); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return expm1(710); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return sinh(-711); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return cosh(711); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return hypot(largest, largest); }), Kind::overflow);
}

TEST(Real, AssignsTheResultUnlessThereIsNone) {
  Real x = 3;
  x += 4;
  x *= 5;
  x -= 11;
  x /= 16;
  EXPECT_EQ(x, 1.5);
  EXPECT_EQ(kind_of_fault([&] { x /= 0; }), Kind::division_by_zero);
  EXPECT_EQ(kind_of_fault([&] { (x = largest) *= 2; }), Kind::overflow);
  EXPECT_EQ(x, largest);
}

TEST(Real, HasAnOrder) {
  constexpr Real one = 1;
  static_assert(one < 2 && one >= 1 && -one < 0);
  EXPECT_EQ(std::max<Real>({one, 3, 2}), 3);
  EXPECT_EQ(std::min(one, Real{-1}), -1);
}

// Computed to 40 digits with mpmath.
TEST(Real, HasTheFunctionsOfPlainNumbers) {
  constexpr double pi = std::numbers::pi;
  const std::tuple<const char*, Real, double> table[] = {
      {"abs", abs(-2.5), 2.5},
      {"hypot", hypot(-3e200, 4e200), 5e200},
      {"exp", exp(2.5), 12.182493960703473438},
      {"exp of what is too small", exp(-800), 0},
      {"expm1", expm1(1e-10), 1.0000000000500000364e-10},
      {"log1p", log1p(1e-10), 9.9999999995000003644e-11},
      {"log10", log10(2), 0.30102999566398119521},
      {"log10 of a power", log10(1000), 3},
      {"sin", sin(1), 0.84147098480789650665},
      {"sin of many turns", sin(1e6), -0.34999350217129295212},
      {"cos", cos(1), 0.5403023058681397174},
      {"tan", tan(1), 1.5574077246549022305},
      {"asin", asin(0.5), 0.52359877559829887308},
      {"acos", acos(-0.5), 2.0943951023931954923},
      {"atan", atan(2), 1.107148717794090503},
      {"atan2", atan2(-1, -2), -2.6779450445889871222},
      {"atan2 of the origin", atan2(-Real{}, -Real{}), 0},
      {"atan2 on the cut", atan2(-Real{}, -1), pi},
      {"sinh", sinh(1.5), 2.1292794550948174968},
      {"cosh", cosh(1.5), 2.3524096152432473258},
      {"tanh", tanh(1.5), 0.90514825364486643824},
      {"tanh of much", tanh(1000), 1},
      {"asinh", asinh(-1e10), -23.718998110500402149},
      {"ceil", ceil(2.1), 3},
      {"ceil of a negative number", ceil(-2.9), -2},
      {"round", round(2.5), 3},
      {"round of a negative number", round(-2.5), -3},
      {"round just below a half", round(0.49999999999999994), 0},
  };
  for (const auto& [name, result, expected] : table) {
    EXPECT_DOUBLE_EQ(result.value(), expected) << name;
  }
}

TEST(Real, UnderflowIsZero) { EXPECT_EQ(Real{1e-300} * 1e-300, 0); }

TEST(Single, NarrowsAndFaultsBeyondItsRange) {
  EXPECT_EQ(Single{0.1}.value(), 0.1F);
  EXPECT_NE(Real{Single{0.1}}, Real{0.1});
  EXPECT_EQ(kind_of_fault([] { return Single{1e39}; }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return Single{-1e39}; }), Kind::overflow);
}

TEST(RoundToInt16, TiesToEvenWithinTheRange) {
  EXPECT_EQ(round_to_int16(0.5), 0);
  EXPECT_EQ(round_to_int16(1.5), 2);
  EXPECT_EQ(round_to_int16(172.5), 172);
  EXPECT_EQ(round_to_int16(-2.5), -2);
  EXPECT_EQ(round_to_int16(32767.49), 32767);
  EXPECT_EQ(round_to_int16(-32768.5), -32768);
  EXPECT_EQ(kind_of_fault([] { return round_to_int16(32767.5); }), Kind::overflow);
  EXPECT_EQ(kind_of_fault([] { return round_to_int16(-32769); }), Kind::overflow);
}

TEST(Floor, IsTheWholeNumberNotAbove) {
  EXPECT_EQ(floor(2.9), 2);
  EXPECT_EQ(floor(-0.5), -1);
}

}  // namespace
}  // namespace eterlab
