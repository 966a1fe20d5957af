#include <gtest/gtest.h>

#include "circuits/handbook_resonance.h"
#include "circuits/ohms_law.h"
#include "circuits/time_constant.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::circuits {
namespace {

TEST(OhmsLaw, NoCurrentOfANegativeResistance) {
  EXPECT_THROW(from_resistance_and_power(-4, 36), ArithmeticFault);
}

// 40 decimal digits; the exact constants of physics would give another seventh digit.
TEST(HandbookResonance, Reactance) {
  EXPECT_FLOAT_EQ(handbook_resonance(0.5, 30).reactance_ohm.value(), 129.099363F);
  EXPECT_THROW(handbook_resonance(10, -100), ArithmeticFault);
}

// Against the circuit's equation, dv / dt = (U - v) / (R C), integrated in steps (Runge-Kutta).
TEST(TimeConstant, SolvesTheEquationOfTheCircuit) {
  constexpr int steps = 1000;
  const Real tau = rc_time_constant_s(47e3, 1e-6);
  EXPECT_EQ(rl_time_constant_s(47e-3, 1), tau);
  for (const double time_s : {0.001, 0.03, 0.2}) {
    const auto settled = [&](Real from, Real towards) {
      const Real step = time_s / steps;
      Real v = from;
      for (int i = 0; i < steps; ++i) {
        const auto slope = [&](Real at) { return (towards - at) / tau; };
        const Real k1 = slope(v);
        const Real k2 = slope(v + step / 2 * k1);
        const Real k3 = slope(v + step / 2 * k2);
        const Real k4 = slope(v + step * k3);
        v += step / 6 * (k1 + 2 * k2 + 2 * k3 + k4);
      }
      return v.value();
    };
    EXPECT_NEAR(risen_to(10, time_s, tau).value(), settled(0, 10), 1e-9);
    EXPECT_NEAR(fallen_to(10, time_s, tau).value(), settled(10, 0), 1e-9);
  }
}

TEST(TimeConstant, KeepsItsDigitsAtBothEnds) {
  EXPECT_DOUBLE_EQ(risen_to(1, 1e-20, 1).value(), 1e-20);
  EXPECT_EQ(fallen_to(1, 1e30, 1e-30), 0);
  EXPECT_DOUBLE_EQ(time_constants_until(1e-20, 1).value(), 1e-20);
  EXPECT_DOUBLE_EQ(time_constants_until(1 - 0x1p-50, 1).value(), (50 * ln(2)).value());
  EXPECT_DOUBLE_EQ(risen_to(12, time_constants_until(8, 12), 1).value(), 8);
}

}  // namespace
}  // namespace eterlab::circuits
