#include <gtest/gtest.h>

#include <cmath>

#include "circuits/coupled_inductors.h"
#include "circuits/impedance.h"
#include "circuits/resonance.h"
#include "common/physics.h"

// By routes of their own: laws of networks, and the extremes that no window shows in all digits.

namespace eterlab::circuits {
namespace {

constexpr double close = 1e-13;

/// To a relative error.
void expect_near(Real value, Real expected, double error = close) {
  EXPECT_NEAR(value.value(), expected.value(), error * std::abs(expected.value()));
}

// Foster: the reactance of what has no losses rises with frequency, and changes sign at resonance.
TEST(LosslessPair, TurnsOverAtResonance) {
  const Real resonance_hz = tuned_circuit(3e-6, 47e-12).frequency_hz;
  for (const auto& [pair, below] :
       {std::pair{&lossless_in_series, -1}, {&lossless_in_parallel, 1}}) {
    for (const double part : {1 + 1e-7, 1 - 1e-7}) {
      EXPECT_FALSE(pair(resonance_hz * part, 3e-6, 47e-12).reactance_ohm);
    }
    EXPECT_GT(*pair(resonance_hz * (1 - 1e-6), 3e-6, 47e-12).reactance_ohm * below, 0);
    EXPECT_LT(*pair(resonance_hz * (1 + 1e-6), 3e-6, 47e-12).reactance_ohm * below, 0);
  }
}

// Inductances add up like reactances, capacitances like susceptances: 1 / C = 1 / C1 - w^2 L in
// series, 1 / L = 1 / L1 - w^2 C in parallel.
TEST(LosslessPair, IsTheSameAsOnePart) {
  const Real hz = 1e6 / (2 * pi);  // w = 1E6
  const Real capacitive_ohm = *lossless_in_series(hz, 10e-6, 10e-9).reactance_ohm;
  expect_near(capacitance_of_reactance_f(hz, -capacitive_ohm), 1 / (1e8 - 1e7));
  const Real inductive_ohm = *lossless_in_parallel(hz, 10e-6, 10e-9).reactance_ohm;
  expect_near(inductance_of_reactance_h(hz, inductive_ohm), 1 / (1e5 - 1e4));
}

TEST(TunedCircuit, EachPairTellsTheSameCircuit) {
  for (const auto& [inductance_h, capacitance_f] :
       {std::pair{1e-18, 1e-24}, {1e6, 1e-24}, {1e6, 1.0}, {5e-6, 1e-10}}) {
    const TunedCircuit tank = tuned_circuit(inductance_h, capacitance_f);
    expect_near(tuned_by_inductance(tank.frequency_hz, capacitance_f).inductance_h, inductance_h);
    expect_near(tuned_by_capacitance(tank.frequency_hz, inductance_h).capacitance_f, capacitance_f);
    expect_near(inductive_reactance_ohm(tank.frequency_hz, inductance_h), tank.reactance_ohm);
    expect_near(capacitive_reactance_ohm(tank.frequency_hz, capacitance_f), tank.reactance_ohm);
  }
}

// At half the bandwidth above and below, where the product of both frequencies is the square of
// resonance, reactance and resistance are equal.
TEST(Selectivity, IsBetweenThePointsOfHalfThePower) {
  const auto edge_hz = [](const Selectivity& tank, double side) {
    const Real half_hz = tank.bandwidth_hz / 2;
    return hypot(half_hz, tank.frequency_hz) + side * half_hz;
  };
  const Selectivity series = series_selectivity(10e-6, 100e-12, 40);
  const Selectivity parallel = parallel_selectivity(10e-6, 100e-12, 2500);
  for (const double side : {-1.0, 1.0}) {
    const Complex z = series_rlc_ohm(edge_hz(series, side), 10e-6, 100e-12, 40);
    expect_near(z.imaginary(), side * z.real(), 1e-12);
    const Complex y = 1 / parallel_rlc_ohm(edge_hz(parallel, side), 10e-6, 100e-12, 2500);
    expect_near(y.imaginary(), side * y.real(), 1e-12);
  }
}

TEST(ParallelRlc, IsTheResistorAtResonance) {
  const Real hz = tuned_circuit(10e-6, 100e-12).frequency_hz;
  EXPECT_EQ(without_negligible_part(parallel_rlc_ohm(hz, 10e-6, 100e-12, 470)).imaginary(), 0);
  expect_near(parallel_rlc_ohm(hz, 10e-6, 100e-12, 470).real(), 470);
  // Beside one of 1E12 ohm, the lossless pair.
  const Complex z = parallel_rlc_ohm(4e6, 10e-6, 100e-12, 1e12);
  expect_near(z.imaginary(), *lossless_in_parallel(4e6, 10e-6, 100e-12).reactance_ohm);
}

TEST(LossyCoil, IsInPhaseWhereItResonates) {
  for (const double coil_ohm : {1e-6, 5.0, 316.0}) {
    const auto resonance = lossy_coil_resonance(coil_ohm, 10e-6, 100e-12);
    ASSERT_TRUE(resonance);
    const Complex z = parallel(coil_ohm + inductor_ohm(resonance->frequency_hz, 10e-6),
                               capacitor_ohm(resonance->frequency_hz, 100e-12));
    expect_near(z.real(), resonance->resistance_ohm, 1e-12);
    // The phase of so sharp a circuit turns by 2 Q times what the frequency is rounded by.
    EXPECT_NEAR(arg(z).value(), 0, 1e-15 * 316 / coil_ohm + 1e-12);
  }
  EXPECT_FALSE(lossy_coil_resonance(317, 10e-6, 100e-12));
}

TEST(CoilLoss, GivesTheQ) {
  const Complex coil_ohm = coil_loss_ohm(7e6, 10e-6, 250) + inductor_ohm(7e6, 10e-6);
  expect_near(coil_ohm.imaginary() / coil_ohm.real(), 250);
}

TEST(Trap, IsNothingAtResonance) {
  const Real hz = tuned_circuit(10e-6, 100e-12).frequency_hz;
  EXPECT_EQ(trap_ohm(hz, 10e-6, 100e-12), Complex{});
  EXPECT_EQ(trap_ohm(hz * (1 + 0.4e-9), 10e-6, 100e-12), Complex{});
  // Twice the detuning of what one of the reactances is.
  const Real reactance_ohm = tuned_circuit(10e-6, 100e-12).reactance_ohm;
  expect_near(trap_ohm(hz * (1 + 1e-8), 10e-6, 100e-12).imaginary(), 2e-8 * reactance_ohm, 1e-6);
}

TEST(NegligiblePart, IsOneInABillion) {
  EXPECT_EQ(without_negligible_part({3, -2.9e-9}), Complex(3, 0));
  EXPECT_EQ(without_negligible_part({3, -3.1e-9}), Complex(3, -3.1e-9));
  EXPECT_EQ(without_negligible_part({2.9e-9, -3}), Complex(0, -3));
  EXPECT_EQ(without_negligible_part({}), Complex{});
}

// Side by side the currents follow from the inverse of the matrix (L1, M; M, L2), here by Cramer's
// rule; in series the energy of a common current tells.
TEST(CoupledInductors, FollowFromTheirMatrix) {
  for (const auto& [l1, l2, k] :
       {std::tuple{10e-6, 22e-6, 0.2}, {3.0, 5.0, 0.9}, {1e-3, 2.0, 0.0}}) {
    const CoupledInductors coils = coupled_inductors(l1, l2, k);
    for (const auto& [sense, series, parallel] :
         {std::tuple{1, coils.series_aiding_h, coils.parallel_aiding_h},
          {-1, coils.series_opposing_h, coils.parallel_opposing_h}}) {
      const double m = sense * k * std::sqrt(l1 * l2);
      expect_near(series, l1 + m + m + l2, 1e-12);
      const double determinant = l1 * l2 - m * m;
      expect_near(parallel, 1 / ((l2 - m) / determinant + (l1 - m) / determinant), 1e-12);
    }
  }
}

// Near the limit of one winding in two wires: L (1 + k) / 2 side by side, 2 L (1 - k) in
// opposition.
TEST(CoupledInductors, KeepTheirDigitsUpToFullCoupling) {
  const double k = 1 - std::ldexp(1, -36);
  const CoupledInductors coils = coupled_inductors(4, 4, k);
  expect_near(coils.series_opposing_h, std::ldexp(8, -36));
  expect_near(coils.parallel_aiding_h, 2 * (1 + k));
  const CoupledInductors one = coupled_inductors(4, 4, 1 - std::ldexp(1, -42));
  EXPECT_EQ(one.series_opposing_h, 0);
  EXPECT_EQ(one.parallel_aiding_h, 4);
}

}  // namespace
}  // namespace eterlab::circuits
