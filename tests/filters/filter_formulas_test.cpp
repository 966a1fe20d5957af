#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <span>
#include <vector>

#include "common/complex.h"
#include "common/physics.h"
#include "filters/filter_response.h"
#include "filters/lc_notch.h"
#include "filters/rc_filters.h"

// Each response against an analysis of the circuit, with its parts one by one.

namespace eterlab::filters {
namespace {

const Real half_power_db = 10 * log10(2);

Complex inductor(Real frequency_hz, Real inductance_h) {
  return imaginary_unit * (2 * pi * frequency_hz * inductance_h);
}

Complex capacitor(Real frequency_hz, Real capacitance_f) {
  return 1 / (imaginary_unit * (2 * pi * frequency_hz * capacitance_f));
}

Real decibel(Complex ratio) { return 20 * log10(abs(ratio)); }

/// A branch of a ladder, in the line or to ground.
struct Branch {
  Complex impedance;
  bool is_in_line;
};

/// Voltage of a source over that of the load which it feeds through a resistance and a ladder.
Complex source_over_load(std::span<const Branch> ladder, Real source_ohm, Real load_ohm) {
  Complex voltage{1};
  Complex current{1 / load_ohm};
  for (auto branch = ladder.rbegin(); branch != ladder.rend(); ++branch) {
    if (branch->is_in_line) {
      voltage = voltage + current * branch->impedance;
    } else {
      current = current + voltage / branch->impedance;
    }
  }
  return voltage + current * source_ohm;
}

TEST(Notch, EitherTrapHasTheResponse) {
  for (const auto& [frequency_hz, bandwidth_hz, impedance_ohm, q] :
       {std::array{7.1e6, 400e3, 50.0, 150.0},
        {1000.0, 200.0, 600.0, 20.0},
        {145e6, 100e6, 75.0, 1.0},
        {50.0, 0.5, 1e4, 1e6}}) {
    const NotchTask task{frequency_hz, bandwidth_hz, impedance_ohm};
    const Trap series = trap(TrapForm::series_to_ground, task);
    const Trap parallel_trap = trap(TrapForm::parallel_in_line, task);
    const Real series_ohm = 2 * pi * frequency_hz * series.inductance_h / q;
    const Real parallel_ohm = 2 * pi * frequency_hz * parallel_trap.inductance_h * q;
    for (const double ratio : {0.25, 0.9, 0.999, 1.0, 1.0001, 1.2, 4.0}) {
      const Real f = frequency_hz * ratio;
      const Complex to_ground =
          series_ohm + inductor(f, series.inductance_h) + capacitor(f, series.capacitance_f);
      const Complex in_line = 1 / (1 / parallel_ohm + 1 / inductor(f, parallel_trap.inductance_h) +
                                   1 / capacitor(f, parallel_trap.capacitance_f));
      const Real told = notch_attenuation_db(task, q, f);
      for (const Branch& branch : {Branch{to_ground, false}, Branch{in_line, true}}) {
        const Complex lossy = source_over_load({&branch, 1}, impedance_ohm, impedance_ohm);
        EXPECT_NEAR(told.value(), decibel(lossy / 2).value(), 1e-6) << ratio;
      }
    }
  }
}

TEST(Notch, HalfThePowerAtTheEdges) {
  constexpr double lossless = 1e18;
  for (const double share : {1e-6, 0.05, 0.999999, 3.0}) {
    const NotchTask task{1e6, 1e6 * share, 50};
    const auto [lower_hz, upper_hz] = notch_edges(task);
    EXPECT_NEAR((upper_hz - lower_hz).value(), 1e6 * share, 1e-9);
    for (const Real edge : {lower_hz, upper_hz}) {
      EXPECT_NEAR(notch_attenuation_db(task, lossless, edge).value(), half_power_db.value(), 1e-8);
    }
  }
}

TEST(ActiveCells, AreButterworth) {
  constexpr double cutoff_hz = 2700;
  constexpr double known = 1e4;  // ohm
  constexpr double known_f = 1e-8;
  const auto [feedback_f, ground_f] = active_low_pass_f(cutoff_hz, known);
  const auto [feedback_ohm, ground_ohm] = active_high_pass_ohm(cutoff_hz, known_f);
  for (const double ratio : {0.03, 0.5, 1.0, 1.7, 30.0}) {
    const Real f = cutoff_hz * ratio;
    // From 1 V at the output back to the input; the follower holds the upper end of the feedback.
    const auto input_over_output = [](Complex series, Complex feedback, Complex shunt) {
      const Complex middle = 1 + series / shunt;
      return middle + series * ((middle - 1) / series + (middle - 1) / feedback);
    };
    EXPECT_NEAR(
        butterworth_attenuation_db(PassBand::low, 2, cutoff_hz, f).value(),
        decibel(input_over_output(Real{known}, capacitor(f, feedback_f), capacitor(f, ground_f)))
            .value(),
        1e-9);
    EXPECT_NEAR(butterworth_attenuation_db(PassBand::high, 2, cutoff_hz, f).value(),
                decibel(input_over_output(capacitor(f, known_f), feedback_ohm, ground_ohm)).value(),
                1e-9);
  }
}

TEST(RcFilters, CellAndTwinT) {
  constexpr double r = 33e3;
  constexpr double c = 1e-7;
  const Real f0 = rc_frequency_hz(r, c);
  EXPECT_DOUBLE_EQ(rc_resistance_ohm(f0, c).value(), r);
  EXPECT_DOUBLE_EQ(rc_capacitance_f(f0, r).value(), c);
  for (const double ratio : {0.01, 0.5, 0.99, 1.001, 3.0, 100.0}) {
    const Complex xc = capacitor(f0 * ratio, c);
    const Complex cell_low = (r + xc) / xc;
    const Complex cell_high = (r + xc) / r;
    EXPECT_NEAR(butterworth_attenuation_db(PassBand::low, 1, f0, f0 * ratio).value(),
                decibel(cell_low).value(), 1e-9);
    EXPECT_NEAR(butterworth_attenuation_db(PassBand::high, 1, f0, f0 * ratio).value(),
                decibel(cell_high).value(), 1e-9);
    // Both middle nodes follow from input and output; their currents into the output cancel.
    const Complex y = 1 / Complex{r};
    const Complex s = 1 / xc;
    const Complex share = (y * y + s * s) / (2 * (y + s) * (y + s));
    EXPECT_NEAR(twin_t_attenuation_db(f0, f0 * ratio).value(), decibel((1 - share) / share).value(),
                1e-7);
  }
  EXPECT_GT(twin_t_attenuation_db(f0, f0 * (1 + 1e-9)), 180);
  EXPECT_THROW(twin_t_attenuation_db(f0, f0), ArithmeticFault);
}

class ThreeElements : public ::testing::Test {
 protected:
  static std::vector<Branch> ladder(const ThreeElementFilter& filter, Real frequency_hz) {
    const Complex coil = inductor(frequency_hz, filter.inductance_h);
    const Complex condenser = capacitor(frequency_hz, filter.capacitance_f);
    const bool is_low_pass = filter.band == PassBand::low;
    const Branch in_line{is_low_pass ? coil : condenser, true};
    const Branch to_ground{is_low_pass ? condenser : coil, false};
    return filter.form == FilterForm::pi ? std::vector{to_ground, in_line, to_ground}
                                         : std::vector{in_line, to_ground, in_line};
  }

  template <class Test>
  static void for_each_kind(Test test) {
    for (const PassBand band : {PassBand::low, PassBand::high}) {
      for (const FilterForm form : {FilterForm::pi, FilterForm::tee}) {
        for (const double impedance_ohm : {0.1, 12.0, 50.0, 75.0, 1e5}) {
          test(ThreeElementFilter{band, form, 1.59e-6, 318e-12, impedance_ohm});
        }
      }
    }
  }
};

TEST_F(ThreeElements, ResponseOfTheLadder) {
  for_each_kind([](const ThreeElementFilter& filter) {
    const Real cutoff = cutoff_hz(filter);
    for (const double ratio : {0.1, 0.7, 1.0, 1.3, 10.0}) {
      const Real f = cutoff * ratio;
      const Complex over_load =
          source_over_load(ladder(filter, f), filter.impedance_ohm, filter.impedance_ohm);
      EXPECT_NEAR(attenuation_db(filter, f).value(), decibel(over_load / 2).value(), 1e-6);
    }
  });
}

TEST_F(ThreeElements, NothingPassesBeyondTheCutoff) {
  for_each_kind([](const ThreeElementFilter& filter) {
    const Real cutoff = cutoff_hz(filter);
    EXPECT_NEAR(attenuation_db(filter, cutoff).value(), half_power_db.value(), 1e-6);
    for (double step = 1e-9; step < 1e3; step *= 1.1) {
      const Real outside = filter.band == PassBand::low ? cutoff * (1 + step) : cutoff / (1 + step);
      EXPECT_GT(attenuation_db(filter, outside), half_power_db);
    }
  });
}

// Of 1, 2, 1 at 1 rad/s and 1 ohm, the Butterworth filter of the third order.
TEST_F(ThreeElements, ButterworthCutsWhereItIsDesignedFor) {
  constexpr double one_hz = 1 / (2 * pi);
  for (const ThreeElementFilter& filter :
       {ThreeElementFilter{PassBand::low, FilterForm::pi, 2 * one_hz, one_hz, 1},
        {PassBand::low, FilterForm::tee, one_hz, 2 * one_hz, 1},
        {PassBand::high, FilterForm::pi, one_hz, one_hz / 2, 1},
        {PassBand::high, FilterForm::tee, one_hz / 2, one_hz, 1}}) {
    EXPECT_NEAR(cutoff_hz(filter).value(), 1, 1e-14);
    for (const double f : {0.001, 0.5, 2.0, 1000.0}) {
      EXPECT_NEAR(attenuation_db(filter, f).value(),
                  butterworth_attenuation_db(filter.band, 3, 1, f).value(), 1e-12);
    }
  }
}

// The largest and smallest parts and impedances of the window.
TEST_F(ThreeElements, MismatchOfAHundredMillionTimes) {
  for (const FilterForm form : {FilterForm::pi, FilterForm::tee}) {
    for (const auto& [inductance_h, capacitance_f, impedance_ohm] :
         {std::array{1.0, 1e-14, 0.1}, {1e-9, 1e-3, 1e5}}) {
      const ThreeElementFilter filter{PassBand::low, form, inductance_h, capacitance_f,
                                      impedance_ohm};
      const Real cutoff = cutoff_hz(filter);
      EXPECT_NEAR(attenuation_db(filter, cutoff).value(), half_power_db.value(), 1e-6);
      EXPECT_GT(attenuation_db(filter, cutoff * (1 + 1e-5)), half_power_db + 1e-6);
    }
  }
}

}  // namespace
}  // namespace eterlab::filters
