#include <gtest/gtest.h>

#include <algorithm>

#include "circuits/impedance.h"
#include "circuits/lc_matching.h"
#include "circuits/quality_factor.h"
#include "circuits/tuning_range.h"
#include "common/complex.h"

// By nodal analysis.

namespace eterlab::circuits {
namespace {

Complex reactance(Real ohm) { return {0, ohm}; }

void expect_matches(Complex seen, Real wanted_ohm) {
  EXPECT_LT(abs(seen - wanted_ohm) / wanted_ohm, 1e-9) << wanted_ohm.value();
}

// Seen from either end, with coils and capacitors in both places.
TEST(LcMatching, BothEndsSeeTheirResistance) {
  const double table[][3] = {{50, 200, 12}, {2000, 50, 6.26}, {75, 75, 0.1}, {0.1, 1e5, 1500}};
  for (const auto& [r1, r2, q] : table) {
    ASSERT_GE(q, least_section_q(r1, r2));
    const ThreePartSection pi = pi_section(r1, r2, q);
    const ThreePartSection t = t_section(r1, r2, q);
    for (const double sign : {1.0, -1.0}) {
      const auto through_pi = [&](Real from, Real far_ohm, Real near_ohm) {
        const Complex beyond = parallel(Complex{from}, reactance(-sign * far_ohm));
        return parallel(beyond + reactance(sign * pi.middle_ohm), reactance(-sign * near_ohm));
      };
      expect_matches(through_pi(r2, pi.last_ohm, pi.first_ohm), r1);
      expect_matches(through_pi(r1, pi.first_ohm, pi.last_ohm), r2);
      const auto through_t = [&](Real from, Real far_ohm, Real near_ohm) {
        const Complex beyond = from + reactance(sign * far_ohm);
        return parallel(beyond, reactance(-sign * t.middle_ohm)) + reactance(sign * near_ohm);
      };
      expect_matches(through_t(r2, t.last_ohm, t.first_ohm), r1);
      expect_matches(through_t(r1, t.first_ohm, t.last_ohm), r2);
    }
    if (r1 != r2) {
      const LSection l = l_section(r1, r2);
      const Real low = std::min(r1, r2);
      const Real high = std::max(r1, r2);
      expect_matches(parallel(low + reactance(l.series_ohm), reactance(-l.shunt_ohm)), high);
    }
  }
}

// Two decimals above sqrt(ratio - 1) + 0.01, without the noise of the root.
TEST(LcMatching, LeastQualityFactor) {
  EXPECT_EQ(least_section_q(2000, 50), 6.26);
  EXPECT_EQ(least_section_q(10, 50), 2.01);
  EXPECT_EQ(least_section_q(1.25, 1), 0.51);
  EXPECT_EQ(least_section_q(7, 7), 0.01);
}

TEST(TuningRange, PartsForARangeCoverIt) {
  const VariableCapacitor variable{10e-12, 365e-12};
  const TuningRange wanted{0.52e6, 1.62e6};
  const TuningRange covered = tuning_range(variable, parts_for_range(variable, wanted));
  EXPECT_NEAR((covered.lowest_hz / wanted.lowest_hz).value(), 1, 1e-12);
  EXPECT_NEAR((covered.highest_hz / wanted.highest_hz).value(), 1, 1e-12);
  // Nothing in parallel, but for the noise of 0.3 / 0.1; too little of a change.
  EXPECT_EQ(parts_for_range({1e-12, 9e-12}, {0.1e6, 0.3e6}).parallel_f, 0);
  EXPECT_LT(parts_for_range({20e-12, 60e-12}, {7e6, 14e6}).parallel_f, 0);
}

TEST(QualityFactor, OfACoilAndAcrossIt) {
  const LossyCoil coil = lossy_coil(7.05e6, 4e-6, 1.5);
  const Complex admittance = 1 / Complex{1.5, coil.reactance_ohm};
  EXPECT_NEAR((coil.parallel_ohm * admittance.real()).value(), 1, 1e-12);
}

// A tank with losses between equal loads, that take as much as makes the loaded Q.
TEST(QualityFactor, WhatAResonatorLosesBetweenLoads) {
  const Real unloaded_q = 250;
  const Real loaded_q = 50;
  const Real loss_s = 1 / unloaded_q;  // of a reactance of 1 ohm
  const Real load_s = (1 / loaded_q - loss_s) / 2;
  const Real voltage = load_s / (2 * load_s + loss_s);  // of a source with that conductance
  const LoadedResonator resonator = loaded_resonator(unloaded_q, loaded_q);
  EXPECT_NEAR(resonator.efficiency.value(), (4 * voltage * voltage).value(), 1e-12);
  EXPECT_NEAR(resonator.loss_db.value(), (-20 * log10(2 * voltage)).value(), 1e-12);
}

TEST(QualityFactor, HalfThePowerIsLeftAtTheEdges) {
  for (const double q : {0.01, 1.0, 50.0, 1e5}) {
    const Selectivity circuit{145e6, q, 145e6 / q};
    const HalfPower edges = half_power(circuit);
    for (const Real edge_hz : {edges.lower_hz, edges.upper_hz}) {
      EXPECT_NEAR(resonance_response_db(circuit, edge_hz).value(), -3.0103, 1e-5);
    }
    EXPECT_NEAR(selectivity_between(edges.lower_hz, edges.upper_hz).quality_factor.value() / q, 1,
                1e-9);
  }
}

// Where the parallel circuit is a pure resistance.
TEST(QualityFactor, ResistanceOfATank) {
  const Real r = 8;
  const Real inductance_h = 200e-6;
  const Real capacitance_f = 365e-12;
  const Real x = tuned_circuit(inductance_h, capacitance_f).reactance_ohm;
  const TankResistance tank = tank_resistance(x, x / r);
  const auto in_phase = lossy_coil_resonance(r, inductance_h, capacitance_f);
  ASSERT_TRUE(in_phase);
  const Complex z = parallel(r + inductor_ohm(in_phase->frequency_hz, inductance_h),
                             capacitor_ohm(in_phase->frequency_hz, capacitance_f));
  EXPECT_NEAR((z.real() / tank.parallel_ohm).value(), 1, 1e-12);
  EXPECT_EQ(tank.series_ohm, r);
}

}  // namespace
}  // namespace eterlab::circuits
