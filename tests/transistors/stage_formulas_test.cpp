#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <utility>
#include <vector>

#include "common/physics.h"
#include "transistors/emitter_bias.h"
#include "transistors/stage_matching.h"

// The circuits solved as networks, by none of the design formulas.

namespace eterlab::transistors {
namespace {

using Phasor = std::complex<double>;

/// A network of admittances between nodes, of which node 0 is ground.
class Network {
 public:
  Network(int nodes, double frequency_hz)
      : size_{static_cast<std::size_t>(nodes)},
        omega_{2 * pi * frequency_hz},
        rows_(size_ + 1, std::vector<Phasor>(size_ + 2)) {}

  Network& resistor(std::size_t a, std::size_t b, Real ohm) { return add(a, b, 1 / ohm.value()); }
  Network& capacitor(std::size_t a, std::size_t b, Real farad) {
    return add(a, b, Phasor{0, omega_ * farad.value()});
  }
  Network& inductor(std::size_t a, std::size_t b, Real henry) {
    return add(a, b, Phasor{0, -1 / (omega_ * henry.value())});
  }
  /// A current into one node and out of another, controlled by the voltage from one node to
  /// another.
  Network& transconductance(std::size_t into, std::size_t out_of, std::size_t plus,
                            std::size_t minus, double siemens) {
    rows_[into][plus] -= siemens;
    rows_[into][minus] += siemens;
    rows_[out_of][plus] += siemens;
    rows_[out_of][minus] -= siemens;
    return *this;
  }

  /// The voltages of the nodes with a current of 1 A into one of them.
  [[nodiscard]] std::vector<Phasor> voltages(std::size_t driven) const {
    auto rows = rows_;
    rows[driven].back() = 1;
    for (std::size_t pivot = 1; pivot <= size_; ++pivot) {
      for (std::size_t row = 1; row <= size_; ++row) {
        const Phasor factor = row == pivot ? 0 : rows[row][pivot] / rows[pivot][pivot];
        for (std::size_t column = pivot; row != pivot && column < size_ + 2; ++column) {
          rows[row][column] -= factor * rows[pivot][column];
        }
      }
    }
    std::vector<Phasor> result(size_ + 1);
    for (std::size_t node = 1; node <= size_; ++node) {
      result[node] = rows[node].back() / rows[node][node];
    }
    return result;
  }

 private:
  Network& add(std::size_t a, std::size_t b, Phasor admittance) {
    rows_[a][a] += admittance;
    rows_[b][b] += admittance;
    rows_[a][b] -= admittance;
    rows_[b][a] -= admittance;
    return *this;
  }

  std::size_t size_;
  double omega_;
  std::vector<std::vector<Phasor>> rows_;
};

void expect_load(Phasor seen_ohm, Real wanted_ohm, double tolerance = 1e-10) {
  EXPECT_NEAR(std::abs(seen_ohm / wanted_ohm.value() - 1.0), 0, tolerance);
}

/// Of a load in parallel to what a source wants, that of the generator's own resistance.
double swr(Phasor seen_ohm, Real reference_ohm) {
  const double g =
      std::abs((seen_ohm - reference_ohm.value()) / (seen_ohm + reference_ohm.value()));
  return (1 + g) / (1 - g);
}

TEST(TappedCapacitor, ShowsItsLoadAndMovesAllPower) {
  for (const double q : {6.0, 10.0, 60.0}) {
    const TappedCapacitor exact = tapped_capacitor(1806, 50, q, 14e6);
    const TappedCapacitor standard = with_standard_values(exact, 50, 14e6);
    for (const TappedCapacitor& parts : {exact, standard}) {
      const auto v = Network{2, 14e6}
                         .inductor(1, 0, parts.inductance_h)
                         .capacitor(1, 2, parts.series_f)
                         .capacitor(2, 0, parts.shunt_f)
                         .resistor(2, 0, 50)
                         .voltages(1);
      expect_load(v[1], parts.load_ohm);
      EXPECT_NEAR(std::norm(v[2]) / 50 / v[1].real(), 1, 1e-9);
    }
    EXPECT_NEAR(std::log(standard.load_ohm.value() / 1806), 0, 0.25);
  }
}

TEST(PiNetwork, ShowsItsLoadFromBothSides) {
  for (const double load_ohm : {33.0625, 50.0, 120.4, 700.0}) {
    const circuits::PiTerminations ends{load_ohm, 50, 7.03e6};
    const double q = 4;
    const circuits::PiNetwork pi_parts = pi_network(ends, q);
    const auto solve = [&](const circuits::PiNetwork& parts, double harmonic) {
      return Network{2, 7.03e6 * harmonic}
          .capacitor(1, 0, parts.input_f)
          .inductor(1, 2, parts.inductance_h)
          .capacitor(2, 0, parts.output_f)
          .resistor(2, 0, 50)
          .voltages(1);
    };
    const auto v = solve(pi_parts, 1);
    expect_load(v[1], load_ohm);
    const double omega = 2 * pi * 7.03e6;
    const double coil_a = std::abs(v[1] - v[2]) / (omega * pi_parts.inductance_h.value());
    EXPECT_NEAR(pi_coil_current_a(ends, q, load_ohm).value(), coil_a, coil_a * 1e-9);
    EXPECT_NEAR(second_harmonic_attenuation_db(ends, pi_parts).value(),
                20 * std::log10(std::abs(v[2] / solve(pi_parts, 2)[2])), 1e-9);

    StandardPiNetwork standard = with_standard_values(ends, pi_parts);
    const double best = swr(solve(standard.parts, 1)[1], load_ohm);
    EXPECT_NEAR(standard.standing_wave_ratio.value(), best, 1e-7);
    for (const double detuned : {0.99, 1.01}) {
      circuits::PiNetwork other = standard.parts;
      other.inductance_h *= detuned;
      EXPECT_GT(swr(solve(other, 1)[1], load_ohm), best);
    }
  }
}

TEST(CoilAndTrimmers, LeaveTheCollectorItsLoad) {
  const double load_ohm = 2.645;
  const auto collector = seen_past_output_capacitance(load_ohm, 90e-12, 145e6);
  const CoilAndTrimmers network = coil_and_trimmers(collector, 50, 6, 145e6, 25);
  const auto v = Network{3, 145e6}
                     .capacitor(1, 0, 90e-12)
                     .inductor(1, 2, network.inductance_h)
                     .capacitor(2, 0, network.shunt_f)
                     .capacitor(2, 3, network.series_f)
                     .resistor(3, 0, 50)
                     .voltages(1);
  expect_load(v[1], load_ohm);
  const double drive_a = std::sqrt(25 / load_ohm);  // rms
  EXPECT_NEAR(network.shunt_peak_v.value(), std::sqrt(2) * drive_a * std::abs(v[2]), 1e-9);
  const double coil_a = std::abs(v[1] - v[2]) / (2 * pi * 145e6 * network.inductance_h.value());
  EXPECT_NEAR(network.coil_current_a.value(), coil_a * drive_a, 1e-9);
}

TEST(CoilAndTrimmers, ShowTheTransmitterItsImpedanceAndDetuneAsRealParts) {
  for (const double reactance_ohm : {1.0, 0.0, -1.5}) {
    const CoilAndTrimmers network = coil_and_trimmers({1.5, -reactance_ohm}, 50, 8, 145e6, 3);
    const SeriesImpedance base{1.5, reactance_ohm};
    const auto seen = [&](double frequency_hz) {
      const Complex z = impedance_towards_base_ohm(network, base, 145e6, frequency_hz);
      return Phasor{z.real().value(), z.imaginary().value()};
    };
    expect_load(seen(145e6), 50);
    // The base as a resistance and a coil or capacitor.
    Network real_parts{4, 142.1e6};
    real_parts.capacitor(1, 2, network.series_f)
        .capacitor(2, 0, network.shunt_f)
        .inductor(2, 3, network.inductance_h)
        .resistor(4, 0, 1.5);
    const double omega = 2 * pi * 145e6;
    if (reactance_ohm < 0) {
      real_parts.capacitor(3, 4, -1 / (omega * reactance_ohm));
    } else {
      real_parts.inductor(3, 4, std::max(reactance_ohm, 1e-7) / omega);
    }
    EXPECT_NEAR(std::abs(real_parts.voltages(1)[1] - seen(142.1e6)), 0, 1e-5);
  }
}

TEST(ClassB, DrawsTheMeanOfHalfSines) {
  constexpr int steps = 100000;
  double sum = 0;
  double fundamental = 0;
  for (int i = 0; i < steps; ++i) {
    const double current = std::max(0.0, std::sin(2 * pi * i / steps));
    sum += current / steps;
    fundamental += 2 * current * std::sin(2 * pi * i / steps) / steps;
  }
  const double load_ohm = collector_load_ohm(13.5, 1, 50).value();
  EXPECT_NEAR(class_b_current_a(13.5, 1, load_ohm).value(), 12.5 / load_ohm * sum / fundamental,
              1e-8);
}

/// The collector current of an exponential transistor in the circuit, by bisection of its
/// base-emitter voltage.
double exponential_current_a(const CommonEmitterParts& parts, double supply_v, double gain) {
  constexpr double thermal_v = 0.025852;
  double low = 0;
  double high = 1;
  for (int i = 0; i < 100; ++i) {
    const double diode_v = (low + high) / 2;
    const double current_a = 1e-3 * std::exp((diode_v - 0.65) / thermal_v);
    const double base_v = current_a * (1 + 1 / gain) * parts.emitter_ohm.value() + diode_v;
    const double divider_a =
        (supply_v - base_v) / parts.r1_ohm.value() - base_v / parts.r2_ohm.value();
    (divider_a > current_a / gain ? low : high) = diode_v;
  }
  return 1e-3 * std::exp((low - 0.65) / thermal_v);
}

TEST(CommonEmitter, WorksAsAnExponentialTransistorDoes) {
  for (const CommonEmitterGoal& goal :
       {CommonEmitterGoal{12, 1e-3, 200, 50}, CommonEmitterGoal{9, 2e-3, 150, 100},
        CommonEmitterGoal{3, 50e-6, 20, 1}, CommonEmitterGoal{100, 0.1, 1000, 1e6}}) {
    const CommonEmitterStage stage = common_emitter_stage(goal);
    const double supply_v = goal.supply_v.value();
    const double gain = goal.current_gain.value();
    const auto expect_current = [&](Real current_a, double of_gain) {
      EXPECT_NEAR(current_a.value() / exponential_current_a(stage.parts, supply_v, of_gain), 1,
                  0.02);
    };
    expect_current(stage.collector_current_a, gain);
    expect_current(stage.current_with_half_gain_a, gain / 2);
    expect_current(stage.current_with_double_gain_a, gain * 2);

    // Hybrid-pi: base 1, emitter 2, collector 3, source 4 behind C1.
    const double transconductance_s = stage.collector_current_a.value() / 0.0258520;
    const auto solve = [&](double frequency_hz, Real bypass_f) {
      const auto v = Network{4, frequency_hz}
                         .resistor(1, 0, stage.parts.r1_ohm)
                         .resistor(1, 0, stage.parts.r2_ohm)
                         .resistor(1, 2, gain / transconductance_s)
                         .resistor(2, 0, stage.parts.emitter_ohm)
                         .capacitor(2, 0, bypass_f)
                         .resistor(3, 0, stage.parts.collector_ohm)
                         .capacitor(4, 1, stage.parts.input_coupling_f)
                         .transconductance(2, 3, 1, 2, transconductance_s)
                         .voltages(4);
      return std::pair{v[4], std::abs(v[3] / v[4])};
    };
    const double lowest_hz = goal.lowest_hz.value();
    const auto [input_ohm, voltage_gain] = solve(1e7 * lowest_hz, stage.parts.emitter_bypass_f);
    EXPECT_NEAR(voltage_gain / stage.voltage_gain.value(), 1, 1e-5);
    EXPECT_NEAR(input_ohm.real() / stage.input_ohm.value(), 1, 1e-5);
    EXPECT_NEAR(solve(1e7 * lowest_hz, 1e-30).second / stage.voltage_gain_without_bypass.value(), 1,
                1e-5);
    EXPECT_GT(20 * std::log10(solve(lowest_hz, stage.parts.emitter_bypass_f).second / voltage_gain),
              -3.5);
  }
}

}  // namespace
}  // namespace eterlab::transistors
