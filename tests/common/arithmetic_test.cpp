#include "common/arithmetic.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace eterlab {
namespace {

using Kind = ArithmeticFault::Kind;

Kind kind_of_fault(const std::function<void()>& computation) {
  try {
    computation();
  } catch (const ArithmeticFault& fault) {
    return fault.kind();
  }
  throw std::logic_error{"no fault"};
}

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
