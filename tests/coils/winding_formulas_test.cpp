#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "circuits/impedance.h"
#include "circuits/resonance.h"
#include "coils/ferrite/ferrite_cores.h"
#include "coils/ferrite/ferrite_transformer.h"
#include "coils/layered_coil.h"
#include "coils/printed_coil.h"
#include "coils/resonant_line.h"
#include "coils/self_resonance.h"
#include "coils/short_coil.h"
#include "coils/winding_inductance.h"
#include "common/complex.h"
#include "common/numerics.h"
#include "common/physics.h"

// By other routes: field integrals, sums over single turns, published measurements.

namespace eterlab::coils {
namespace {

constexpr double mu0 = vacuum_permeability_h_per_m;

void expect_within(double share, Real value, Real expected) {
  EXPECT_NEAR((value / expected).value(), 1, share) << expected.value();
}

/// Of turns in a row: their own inductances, and those of all pairs.
Real sum_of_turns(int turns, const std::function<Real(int)>& self_h,
                  const std::function<Real(int, int)>& mutual_h) {
  Real sum = 0;
  for (int i = 0; i < turns; ++i) {
    sum += self_h(i);
    for (int j = 0; j < i; ++j) {
      sum += 2 * mutual_h(i, j);
    }
  }
  return sum;
}

// Lorenz's formula in elliptic integrals.
TEST(WindingInductance, CurrentSheetOfAnyShape) {
  constexpr double radius = 0.03;
  for (const double diameters : {0.01, 0.1, 0.5, 0.999, 1.001, 2.0, 10.0, 50.0}) {
    const Real length = 2 * radius * diameters;
    const Real k = 1 / hypot(1, diameters);
    const Real k2 = k * k;
    const Real lorenz = 8 * mu0 * 49 * radius * radius * radius / (3 * length * length) *
                        (((2 * k2 - 1) * elliptic_e(k) + (1 - k2) * elliptic_k(k)) / (k2 * k) - 1);
    expect_within(3e-6, current_sheet_inductance_h(radius, length, 7), lorenz);
  }
}

// Neumann's integral around the circles, and along the wires.
TEST(WindingInductance, MutualOnesAreNeumannsIntegrals) {
  const double circles[][3] = {{1, 1, 0.5}, {1, 0.2, 0}, {0.1, 0.11, 0.001}, {0.01, 0.02, 3}};
  for (const auto& [a, b, z] : circles) {
    const Real by_integral =
        mu0 * a * b * integral(0, pi, [a = a, b = b, z = z](Real angle) {
          return cos(angle) / hypot(hypot(a - b, z), 2 * sqrt(a * b) * sin(angle / 2));
        });
    expect_within(1e-6, coaxial_circles_mutual_h(a, b, z), by_integral);
  }
  const double wires[][3] = {{1, 1, 0.5}, {1, 0.3, 0.2}, {0.01, 2, 1}, {1, 1, 30}};
  for (const auto& [p, q, d] : wires) {
    const Real by_integral =
        mu0 / (4 * pi) * integral(-p / 2, p / 2, [q = q, d = d](Real x) {
          return integral(-q / 2, q / 2, [x, d](Real y) { return 1 / hypot(x - y, d); });
        });
    expect_within(1e-6, facing_segments_mutual_h(p, q, d), by_integral);
  }
  // A circle that is small and far away links with the other one's field on its axis.
  expect_within(1e-9, coaxial_circles_mutual_h(1, 1e-6, 1e3),
                mu0 * pi * 1e-12 / 2 / pow(hypot(1, 1e3), 3));
}

TEST(ShortCoil, IsTheSumOfItsTurns) {
  const double coils[][4] = {{8, 1, 1.5, 6}, {8, 1, 1, 3}, {20, 2, 4, 10}, {10, 0.5, 0.6, 50}};
  for (const auto& [diameter, wire, pitch, turns] : coils) {
    const double radius = diameter / 2;
    const Real sum = sum_of_turns(
        static_cast<int>(turns),
        [=](int) { return mu0 * radius * (ln(16 * radius / wire) - 2); },  // on its skin
        [=, p = pitch](int i, int j) {
          return coaxial_circles_mutual_h(radius, radius, (i - j) * p);
        });
    expect_within(0.012, short_coil_inductance_h({diameter, wire}, turns, pitch), sum);
  }
  const ShortCoil coil{0.007, 0.001};
  EXPECT_EQ(fewest_turns(coil, 0.0015, 0.1e-6), Real{6});
  expect_within(
      1e-12,
      short_coil_inductance_h(coil, 6, stretched_pitch_m(coil, 6, 0.0015, 0.1e-6).value_or(1)),
      0.1e-6);
  EXPECT_FALSE(stretched_pitch_m(coil, 6, 0.0015, 0.05e-6));
}

// The geometric mean distance of a thin strip is 0.2231 of its width.
TEST(PrintedCoil, IsTheSumOfItsTracks) {
  struct {
    PrintedSpiral spiral;
    int turns;
    double within;
  } const table[] = {{{SpiralShape::round, 10, 1, 1}, 5, 0.02},
                     {{SpiralShape::round, 20, 1, 2}, 4, 0.035},
                     {{SpiralShape::square, 10, 2, 1}, 5, 0.02},
                     {{SpiralShape::square, 20, 1, 3}, 6, 0.055}};
  for (const auto& [spiral, turns, within] : table) {
    const auto size = [s = spiral](int i) {
      return s.inner_m + s.track_m + 2 * i * (s.track_m + s.gap_m);
    };
    const auto mutual = [&, shape = spiral.shape](Real a, Real b, Real apart) -> Real {
      if (shape == SpiralShape::round) {
        return coaxial_circles_mutual_h(a / 2, b / 2, a == b ? apart : Real{0});
      }
      return 4 *
             (facing_segments_mutual_h(a, b, apart) - facing_segments_mutual_h(a, b, (a + b) / 2));
    };
    const Real sum = sum_of_turns(
        turns, [&, w = spiral.track_m](int i) { return mutual(size(i), size(i), 0.2231 * w); },
        [&](int i, int j) { return mutual(size(i), size(j), (size(i) - size(j)) / 2); });
    expect_within(within, printed_coil(spiral, turns).inductance_h, sum);
  }
}

TEST(LayeredCoil, OfMaxwellsBestShape) {
  // Grover: the Brooks coil, 0.016994 uH for a mean radius of 1 cm and each turn squared.
  const LayeredCoil brooks = layered_coil(RoundForm{0.04}, {0.02, 0.001}, 400);
  EXPECT_EQ(brooks.layers, 20);
  expect_within(2e-3, brooks.inductance_h, 0.016994e-6 * 3 * 400 * 400);
  expect_within(1e-12, brooks.wire_length_m, 2 * pi * 0.03 * 400);
}

TEST(LayeredCoil, OfOneSquareTurnAndOfAnyOrderOfSides) {
  // Grover: a square of round wire.
  const Real side = 0.301;
  expect_within(1e-3, layered_coil(RectangularForm{0.3, 0.3}, {0.02, 0.001}, 1).inductance_h,
                8e-7 * side * (ln(side / 0.46e-3) - 0.52401));
  const Layering layering{0.005, 0.0005};
  expect_within(1e-12, layered_coil(RectangularForm{0.02, 0.09}, layering, 47).inductance_h,
                layered_coil(RectangularForm{0.09, 0.02}, layering, 47).inductance_h);
}

TEST(LayeredCoil, TakesTheNearestTurnsUpToTheMost) {
  const Layering wide{0.01, 0.0005};
  const Layering narrow{0.001, 0.0005};
  EXPECT_EQ(most_turns(wide), 1500);
  EXPECT_EQ(most_turns(narrow), 200);
  for (const Layering& layering : {wide, narrow}) {
    const RoundForm form{0.02};
    const auto inductance_h = [&](int turns) {
      return layered_coil(form, layering, turns).inductance_h;
    };
    const auto near = [&](Real wanted_h) {
      const auto coil = layered_coil_near(form, layering, wanted_h);
      return coil ? coil->turns : 0;
    };
    const Real between = (inductance_h(41) + inductance_h(42)) / 2;
    EXPECT_EQ(near(between * 0.9999), 41);
    EXPECT_EQ(near(between * 1.0001), 42);
    const int most = most_turns(layering);
    EXPECT_EQ(near(inductance_h(most)), most);
    EXPECT_EQ(near(inductance_h(most) * 1.0001), 0);
  }
}

// A ladder of short pieces of the line, from its shorted end, resonates with the capacitor.
TEST(ResonantLine, ResonatesAsALadder) {
  constexpr int cells = 2000;
  const Real frequency_hz = 432e6;
  const Real capacitance_f = 3e-12;
  for (const LineConductor conductor :
       {LineConductor::rod_over_plane, LineConductor::strip_over_plane, LineConductor::wire_fork}) {
    const Real z0 = line_impedance_ohm(conductor, 0.006, 0.01);
    const ResonantLine line = resonant_line(frequency_hz, capacitance_f, z0);
    const Real delay_s = line.length_m / cells / speed_of_light_m_per_s;
    Complex z;
    for (int i = 0; i < cells; ++i) {
      z = parallel(z + circuits::inductor_ohm(frequency_hz, z0 * delay_s),
                   circuits::capacitor_ohm(frequency_hz, delay_s / z0));
    }
    expect_within(1e-3, z.imaginary(),
                  -circuits::capacitor_ohm(frequency_hz, capacitance_f).imaginary());
  }
}

// A wide strip is a parallel-plate line; a narrow one a wire of a quarter of its width.
TEST(ResonantLine, StripsOfEveryWidth) {
  const auto strip_ohm = [](double width, double height) {
    return line_impedance_ohm(LineConductor::strip_over_plane, width, height);
  };
  expect_within(0.02, strip_ohm(0.25, 0.001), free_space_impedance_ohm / (250 + 2.5));
  expect_within(1e-3, strip_ohm(0.0002, 0.1), 59.958 * ln(8 * 0.1 / 0.0002));
}

TEST(SelfResonance, AsMedhurstMeasuredIt) {
  // Length over diameter, pF for a diameter of 1 cm.
  const double table[][2] = {{0.1, 0.96}, {0.2, 0.70}, {0.5, 0.50}, {1, 0.46},  {2, 0.50},
                             {4, 0.72},   {5, 0.81},   {10, 1.32},  {20, 2.36}, {50, 5.8}};
  for (const auto& [diameters, capacitance_pf] : table) {
    expect_within(0.08, coil_self_resonance(0.01, 0.01 * diameters, 20).capacitance_f,
                  capacitance_pf * 1e-12);
  }
}

TEST(SelfResonance, IsRecoveredFromTwoMeasurements) {
  const auto measure = [](Real capacitance_f, Real own_f) {
    return ResonanceMeasured{capacitance_f,
                             circuits::tuned_circuit(10e-6, capacitance_f + own_f).frequency_hz};
  };
  for (const double own_f : {0.01e-12, 4e-12, 300e-12}) {
    const auto coil = measured_self_resonance(measure(50e-12, own_f), measure(200e-12, own_f));
    ASSERT_TRUE(coil);
    expect_within(1e-9, coil->capacitance_f, own_f);
    expect_within(1e-12, coil->inductance_h, 10e-6);
  }
  EXPECT_FALSE(measured_self_resonance(measure(50e-12, 0), measure(200e-12, 0)));
}

TEST(FerriteCores, IndexGoesWithPermeabilityAndSize) {
  for (const FerriteCore& core : ferrite_cores()) {
    SCOPED_TRACE(core.name);
    expect_within(0.021, core.inductance_index_nh * 1e-9,
                  mu0 * core.initial_permeability * core.height_mm / 1000 *
                      ln(core.outer_diameter_mm / core.inner_diameter_mm) / (2 * pi));
  }
}

const FerriteCore& core(std::string_view name) {
  for (const FerriteCore& each : ferrite_cores()) {
    if (each.name == name) {
      return each;
    }
  }
  throw std::invalid_argument{std::string{name}};
}

// Of published curves, examples, loss factors and the guideline for the flux, in gauss.
TEST(FerriteCores, FollowWhatMakersPublish) {
  const FerriteCore& ft240 = core("FT-240-43");
  expect_within(0.11, turn_impedance_ohm(ft240, 1e6), abs(Complex{0.5, 6}));
  expect_within(0.04, turn_impedance_ohm(ft240, 14e6), abs(Complex{24, 24}));
  expect_within(0.025, turn_loss_conductance_s(ft240, 3.5e6) / 16, 1.68e-3);
  const FerriteCore& ring = core("TN36/23/15-4C65");
  expect_within(0.03, turn_loss_conductance_s(ring, 10e6), 130e-6 * 125 / (2 * pi * 10e6 * 170e-9));
  expect_within(0.03, effective_section_m2(ring), 97.5e-6);
  const double guideline[][2] = {{1, 150}, {7, 57}, {14, 42}, {21, 36}, {28, 30}};
  for (const auto& [mhz, gauss] : guideline) {
    // A sine's voltage is the flux times 2 pi f / sqrt(2) = 4.44 f.
    expect_within(0.095, greatest_winding_voltage_v(ft240, mhz * 1e6, 3),
                  4.443 * mhz * 1e6 * 3 * effective_section_m2(ft240) * gauss * 1e-4);
  }
}

TEST(FerriteTransformer, TakesTheFewestTurnsThatFitElseTheBest) {
  struct {
    const char* core;
    double low_ohm, high_ohm, mhz;
    double low_turns, high_turns;
  } const table[] = {
      {"FT-240-43", 50, 200, 3.5, 4, 8},   {"FT-240-43", 50, 450, 30, 3, 9},
      {"FT-240-43", 50, 120, 3.5, 7, 11},  // 4 : 6, 5 : 8 and 6 : 9 give an SWR of 1.07
      {"FT-140-61", 1, 1.2, 60, 6, 7},     // 1.13, the others 1.2
      {"FT-140-61", 1, 1.1, 60, 1, 1},     // all alike
      {"FT-140-61", 1, 10000, 60, 1, 100},
  };
  for (const auto& row : table) {
    SCOPED_TRACE(row.high_ohm);
    const auto made = ferrite_transformer(core(row.core), row.low_ohm, row.high_ohm, row.mhz * 1e6);
    EXPECT_EQ(made.low_turns, row.low_turns);
    EXPECT_EQ(made.high_turns, row.high_turns);
  }
}

}  // namespace
}  // namespace eterlab::coils
