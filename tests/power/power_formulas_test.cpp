#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "common/complex.h"
#include "common/physics.h"
#include "power/ac_power.h"
#include "power/rectifier.h"
#include "power/regulator_circuits.h"
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

/// A rectifier stepped through its periods until it repeats itself.
struct SimulatedRectifier {
  double mean_v = 0;
  double lowest_v = 1e9;
  double highest_v = 0;
  double rms_a = 0;
  double peak_a = 0;
};

SimulatedRectifier simulated(const RectifierSupply& supply, int periods) {
  constexpr int steps = 20000;  // of a period of the mains
  const double drop_v = supply.circuit == RectifierCircuit::bridge ? 1.8 : 0.9;
  double output_v = supply.winding_v.value() * std::sqrt(2) - drop_v;
  SimulatedRectifier result;
  for (int step = 0; step < steps * periods; ++step) {
    const double u = supply.winding_v.value() * std::sqrt(2) * std::sin(2 * pi * step / steps);
    const double rectified_v =
        (supply.circuit == RectifierCircuit::half_wave ? u : std::abs(u)) - drop_v;
    const double current_a = std::max(0.0, (rectified_v - output_v) / supply.winding_ohm.value());
    output_v += (current_a - supply.load_a.value()) / supply.capacitance_f.value() / 50 / steps;
    if (step >= steps * (periods - 1)) {
      result.mean_v += output_v / steps;
      result.lowest_v = std::min(result.lowest_v, output_v);
      result.highest_v = std::max(result.highest_v, output_v);
      result.rms_a += current_a * current_a / steps;
      result.peak_a = std::max(result.peak_a, current_a);
    }
  }
  result.rms_a = std::sqrt(result.rms_a);
  return result;
}

TEST(Rectifier, IsWhatASimulationSettlesAt) {
  using enum RectifierCircuit;
  for (const RectifierSupply& supply : {RectifierSupply{bridge, 13.8, 0.9, 1, 2200e-6},
                                        {half_wave, 9.5, 1.5, 0.1, 1000e-6},
                                        {centre_tap, 24, 0.5, 2, 4700e-6},
                                        {bridge, 230, 40, 0.05, 47e-6},
                                        {half_wave, 6, 0.2, 0.5, 4700e-6}}) {
    const Rectifier rectifier = Rectifier::in_steady_state(supply).value();
    const SimulatedRectifier settled = simulated(supply, 60);
    EXPECT_NEAR(rectifier.mean_v().value() / settled.mean_v, 1, 3e-4);
    EXPECT_NEAR(rectifier.lowest_v().value() / settled.lowest_v, 1, 3e-4);
    EXPECT_NEAR(rectifier.highest_v().value() / settled.highest_v, 1, 3e-4);
    EXPECT_NEAR(rectifier.pulse_rms_a().value() / settled.rms_a, 1, 3e-3);
    EXPECT_NEAR(rectifier.pulse_peak_a().value() / settled.peak_a, 1, 3e-3);
    EXPECT_NEAR(rectifier.winding_va().value() / supply.winding_v.value() / settled.rms_a,
                supply.circuit == centre_tap ? std::sqrt(2) : 1, 3e-3);
  }
}

TEST(Rectifier, ItsCurvesAreWhatItTells) {
  const Rectifier rectifier =
      Rectifier::in_steady_state({RectifierCircuit::bridge, 13.8, 0.9, 1, 2200e-6}).value();
  constexpr int steps = 20000;
  double sum = 0;
  double lowest = 1e9;
  for (int step = 0; step < steps; ++step) {
    const Real angle = 2 * pi * step / steps;
    sum += rectifier.output_v(angle).value() / steps;
    lowest = std::min(lowest, rectifier.output_v(angle).value());
  }
  EXPECT_NEAR(sum, rectifier.mean_v().value(), 1e-6);
  EXPECT_NEAR(lowest, rectifier.lowest_v().value(), 1e-6);
  EXPECT_NEAR(rectifier.rectified_v(3 * pi / 2).value(), rectifier.no_load_v().value(), 1e-12);
}

// Over the corners of the ranges there is a steady state, finite and in order, or none.
TEST(Rectifier, ExtremesAreFiniteAndInOrder) {
  int steady = 0;
  for (int corner = 0; corner < 48; ++corner) {
    const auto rectifier = Rectifier::in_steady_state(
        {static_cast<RectifierCircuit>(corner / 16), corner & 1 ? 1000.0 : 2.0,
         corner & 2 ? 1000.0 : 0.01, corner & 4 ? 50.0 : 0.001, corner & 8 ? 1.0 : 1e-6});
    if (rectifier) {
      ++steady;
      EXPECT_LE(rectifier->lowest_v(), rectifier->mean_v()) << corner;
      EXPECT_LE(rectifier->mean_v(), rectifier->highest_v()) << corner;
      EXPECT_LE(rectifier->highest_v(), rectifier->no_load_v()) << corner;
      EXPECT_GE(rectifier->pulse_peak_a(), rectifier->pulse_rms_a()) << corner;
      EXPECT_GE(rectifier->capacitor_rms_a(), 0) << corner;
    }
  }
  EXPECT_GT(steady, 12);
}

// Power that goes in comes out: at the load, in the parts and as heat.
TEST(RegulatorCircuits, LoseWhatTheyDoNotDeliver) {
  for (const double output_v : {5.5, 7.0, 9.0, 30.0}) {
    const LiftedRegulator lifted = lifted_regulator(5, output_v);
    const Real part_w = lifted.part_dissipation_w() * std::max(lifted.diodes, 1);
    EXPECT_NEAR(
        (33 * (0.2 + 0.005) - lifted.output_v() * 0.2 - part_w - lifted.dissipation_w(33, 0.2))
            .value(),
        0, 1e-12);
  }
  const RegulatedCurrent source = regulated_current(5, 0.3);
  const Real input_a = source.current_a;  // the load shorted
  EXPECT_NEAR((20 * input_a - source.resistor_dissipation_w() - source.dissipation_w(20)).value(),
              0, 1e-12);
  for (const double gain : {24.0, 40.0, 20000.0}) {
    const BoostedRegulator boosted = boosted_regulator(12, 10, gain);
    const Real total_a = boosted.regulator_a + boosted.transistor_a;
    EXPECT_NEAR(total_a.value(), 10.005, 1e-12);
    EXPECT_NEAR((18 * total_a - 12 * Real{10} - boosted.resistor_dissipation_w() -
                 boosted.dissipation_w(18) - boosted.transistor_dissipation_w(18))
                    .value(),
                0, 1e-10);
  }
}

TEST(VariableSupply, CoversEveryRangeWithSomePotentiometer) {
  for (double lowest_v = 1.25; lowest_v < 36; lowest_v += 0.37) {
    for (double highest_v = lowest_v + 0.47; highest_v <= 37; highest_v += 0.41) {
      bool suits = false;
      for (const double potentiometer_ohm : {470.0, 1000.0, 2200.0, 4700.0, 10000.0}) {
        if ((highest_v - lowest_v) / potentiometer_ohm < 0.001 - 1e-9) {
          continue;
        }
        const VariableSupply supply = variable_supply({lowest_v, highest_v, potentiometer_ohm});
        suits = suits || supply.potentiometer_w <= 0.25;
        EXPECT_LE(supply.lowest_v, lowest_v + 1e-9);
        EXPECT_GE(supply.highest_v, highest_v - 1e-9);
        // The node of the adjusting pin: what comes in through R1 and out of the pin goes out.
        const Real below_ohm = supply.r2_ohm.value_or(0) + potentiometer_ohm;
        const Real pin_v = supply.highest_v - 1.25;
        EXPECT_NEAR((1.25 / supply.r1_ohm + 50e-6 - pin_v / below_ohm).value(), 0, 1e-12);
      }
      EXPECT_TRUE(suits) << lowest_v << " to " << highest_v;
    }
  }
}

}  // namespace
}  // namespace eterlab::power
