#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "common/complex.h"
#include "common/physics.h"
#include "power/ac_power.h"
#include "power/three_terminal_regulator.h"
#include "power/voltage_doubler.h"

// What the windows leave open: ties, limits, and routes of their own to the results.

namespace eterlab::power {
namespace {

// R2 = U / 25 mA by hand.
TEST(Regulators, RoundingAndRange) {
  EXPECT_EQ(raised_fixed_regulator(5, 5.0625)->r2_ohm, 3);  // 2.5, away from zero
  EXPECT_TRUE(raised_fixed_regulator(12, 12.001));
  EXPECT_FALSE(raised_fixed_regulator(12, 35.001));
  EXPECT_TRUE(adjustable_regulator(1.251));
}

// The doublers in the time domain, behind a winding and diodes without resistance.
struct Simulated {
  double mean_v;
  double ripple_v;
};

Simulated simulated(VoltageDoubler circuit, double winding_v, double load_a, double capacitance_f,
                    double mains_hz) {
  constexpr int steps = 20000;  // of a period
  constexpr int periods = 40;   // until each is like the one before
  constexpr double drop_v = 0.7;
  const double discharged_v = load_a / capacitance_f / mains_hz / steps;
  double first_v = 0;
  double second_v = 0;
  double sum = 0;
  double lowest = 1e9;
  double highest = 0;
  for (int step = 0; step < steps * periods; ++step) {
    const double u = winding_v * std::sqrt(2) * std::sin(2 * pi * step / steps);
    second_v -= discharged_v;
    if (circuit == VoltageDoubler::full_wave) {
      first_v = std::max(first_v - discharged_v, u - drop_v);
      second_v = std::max(second_v, -u - drop_v);
    } else {
      first_v = std::max(first_v, -u - drop_v);
      const double shared_v = std::max((first_v + u - drop_v - second_v) / 2, 0.0);
      first_v -= shared_v;
      second_v += shared_v;
    }
    if (step >= steps * (periods - 1)) {
      const double output_v = circuit == VoltageDoubler::full_wave ? first_v + second_v : second_v;
      sum += output_v;
      lowest = std::min(lowest, output_v);
      highest = std::max(highest, output_v);
    }
  }
  return {sum / steps, highest - lowest};
}

TEST(VoltageDoublers, StayOnTheSafeSideOfASimulation) {
  for (const auto circuit : {VoltageDoubler::full_wave, VoltageDoubler::half_wave}) {
    for (const double ripple : {0.01, 0.02, 0.05}) {
      const DoublerDesign design = voltage_doubler(circuit, 24, 0.1, ripple, 50);
      const Simulated measured = simulated(circuit, 24, 0.1, design.capacitance_f.value(), 50);
      EXPECT_NEAR(measured.mean_v / design.mean_v.value(), 1, 0.015);
      EXPECT_LE(measured.ripple_v, design.ripple_v.value());
      EXPECT_GE(measured.ripple_v, design.ripple_v.value() * 0.75);
    }
  }
}

// By the admittances of the load and of the capacitor beside it.
TEST(AcPower, TheCorrectedLoadDrawsItsActiveCurrentOnly) {
  for (const double power_factor : {1e-6, 0.3, 0.8, 0.999999}) {
    const AcPower power = ac_power(230, 4, power_factor, 60);
    const Real angle = power.phase_degrees * pi / 180;
    const Complex load = Complex{cos(angle), sin(angle)} * power.impedance_ohm;
    const Complex corrected =
        1 / load + imaginary_unit * (2 * pi * 60 * power.correcting_capacitor_f);
    EXPECT_NEAR(corrected.imaginary().value(), 0, 1e-14);
    EXPECT_NEAR((corrected.real() * 230 * 230 / power.active_w).value(), 1, 1e-9);
  }
}

}  // namespace
}  // namespace eterlab::power
