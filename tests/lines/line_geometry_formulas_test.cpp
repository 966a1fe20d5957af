#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <functional>
#include <numbers>
#include <numeric>
#include <utility>
#include <vector>

#include "common/numerics.h"
#include "common/physics.h"
#include "lines/geometry/coaxial_line.h"
#include "lines/geometry/facing_strips.h"
#include "lines/geometry/geometry_factor.h"
#include "lines/geometry/round_rods.h"
#include "lines/geometry/uniform_line.h"
#include "lines/geometry/wire_over_ground.h"
#include "support/kind_of_fault.h"

// The formulas of cross-sections against solutions of their fields: the charge on a conductor, by
// Nystroem's method, whose quadrature has the logarithm of the distance in closed form. The plates,
// screens and other conductors are images in Green's function.

namespace eterlab::lines {
namespace {

using Place = std::complex<double>;
using Matrix = std::vector<std::vector<double>>;

/// The sum of the unknowns of equations that all have 1 on the right.
double sum_of_solution(Matrix a) {
  const std::size_t n = a.size();
  for (std::vector<double>& row : a) {
    row.push_back(1);
  }
  for (std::size_t i = 0; i < n; ++i) {
    std::size_t pivot = i;
    for (std::size_t k = i + 1; k < n; ++k) {
      pivot = std::abs(a[k][i]) > std::abs(a[pivot][i]) ? k : pivot;
    }
    std::swap(a[i], a[pivot]);
    for (std::size_t k = 0; k < n; ++k) {
      const double share = a[k][i] / a[i][i];
      for (std::size_t j = i; k != i && j <= n; ++j) {
        a[k][j] -= share * a[i][j];
      }
    }
  }
  double sum = 0;
  for (std::size_t i = 0; i < n; ++i) {
    sum += a[i][n] / a[i][i];
  }
  return sum;
}

/// The potential of a unit line charge (in units of 1 / (2 pi eps0)), without -ln(distance).
using Images = std::function<double(Place at, Place charge)>;

/// Potential over charge of a round conductor.
double field_factor(Place centre, double radius, const Images& images) {
  constexpr int half = 48;
  constexpr int n = 2 * half;
  std::vector<Place> places;
  std::vector<double> logarithm;  // its quadrature weights, by the distance in steps
  for (int k = 0; k < n; ++k) {
    places.push_back(centre + std::polar(radius, 2 * pi * k / n));
    double weight = k % 2 == 0 ? pi / half : -pi / half;
    for (int m = 1; m < half; ++m) {
      weight += 2 * pi / m * std::cos(2 * pi * m * k / n);
    }
    logarithm.push_back(weight / n);
  }
  Matrix a(n, std::vector<double>(n));
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t j = 0; j < n; ++j) {
      a[i][j] = logarithm[i > j ? i - j : j - i] +
                2 * pi / n * (images(places[i], places[j]) - std::log(radius));
    }
  }
  return n / (2 * pi * sum_of_solution(a));
}

double ln_distance(Place a, Place b) { return std::log(std::abs(a - b)); }

/// Green's function between plates at y = -height / 2 and height / 2, with its logarithm.
double between_plates(Place at, Place charge, double height) {
  const Place w = std::exp(pi / height * at);
  const Place w0 = std::exp(pi / height * charge);
  return -std::log(std::abs((w - w0) / (w + std::conj(w0))));
}

Images plates(double height) {
  return [=](Place at, Place charge) {
    const Place w = std::exp(pi / height * at);
    const Place w0 = std::exp(pi / height * charge);
    const Place slope = at == charge ? pi / height * w : (w - w0) / (at - charge);
    return -std::log(std::abs(slope / (w + std::conj(w0))));
  };
}

TEST(GeometryFactor, OfAPairIsThatOfItsField) {
  for (const double ratio : {1.1, 1.5, 3.0, 300.0}) {
    SCOPED_TRACE(ratio);
    const double field = field_factor(
        0, 0.5, [&](Place at, Place charge) { return ln_distance(at, ratio - std::conj(charge)); });
    EXPECT_NEAR(wire_pair_factor(1, ratio).value() / field, 1, 1e-6);
    EXPECT_NEAR(wire_pair_spacing(1, field).value() / ratio, 1, 1e-6);
    EXPECT_EQ(wire_over_ground_factor(1, ratio / 2), wire_pair_factor(1, ratio));
  }
  // By mpmath: arcosh(1 + 1e-9), where the hyperbolic cosine itself has lost half of the digits.
  EXPECT_NEAR(wire_pair_factor(1e9, 1e9 + 1).value(), 4.4721359546269013967e-5, 1e-18);
}

// The bounds are those that the header tells.
TEST(GeometryFactor, OfPairsNearMetalIsThatOfTheirField) {
  struct Case {
    double spacing;
    double size;  // height, distance of plates, or what the screen's diameter exceeds spacing by
  };
  for (const auto& [spacing, size] : {Case{1.5, 2}, {1.5, 20}, {2, 2}, {3, 5}, {10, 2}, {50, 30}}) {
    SCOPED_TRACE(std::to_string(spacing) + ' ' + std::to_string(size));
    const PairOverGround pair{1, spacing, size};
    const auto over_ground = [&](double sign_of_other) {
      return field_factor({0, size}, 0.5, [&](Place at, Place charge) {
        return ln_distance(at, std::conj(charge)) -
               sign_of_other * (ln_distance(at, spacing - std::conj(charge)) -
                                ln_distance(at, spacing - charge));
      });
    };
    EXPECT_NEAR(push_pull_factor(pair).value() / over_ground(-1), 1, 0.011);
    EXPECT_NEAR(joined_factor(pair).value() / (over_ground(1) / 2), 1, spacing < 2 ? 0.018 : 0.007);

    const double between = field_factor(0, 0.5, [&](Place at, Place charge) {
      return plates(size)(at, charge) - between_plates(at, spacing - std::conj(charge), size);
    });
    EXPECT_NEAR(pair_between_plates_factor(1, spacing, size).value() / between, 1,
                spacing < 3 ? 0.02 : 0.0015);

    const double screen = spacing + size - 0.5;
    const double radius = screen / 2;
    const double shielded = field_factor(spacing / 2, 0.5, [&](Place at, Place charge) {
      const double square = radius * radius;
      return std::log(std::abs((square - at * std::conj(charge)) / radius)) +
             std::log(std::abs(radius * (at + std::conj(charge)) / (square + at * charge)));
    });
    EXPECT_NEAR(shielded_pair_factor(1, spacing, screen).value() / shielded, 1, 0.022);
  }
}

TEST(GeometryFactor, OfEnclosedRodsIsThatOfTheirField) {
  for (const double ratio : {1.1, 1.2, 1.5, 2.5, 30.0, 1000.0}) {
    SCOPED_TRACE(ratio);
    EXPECT_NEAR(rod_between_plates_factor(1, ratio).value() / field_factor(0, 0.5, plates(ratio)),
                1, 0.0007);
    const double in_square = field_factor(0, 0.5, [&](Place at, Place charge) {
      double potential = plates(ratio)(at, charge);
      for (int image = 1; image <= 12; ++image) {
        const double sign = image % 2 == 0 ? 1 : -1;
        for (const double wall : {image * ratio, -image * ratio}) {
          const Place mirrored = image % 2 == 0 ? charge : -std::conj(charge);
          potential += sign * between_plates(at, wall + mirrored, ratio);
        }
      }
      return potential;
    });
    EXPECT_NEAR(rod_in_square_factor(1, ratio).value() / in_square, 1, 0.0004);
  }
}

TEST(GeometryFactor, RodsAreFoundByTheirFactorUpToTheEnds) {
  for (const EnclosedRodFactor factor_of : {rod_between_plates_factor, rod_in_square_factor}) {
    for (const double ratio : {thickest_rod_ratio, 1.3, 40.0, thinnest_rod_ratio}) {
      EXPECT_NEAR(enclosed_rod_diameter(factor_of, 20 * ratio, factor_of(1, ratio)).value(), 20,
                  2e-12)
          << ratio;
    }
    EXPECT_EQ(test::kind_of_fault([&] { return enclosed_rod_diameter(factor_of, 20, 9); }),
              ArithmeticFault::Kind::invalid_argument);
  }
}

/// Potential over charge of a thin strip on a sheet over ground, by the images of the sheet.
double field_of_microstrip(double width, double height, double er) {
  constexpr std::size_t n = 96;
  const double mirrored = -(er - 1) / (er + 1);
  std::vector<std::vector<double>> cosines(n, std::vector<double>(n));  // of multiples of an angle
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t m = 0; m < n; ++m) {
      cosines[i][m] = std::cos(static_cast<double>(m) * pi * (static_cast<double>(i) + 0.5) / n);
    }
  }
  Matrix a(n, std::vector<double>(n));
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t j = 0; j < n; ++j) {
      double logarithm = std::numbers::ln2 - std::log(width / 2);
      for (std::size_t m = 1; m < n; ++m) {
        logarithm += 2 / static_cast<double>(m) * cosines[i][m] * cosines[j][m];
      }
      const double apart = width / 2 * (cosines[i][1] - cosines[j][1]);
      double sum = 2 * logarithm;
      double strength = 1;
      for (int image = 1; std::abs(strength) > 1e-7; ++image) {
        const double depth = 2 * image * height;
        sum += strength * (1 - mirrored) * std::log(apart * apart + depth * depth);
        strength *= mirrored;
      }
      a[i][j] = sum / (1 + er);
    }
  }
  return 1 / sum_of_solution(a);
}

// A pair of strips is two microstrips of half the distance in series.
TEST(FacingStrips, AreThoseOfTheirFieldWhenTheyAreThin) {
  for (const double width : {0.05, 1.0, 8.0, 50.0}) {
    const double air = field_of_microstrip(width, 0.5, 1);
    for (const double er : {1.0, 2.26, 10.0}) {
      SCOPED_TRACE(std::to_string(width) + ' ' + std::to_string(er));
      const StripLine line = strip_line({1, 1e-9, width, er});
      const double filled = field_of_microstrip(width, 0.5, er);
      EXPECT_NEAR(line.velocity_factor.value() / std::sqrt(filled / air), 1, 0.0015);
      EXPECT_NEAR(
          line.impedance_ohm.value() / (free_space_impedance_ohm / pi * std::sqrt(filled * air)), 1,
          0.0015);
    }
  }
}

TEST(FacingStrips, AreFoundByTheirImpedanceUpToTheEnds) {
  for (FacingStrips strips : {FacingStrips{1, 0.5, 0, 1},
                              {10, 0.001, 0, 100},
                              {1000, 100, 0, 2.1},
                              {0.01, 0.005, 0, 1}}) {
    for (const Real width : {narrowest_strip(strips), strips.distance, widest_strip(strips)}) {
      strips.width = width;
      const Real impedance_ohm = strip_line(strips).impedance_ohm;
      EXPECT_NEAR(strip_width(strips, impedance_ohm).value() / width.value(), 1, 1e-12)
          << width.value();
    }
  }
}

// The exact cutoff is where the wave around the axis has its first zero between the conductors.
TEST(CoaxialLine, HighestFrequencyIsBelowTheFirstWaveguideMode) {
  const auto slope_j = [](Real x) { return bessel_j(0, x) - bessel_j(1, x) / x; };
  const auto slope_y = [](Real x) { return bessel_y(0, x) - bessel_y(1, x) / x; };
  for (const double ratio : {1.1, 2.3, 10.0, 100.0}) {
    const double guess = 2 / (1 + ratio);
    const Real wave_number = root_between(0.8 * guess, 1.2 * guess, [&](Real k) {
      return slope_j(k) * slope_y(k * ratio) - slope_j(k * ratio) * slope_y(k);
    });
    const double cutoff_hz = speed_of_light_m_per_s * wave_number.value() / (2 * pi * 0.5e-3 * 1.5);
    const double found_hz = coaxial_highest_frequency_hz(1e-3, ratio * 1e-3, 2.25).value();
    EXPECT_NEAR(found_hz / cutoff_hz, 0.92, 0.05) << ratio;
  }
}

/// From one end of a ladder of many short pieces, the reactance of a line in units of its
/// impedance.
double ladder_reactance(double angle, double far_end) {
  constexpr int cells = 20'000;
  const double step = angle / cells;
  double reactance = far_end;
  for (int cell = 0; cell < cells; ++cell) {
    reactance += step / 2;
    reactance = 1 / (1 / reactance - step);
    reactance += step / 2;
  }
  return reactance;
}

TEST(LinePiece, IsALadderOfCoilsAndCapacitors) {
  const LinePiece piece{300, 0.82, 1.5};
  for (const double frequency_hz : {1e5, 20e6, 38e6}) {
    SCOPED_TRACE(frequency_hz);
    const double angle = 2 * pi * frequency_hz * 1.5 / (0.82 * speed_of_light_m_per_s);
    EXPECT_NEAR(piece.angle_degrees(frequency_hz).value(), angle * 180 / pi, 1e-9);
    const LineStub stub = piece.stub(frequency_hz);
    const double shorted = 300 * ladder_reactance(angle, 1e-15);
    const double open = -300 * ladder_reactance(angle, 1e15);
    EXPECT_NEAR(stub.shorted_reactance_ohm.value() / shorted, 1, 1e-6);
    EXPECT_NEAR(stub.shorted_inductance_h.value() * 2 * pi * frequency_hz / shorted, 1, 1e-6);
    EXPECT_NEAR(stub.open_reactance_ohm.value() / open, 1, 1e-6);
    EXPECT_NEAR(stub.open_capacitance_f.value() * 2 * pi * frequency_hz * open, 1, 1e-6);
  }
}

/// Mean over a line of length 1 of a potential on it.
double mean(const RealFunction& potential) { return integral(0, 1, potential).value(); }

// By integrals over the wire, with the field of a line of charge that begins at 0.
TEST(WiresOverGround, AreTheMeanFieldOfEvenCharge) {
  for (const auto& [diameter, height] : {std::pair{0.0001, 0.3}, {0.01, 0.02}, {0.02, 7.0}}) {
    SCOPED_TRACE(height);
    const auto along = [&, d = diameter](double apart) {
      return mean([&](Real x) { return asinh(x / apart) + asinh((1 - x) / apart); }) / 2;
    };
    const double thick = std::acosh(2 * height / diameter) - std::log(4 * height / diameter);
    const double factor = along(diameter / 2) - along(2 * height) + thick;
    const WireConstants wire = horizontal_wire(diameter, height, 1);
    EXPECT_NEAR(wire.inductance_h.value() / (vacuum_permeability_h_per_m / (2 * pi) * factor), 1,
                1e-7);
    EXPECT_NEAR(wire.capacitance_f.value() * factor / (2 * pi * vacuum_permittivity_f_per_m), 1,
                1e-7);
    const double to_image =
        mean([&, h = height](Real x) { return ln((x + 1 + 2 * h) / (x + 2 * h)); }) / 2;
    EXPECT_NEAR(vertical_wire_capacitance_f(diameter, 1, height).value() *
                    (along(diameter / 2) - to_image) / (2 * pi * vacuum_permittivity_f_per_m),
                1, 1e-7);
  }
}

TEST(WiresOverGround, MeetTheirLimits) {
  // The handbooks' vertical in feet and inches: 17 l / (ln(24 l / d) - 1) pF.
  const double feet = 30;
  const double inches = 0.1;
  EXPECT_NEAR(vertical_wire_capacitance_f(inches * 0.0254, feet * 0.3048, 0).value() * 1e12,
              17 * feet / (std::log(24 * feet / inches) - 1), 0.2);
  // Very long, it is a line.
  const double line = wire_over_ground_factor(0.001, 0.5).value() / (2 * pi);
  EXPECT_NEAR(horizontal_wire(0.001, 0.5, 1e5).inductance_h.value() /
                  (vacuum_permeability_h_per_m * line * 1e5),
              1, 1e-5);
  // Very high, it is alone, whichever way it stands.
  EXPECT_NEAR(vertical_wire_capacitance_f(1e-5, 0.0005, 1e5).value() /
                  horizontal_wire(1e-5, 1e5, 0.0005).capacitance_f.value(),
              1, 1e-8);
}

TEST(RoundRods, AreTheNearestOnSale) {
  const std::pair<double, double> table[] = {{0.45, 0.5}, {2.25, 2}, {2.26, 2.5}, {9, 8},
                                             {45, 40},    {46, 50},  {65, 60}};
  for (const auto& [wanted_mm, rod_mm] : table) {
    EXPECT_EQ(nearest_rod_mm(wanted_mm), Real{rod_mm}) << wanted_mm;
  }
  EXPECT_FALSE(nearest_rod_mm(0.4499));
  EXPECT_FALSE(nearest_rod_mm(65.01));
}

}  // namespace
}  // namespace eterlab::lines
