#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "capacitors/back_to_back.h"
#include "capacitors/ceramic_drift.h"
#include "capacitors/plate_capacitor.h"
#include "capacitors/reservoir_capacitor.h"
#include "capacitors/stored_energy.h"
#include "capacitors/working_voltage.h"
#include "circuits/totals.h"
#include "common/physics.h"

// By routes of their own: circuits followed in time, standing waves, limits and inverses.

namespace eterlab::capacitors {
namespace {

// A rectifier with a diode that is a short circuit beyond its drop, followed for ten periods. The
// capacitor leaves the sine a little after its peak, when that falls faster than the load drains
// it, and the sine here begins above the drop: what that makes stays within some per cent.
TEST(ReservoirCapacitor, KeepsTheRippleOfARectifierFollowedInTime) {
  struct Case {
    Rectifier rectifier;
    double rms_v;
    double load_a;
    double ripple_percent;
    double tolerance;
  };
  const Case cases[] = {{Rectifier::bridge, 12, 1, 10, 0.03},
                        {Rectifier::single_diode, 250, 0.03, 5, 0.02},
                        {Rectifier::bridge, 24, 0.1, 2, 0.02},
                        {Rectifier::single_diode, 12, 1, 30, 0.04}};
  constexpr double mains_hz = 50;
  for (const auto& [rectifier, rms_v, load_a, ripple_percent, tolerance] : cases) {
    SCOPED_TRACE(rms_v);
    const RectifiedMains mains = rectified_mains(rectifier, rms_v, mains_hz);
    const ReservoirCapacitor reservoir = reservoir_capacitor(mains, load_a, ripple_percent);
    const double drop_v = std::numbers::sqrt2 * rms_v - mains.peak_v.value();
    constexpr int steps_in_period = 20000;
    double output_v = 0;
    double lowest_v = 1e9;
    double highest_v = 0;
    for (int step = 0; step < 10 * steps_in_period; ++step) {
      const double sine =
          std::numbers::sqrt2 * rms_v * std::cos(2 * pi * (step + 0.5) / steps_in_period);
      const double source_v = (rectifier == Rectifier::bridge ? std::abs(sine) : sine) - drop_v;
      output_v -= load_a / reservoir.capacitance_f.value() / mains_hz / steps_in_period;
      output_v = std::max(output_v, source_v);
      if (step > 8 * steps_in_period) {
        lowest_v = std::min(lowest_v, output_v);
        highest_v = std::max(highest_v, output_v);
      }
    }
    EXPECT_NEAR(highest_v, mains.peak_v.value(), 1e-5 * rms_v);
    EXPECT_NEAR((highest_v - lowest_v) / reservoir.ripple_v.value(), 1, tolerance);
  }
}

// The curve of a plot: its highest and its lowest point are what the numbers say.
TEST(ReservoirCapacitor, ItsVoltageRunsFromPeakToPeak) {
  for (const Rectifier rectifier : {Rectifier::bridge, Rectifier::single_diode}) {
    const RectifiedMains mains{rectifier, 20, 60};
    const ReservoirCapacitor reservoir = reservoir_capacitor(mains, 1, 25);
    const auto at = [&](Real time_s) {
      return reservoir_voltage_v(mains, reservoir, time_s).value();
    };
    EXPECT_NEAR(at(0), 20, 1e-9);
    EXPECT_NEAR(at(reservoir.period_s), 20, 1e-9);
    EXPECT_NEAR(at(reservoir.discharge_s), 15, 1e-9);
    for (int step = 0; step <= 150; ++step) {
      EXPECT_GE(at(reservoir.period_s * step / 100), 15 - 1e-9) << step;
    }
  }
}

// Each capacitor charged by its diode to what keeps it from negative voltage; the current of the
// chain is then that of half of one capacitor.
TEST(BackToBack, ElectrolyticsFollowedInTimeReachThePeakAndPassTheCurrent) {
  constexpr double rms_v = 12;
  constexpr double frequency_hz = 50;
  const BackToBack pair = back_to_back(11e-6, rms_v, frequency_hz);
  constexpr int steps_in_period = 20000;
  double first_v = 0;
  double second_v = 0;
  double highest_v = 0;
  double square_sum = 0;
  double before_v = 0;
  for (int step = 0; step < 10 * steps_in_period; ++step) {
    const double source_v = std::numbers::sqrt2 * rms_v * std::sin(2 * pi * step / steps_in_period);
    // Equal capacitors share a change of voltage; a diode takes over where one would go negative.
    const double change_v = source_v - before_v;
    before_v = source_v;
    double moved_v = change_v / 2;
    if (first_v + moved_v < 0) {
      moved_v = -first_v;
      second_v = -source_v;
      first_v = 0;
    } else if (second_v - (change_v - moved_v) < 0) {
      first_v = source_v;
      second_v = 0;
    } else {
      first_v += moved_v;
      second_v -= change_v - moved_v;
    }
    if (step >= 9 * steps_in_period) {
      highest_v = std::max({highest_v, first_v, second_v});
      const double current_a =
          pair.standard_each_f.value() * moved_v * frequency_hz * steps_in_period;
      square_sum += current_a * current_a;
    }
  }
  EXPECT_NEAR(highest_v, std::numbers::sqrt2 * rms_v, 0.01);
  EXPECT_NEAR(std::sqrt(square_sum / steps_in_period), pair.current_a.value(), 1e-4);
}

TEST(WorkingVoltage, TheLowestStandardOneThatReaches) {
  struct Case {
    double least_v;
    double standard_v;  // 0 for none
  };
  const Case cases[] = {{1e-12, 6.3},
                        {6.3 * (1 + 0.9e-9), 6.3},
                        {6.3 * (1 + 2e-9), 10},
                        {16.0001, 25},
                        {63, 63},
                        {451, 630},
                        {1000 * (1 + 0.9e-9), 1000},
                        {1001, 0},
                        {1e12, 0}};
  for (const auto& [least_v, standard_v] : cases) {
    EXPECT_EQ(standard_working_voltage_v(least_v).value_or(0), standard_v) << least_v;
  }
  EXPECT_EQ(least_whole_working_voltage_v(20), 30);
  EXPECT_EQ(least_whole_working_voltage_v(20.001), 31);
}

// Forward and reflected wave in phase, of a line that delivers the power to its load.
TEST(WorkingVoltage, TheHighestOfAStandingWave) {
  for (const double swr : {1.0, 1.5, 3.0, 100.0}) {
    const double reflection = (swr - 1) / (swr + 1);
    const double forward_w = 100 / (1 - reflection * reflection);
    const double peak_v = std::sqrt(2 * forward_w * 75) * (1 + reflection);
    EXPECT_NEAR(line_peak_v(100, 75, swr).value(), peak_v, 1e-9 * peak_v) << swr;
  }
}

// 1 cm2 at 1 mm in vacuum is 0.885 pF; area and distance are the inverses of the capacitance.
TEST(PlateCapacitor, EachFormulaUndoesTheOthers) {
  EXPECT_NEAR(plate_capacitance_pf(1, 2, 1, 1).value(), 0.88541878188, 1e-13);
  for (const Real plates : {Real{2}, Real{3}, Real{24}}) {
    const Real capacitance_pf = plate_capacitance_pf(4.5, plates, 12, 0.3);
    EXPECT_NEAR(plate_area_cm2(4.5, plates, capacitance_pf, 0.3).value(), 12, 1e-13);
    EXPECT_NEAR(plate_distance_mm(4.5, plates, capacitance_pf, 12).value(), 0.3, 1e-15);
  }
  // Two gaps side by side are two capacitors in parallel.
  EXPECT_EQ(plate_capacitance_pf(1, 3, 1, 1), 2 * plate_capacitance_pf(1, 2, 1, 1));
}

// The code tells the coefficient: P or N for the sign, then the figure; 0 is NP0.
TEST(CeramicDrift, CodesTellTheCoefficient) {
  for (const auto& [code, ppm_per_degree, marking] : ceramic_characteristics()) {
    const int figure = code == "NP0" ? 0 : std::stoi(std::string{code.substr(1)});
    EXPECT_EQ(ppm_per_degree, code.front() == 'P' ? figure : -figure) << code;
  }
  EXPECT_TRUE(std::ranges::is_sorted(ceramic_characteristics(), std::ranges::greater{},
                                     &CeramicCharacteristic::ppm_per_degree));
}

TEST(CeramicDrift, OfTheFrequencyIsHalfThatOfTheCapacitanceAndOpposite) {
  EXPECT_NEAR(tuning_drift(-750, 1e-9).value(), 375e-15, 1e-24);
  EXPECT_NEAR(tuning_drift(1e6, 3).value(), -0.5, 1e-15);  // four times the capacitance
}

// Discharged for that time, the capacitor has 50 V left.
TEST(StoredEnergy, TheResistorLeavesTheSafeVoltage) {
  for (const double voltage_v : {51.0, 400.0, 1e6}) {
    const double time_s = time_to_safety_s(100e-6, voltage_v, 1000).value();
    EXPECT_NEAR(voltage_v * std::exp(-time_s / 0.1), 50, 1e-9) << voltage_v;
  }
  EXPECT_LE(time_to_safety_s(100e-6, 49, 1000), 0);
}

// Totals that divide a whole: as many equal parts, and one that counts for nothing.
TEST(Totals, OfManyAndOfVeryDifferentParts) {
  const std::vector<Real> equal(6, 30);
  EXPECT_EQ(circuits::sum_of(equal), 180);
  EXPECT_NEAR(circuits::parallel_of(equal).value(), 5, 1e-14);
  const std::vector<Real> different{1e12, 1e-12, 1e12};
  EXPECT_NEAR(circuits::parallel_of(different).value(), 1e-12, 1e-26);
}

}  // namespace
}  // namespace eterlab::capacitors
