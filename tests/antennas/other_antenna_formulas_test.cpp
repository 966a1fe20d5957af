#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "antennas/beams/axial_helix.h"
#include "antennas/l_network.h"
#include "antennas/loops/wire_loops.h"
#include "antennas/radiation_resistance.h"
#include "common/complex.h"
#include "common/interpolation.h"
#include "common/physics.h"

namespace eterlab::antennas {
namespace {

/// A loop of a shape at resonance by NEC-2, computed with nec2c.
struct Computed {
  double shape;
  double wavelength_over_radius;
  double perimeter_wavelengths;
  double resistance_ohm;
};

void expect_near(const ResonantLoop& loop, const Computed& computed) {
  EXPECT_NEAR(loop.perimeter_m.value(), computed.perimeter_wavelengths,
              0.0035 * computed.perimeter_wavelengths)
      << computed.shape << ' ' << computed.wavelength_over_radius;
  EXPECT_NEAR(loop.resistance_ohm.value(), computed.resistance_ohm, 0.05 * computed.resistance_ohm)
      << computed.shape << ' ' << computed.wavelength_over_radius;
}

TEST(WireLoops, AsTheMethodOfMomentsFindsThem) {
  constexpr Computed rectangles[] = {
      {0.6, 1000, 1.0824, 202.9}, {1.4, 1000, 1.0934, 86.96},   {3.5, 1000, 1.0636, 19.81},
      {0.6, 1e4, 1.0495, 192.8},  {2.25, 1e4, 1.0528, 41.62},   {0.6, 1e5, 1.0358, 189.05},
      {2.25, 1e5, 1.0393, 41.17}, {3.5, 1e5, 1.0310, 19.42},    {1.4, 3162.28, 1.0736, 85.29},
      {4, 1e4, 1.0384, 15.36},    {0.6, 3162.28, 1.0615, 196.3}};
  for (const Computed& at : rectangles) {
    expect_near(rectangular_loop(at.shape, 1, 2 / at.wavelength_over_radius), at);
  }
  constexpr Computed triangles[] = {{45, 1e4, 1.0756, 74.07},       {60, 1000, 1.1082, 121.9},
                                    {90, 1000, 1.0862, 202.4},      {120, 1e5, 1.0293, 252.5},
                                    {60, 31622.8, 1.0598, 114.9},   {90, 31622.8, 1.0465, 194.3},
                                    {120, 31622.8, 1.0337, 253.61}, {75, 1e5, 1.0465, 155.3}};
  for (const Computed& at : triangles) {
    expect_near(delta_loop(at.shape, 1, 2 / at.wavelength_over_radius), at);
  }
}

// A slip in one number of a table bends its lines.
TEST(WireLoops, TablesAreSmooth) {
  const auto expect_smooth = [](auto loop, std::initializer_list<double> shapes) {
    for (const double shape : shapes) {
      const ResonantLoop thick = loop(shape, 1, 2e-3);
      const ResonantLoop middle = loop(shape, 1, 2e-4);
      const ResonantLoop thin = loop(shape, 1, 2e-5);
      // The end effect falls as 1 / log(lambda / a), or nearly so.
      const double first = (thick.perimeter_m - middle.perimeter_m).value();
      const double second = (middle.perimeter_m - thin.perimeter_m).value();
      EXPECT_GT(first / second, 1.6) << shape;
      EXPECT_LT(first / second, 2.7) << shape;
      EXPECT_GT(thick.resistance_ohm, middle.resistance_ohm);
      EXPECT_GT(middle.resistance_ohm, thin.resistance_ohm);
    }
  };
  expect_smooth(rectangular_loop, {0.5, 0.75, 1, 1.25, 1.5, 1.75, 2, 2.5, 3, 4});
  expect_smooth(delta_loop, {45, 60, 75, 90, 105, 120});
  // Beyond the tables as at their ends.
  EXPECT_EQ(delta_loop(60, 1, 1e-2).perimeter_m, delta_loop(60, 1, 2e-3).perimeter_m);
  EXPECT_EQ(delta_loop(60, 1, 1e-9).perimeter_m, delta_loop(60, 1, 2e-5).perimeter_m);
}

TEST(WireLoops, TrianglesClose) {
  for (const double apex : {60.0, 90.0, 120.0}) {
    const Triangle sides = triangle(3, apex);
    EXPECT_NEAR((sides.base_m + 2 * sides.side_m).value(), 3, 1e-12);
    EXPECT_NEAR(hypot(sides.base_m / 2, sides.height_m).value(), sides.side_m.value(), 1e-12);
    EXPECT_NEAR(atan2(sides.base_m / 2, sides.height_m).value() * 360 / pi, apex, 1e-10);
  }
}

// By the sine and cosine integrals, with sixty decimal digits.
TEST(RadiationResistance, AsTheClosedForm) {
  struct Closed {
    double length;
    double loop_ohm;
  };
  constexpr Closed cases[] = {{0.005, 1.21671124056942e-06}, {0.1, 0.190873456253125},
                              {0.5, 73.0790102360119},       {0.8, 200.538566961727},
                              {1, 198.949980405031},         {1.25, 106.463223613611}};
  for (const auto& [length, loop_ohm] : cases) {
    EXPECT_NEAR(dipole_loop_resistance_ohm(length).value() / loop_ohm, 1, 1e-9) << length;
  }
}

TEST(RadiationResistance, ShortAndAtTheFeedPoint) {
  for (const double length : {0.005, 0.02, 0.05}) {
    const DipoleRadiation dipole = dipole_radiation(length);
    EXPECT_NEAR((*dipole.centre_resistance_ohm / (20 * pi * pi * length * length)).value(), 1,
                0.005);
    EXPECT_NEAR(dipole.gain_dbi.value(), 10 * std::log10(1.5), 0.01);
  }
  // sin^2 of half the length is 0.01 for 0.1001674 / pi of a wavelength less.
  EXPECT_TRUE(dipole_radiation(0.96811).centre_resistance_ohm.has_value());
  EXPECT_FALSE(dipole_radiation(0.96812).centre_resistance_ohm.has_value());
  EXPECT_FALSE(vertical_base_resistance_ohm(0.51).has_value());
  EXPECT_EQ(*vertical_base_resistance_ohm(0.25), *dipole_radiation(0.5).centre_resistance_ohm / 2);
}

TEST(LNetwork, TheLineSeesItself) {
  for (const double line : {50.0, 600.0}) {
    for (const double r : {1e-3, 0.1, 12.0, 49.9, 50.0, 50.1, 200.0, 1e4, 1e6}) {
      for (const double x : {-1e6, -850.0, -3.0, 0.0, 1e-3, 85.0, 1e6}) {
        const Complex antenna{r, x};
        const LMatch match = l_match(antenna, line);
        for (const auto& [series_ohm, shunt_siemens] : match.networks) {
          const Complex series = imaginary_unit * series_ohm;
          const Complex shunt = imaginary_unit * shunt_siemens;
          const Complex seen = match.shunt == Shunt::at_antenna
                                   ? series + 1 / (1 / antenna + shunt)
                                   : 1 / (shunt + 1 / (antenna + series));
          // Of 1E6 ohm in series with 1E-3 the digits of a double leave 1E-7.
          const double digits = std::max(1e-9, 1e-15 * std::abs(x) / std::min(r, line));
          EXPECT_LT(abs(seen - line).value(), 10 * digits * line) << r << ' ' << x;
        }
        EXPECT_GE(match.networks[0].shunt_siemens, match.networks[1].shunt_siemens);
      }
    }
  }
}

// By NEC-2, computed with nec2c, over a perfect ground, the conductor a hundredth of a wave thick.
TEST(AxialHelix, GainBetweenTheRowsOfTheTable) {
  struct Helix {
    int turns;
    double gain_dbi;
    double beamwidth_degrees;
  };
  constexpr Helix cases[] = {{4, 9.37, 68.6},   {7, 10.73, 53.3},  {10, 11.87, 44.6},
                             {14, 13.02, 36.7}, {20, 14.28, 29.8}, {28, 15.51, 24.4}};
  for (const auto& [turns, gain_dbi, beamwidth_degrees] : cases) {
    const AxialHelix helix = axial_helix(1, turns);
    EXPECT_NEAR(helix.gain_dbi.value(), gain_dbi, 0.3) << turns;
    EXPECT_NEAR(helix.beamwidth_degrees.value(), beamwidth_degrees, 0.06 * beamwidth_degrees)
        << turns;
  }
}

TEST(Interpolation, BetweenAtAndBeyondThePoints) {
  constexpr TablePoint table[] = {{1, 10}, {2, 20}, {4, 0}};
  for (const auto& [x, y] :
       {TablePoint{0, 10}, {1, 10}, {1.5, 15}, {2, 20}, {3, 10}, {4, 0}, {5, 0}}) {
    EXPECT_EQ(interpolated(table, x), y) << x;
  }
}

}  // namespace
}  // namespace eterlab::antennas
