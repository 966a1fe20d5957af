#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "antennas/beams/hb9cv.h"
#include "antennas/dipoles/eh_antenna.h"
#include "antennas/loops/magnetic_loop.h"
#include "antennas/loops/quad_loop.h"
#include "coils/solenoid.h"
#include "common/complex.h"
#include "common/numerics.h"
#include "common/physics.h"
#include "materials/metals.h"

// Fits and formulas of loops and very short dipoles against fields and circuits.

namespace eterlab::antennas {
namespace {

double squared(double x) { return x * x; }

/// A piece of a closed conductor, and how far along it stands from opposite the capacitor.
struct Piece {
  double x, y;
  double towards_x, towards_y;
  double along;
};

/// A polygon of unit perimeter, the first side's middle opposite the capacitor.
std::vector<Piece> polygon(int sides, int pieces) {
  std::vector<Piece> path;
  const double apothem = 0.5 / sides / std::tan(pi / sides);
  for (int i = 0; i < pieces; ++i) {
    const double along = (i + 0.5) / pieces - 0.5;
    const double side = std::round(along * sides);
    const double off_middle = along - side / sides;
    const double angle = 2 * pi * side / sides;
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    path.push_back({apothem * c - off_middle * s, apothem * s + off_middle * c, -s, c, along});
  }
  return path;
}

// Radiation: the power that the current's field takes from it, an integral over pairs of its
// pieces. Inductance: Neumann's integral at the distance of the surface.
TEST(MagneticLoop, RadiatesAndStoresAsTheFieldOfItsCurrent) {
  const std::pair<LoopShape, int> shapes[] = {
      {LoopShape::circle, 200}, {LoopShape::octagon, 8}, {LoopShape::square, 4}};
  constexpr int pieces = 800;
  constexpr double radius = 1.0 / 200;
  for (const auto& [shape, sides] : shapes) {
    const std::vector<Piece> path = polygon(sides, pieces);
    for (const double wavelengths : {0.05, 0.15, 0.24}) {
      const double k = 2 * pi * wavelengths;
      double radiated = 0;
      double stored = 0;
      for (const Piece& a : path) {
        for (const Piece& b : path) {
          const double distance = std::hypot(a.x - b.x, a.y - b.y, 1e-9);
          const double aligned = a.towards_x * b.towards_x + a.towards_y * b.towards_y;
          const double currents = std::cos(k * a.along) * std::cos(k * b.along) * aligned -
                                  std::sin(k * a.along) * std::sin(k * b.along);
          radiated += currents * std::sin(k * distance) / distance;
          stored += aligned / std::hypot(distance, radius);
        }
      }
      const TunedLoop loop =
          tuned_loop({shape, 1, 2000 * radius, materials::copper.resistivity_ohm_m()},
                     wavelengths * speed_of_light_m_per_s);
      const double radiation_ohm =
          free_space_impedance_ohm * k / (4 * pi) * radiated / squared(pieces);
      const double inductance_h = vacuum_permeability_h_per_m / (4 * pi) * stored / squared(pieces);
      EXPECT_NEAR(loop.radiation_ohm.value() / radiation_ohm, 1, 0.06) << sides << wavelengths;
      EXPECT_NEAR(loop.inductance_h.value() / inductance_h, 1, 0.008) << sides;
    }
  }
}

/// Of a load at its feed, for a source of as many ohms.
double standing_wave_ratio(Complex load_ohm, double source_ohm) {
  const double reflected = abs((load_ohm - source_ohm) / (load_ohm + source_ohm)).value();
  return (1 + reflected) / (1 - reflected);
}

// The loop as a shorted line behind its capacitor, the losses where the current is greatest.
TEST(MagneticLoop, ResonatesAndHasItsBandAsALine) {
  const double frequency_hz = 14.2e6;
  const MagneticLoop loop{LoopShape::circle, 3.14, 22, aluminium_tube_ohm_m};
  const TunedLoop tuned = tuned_loop(loop, frequency_hz);
  const double length_m = loop.conductor_m.value();
  const double line_ohm = 2 * speed_of_light_m_per_s * tuned.inductance_h.value() / length_m;
  const double theta = pi * length_m * frequency_hz / speed_of_light_m_per_s;
  const Real resistance_ohm = (tuned.radiation_ohm + tuned.loss_ohm) / squared(std::cos(theta));
  const auto swr = [&](double detuning) {
    const Real reactance_ohm = line_ohm * tan(theta * detuning) -
                               1 / (2 * pi * frequency_hz * detuning * tuned.capacitance_f);
    return standing_wave_ratio({resistance_ohm, reactance_ohm}, resistance_ohm.value());
  };
  const double half_band = tuned.bandwidth_hz.value() / frequency_hz / 2;
  EXPECT_NEAR(swr(1), 1, 1e-6);
  EXPECT_NEAR(swr(1 + half_band), 2, 0.002);
  EXPECT_NEAR(swr(1 - half_band), 2, 0.002);
  // The capacitor's voltage drives the radiated and lost power through its own current.
  const LoopLoad load = loop_load(tuned, 100);
  const Real capacitor_a = load.current_a * std::cos(theta);
  EXPECT_NEAR((capacitor_a * capacitor_a * resistance_ohm).value(), 100, 1e-9);
  EXPECT_NEAR(
      load.capacitor_peak_v.value(),
      (std::sqrt(2.0) * capacitor_a / (2 * pi * frequency_hz * tuned.capacitance_f)).value(), 1e-6);
}

// L. B. Cebik's regression for the same loop, 1.0413 + 0.0128 lg^2(1E5 d / lambda).
TEST(QuadLoop, AgreesWithAnotherFit) {
  for (const double diameter : {1e-5, 1e-4, 1e-3, 1e-2}) {
    EXPECT_NEAR(quad_loop_perimeter_m({1, diameter}).value(),
                1.0413 + 0.0128 * squared(std::log10(1e5 * diameter)), 0.013);
  }
}

// Baumgartner's antenna, whose dimensions the others are scaled from.
TEST(Hb9cv, OriginalThickness) {
  const Hb9cv antenna = hb9cv(10, 0.019);
  EXPECT_NEAR(antenna.reflector_m.value(), 5, 1e-12);
  EXPECT_NEAR(antenna.director_m.value(), 4.6, 1e-12);
}

// L. Lorenz's exact current sheet; Medhurst's table, pF per cm of diameter.
TEST(Solenoid, InductanceAndCapacitance) {
  for (const double length : {0.01, 0.3, 2.0, 10.0, 100.0}) {  // over the radius
    const Real k = 2 / sqrt(Real{4 + squared(length)});
    const Real sheet_h =
        vacuum_permeability_h_per_m * 8 / (3 * squared(length)) *
        (((2 * k * k - 1) * elliptic_e(k) + (1 - k * k) * elliptic_k(k)) / (k * k * k) - 1);
    for (const auto inductance_h :
         {coils::solenoid_inductance_h, coils::handbook_solenoid_inductance_h}) {
      EXPECT_NEAR((inductance_h(1, length, 1) / sheet_h).value(), 1, 0.001) << length;
    }
  }
  const std::pair<double, double> table[] = {{0.1, 0.96}, {0.3, 0.60}, {1, 0.46},
                                             {3, 0.61},   {10, 1.32},  {50, 5.8}};
  for (const auto& [length, capacitance] : table) {
    EXPECT_NEAR(
        (coils::solenoid_self_capacitance_f(0.01, 0.01 * length) / (1e-12 * capacitance)).value(),
        1, 0.08)
        << length;
  }
}

/// Charges of opposite sign on two coaxial tubes, one diameter apart: their capacitance over
/// epsilon0 d and the distance of their centres over l + d. Rings of charge at equal potential.
std::pair<double, double> tubes(double length) {
  constexpr int rings = 40;
  std::vector<std::array<double, rings + 1>> rows(rings);
  const double width = length / rings;
  const auto height = [&](int ring) { return 0.5 + (ring + 0.5) * width; };
  // Of a unit charge on a ring of diameter 1, times 4 pi epsilon0.
  const auto potential = [&](double distance) {
    if (distance == 0) {
      return 2 / pi * (std::log(8 / width) + 1);
    }
    const double across = std::sqrt(1 + squared(distance));
    return 2 / (pi * across) * elliptic_k(1 / across).value();
  };
  for (int i = 0; i < rings; ++i) {
    for (int j = 0; j < rings; ++j) {
      rows[i][j] = potential(std::abs(height(i) - height(j))) - potential(height(i) + height(j));
    }
    rows[i][rings] = 0.5;
  }
  for (int pivot = 0; pivot < rings; ++pivot) {
    for (int i = 0; i < rings; ++i) {
      const double factor = i == pivot ? 0 : rows[i][pivot] / rows[pivot][pivot];
      for (int j = pivot; j <= rings; ++j) {
        rows[i][j] -= factor * rows[pivot][j];
      }
    }
  }
  double charge = 0;
  double moment = 0;
  for (int i = 0; i < rings; ++i) {
    const double of_ring = rows[i][rings] / rows[i][i];
    charge += of_ring;
    moment += of_ring * 2 * height(i);
  }
  return {4 * pi * charge, moment / charge / (length + 1)};
}

TEST(EhAntenna, CylindersAreChargedAsTheFitsTell) {
  for (const double length : {1.0, 3.0, 6.0, 12.0}) {
    SCOPED_TRACE(length);
    const auto [capacitance, distance] = tubes(length);
    const EhAntenna antenna{1e7, 0.1, 0.1 * length, 0.002, 200};
    const EhBody body = *eh_body(antenna);
    EXPECT_NEAR(body.gap_capacitance_f.value() / (vacuum_permittivity_f_per_m * 0.1 * capacitance),
                1, 0.01);
    const double distance_m = distance * 0.1 * (length + 1);
    EXPECT_NEAR(body.radiation_ohm.value() /
                    (20 * squared(2 * pi * distance_m * 1e7 / speed_of_light_m_per_s)),
                1, 0.015);
  }
}

const EhAntenna eh_antennas[] = {{14.2e6, 0.05, 0.157, 0.002, 200},
                                 {7.1e6, 0.11, 0.345, 0.002, 300},
                                 {28.5e6, 0.03, 0.1, 0.001, 150}};

TEST(EhPhasing, MatchesInTheWholeCircuit) {
  for (const EhAntenna& antenna : eh_antennas) {
    const EhBody body = *eh_body(antenna);
    const EhPhasing phasing = *eh_phasing(antenna, body);
    const Real coil_loss_ohm =
        2 * pi * antenna.frequency_hz * phasing.inductance_h / antenna.coil_q;
    const auto swr = [&](Real frequency_hz) {
      const Real omega = 2 * pi * frequency_hz;
      const auto farad = [omega](Real c) { return Complex{0, -1 / (omega * c)}; };
      const Complex coil = parallel(Complex{coil_loss_ohm, omega * phasing.inductance_h},
                                    farad(body.coil_capacitance_f));
      return standing_wave_ratio(
          parallel(farad(phasing.capacitance_f),
                   coil + body.radiation_ohm + farad(body.gap_capacitance_f)),
          50);
    };
    const Real half_band_hz = phasing.radiation.bandwidth_hz / 2;
    EXPECT_NEAR(swr(antenna.frequency_hz), 1, 0.005);
    EXPECT_NEAR(swr(antenna.frequency_hz + half_band_hz), 2, 0.03);
    EXPECT_NEAR(swr(antenna.frequency_hz - half_band_hz), 2, 0.03);
  }
}

// The turns below the tap and the loop of coil and cylinders are two coupled circuits.
TEST(EhStar, TapShowsTheCable) {
  for (const EhAntenna& antenna : eh_antennas) {
    const EhBody body = *eh_body(antenna);
    const EhStar star = *eh_star(antenna, body);
    const Real omega = 2 * pi * antenna.frequency_hz;
    const Real tap = star.tap_wire_m / (pi * antenna.diameter_m);
    const auto coil_h = [&](Real turns) {
      return coils::handbook_solenoid_inductance_h(antenna.diameter_m / 2, turns * antenna.pitch_m,
                                                   turns);
    };
    const Real below_h = coil_h(tap);
    const Real mutual_h = (coil_h(body.turns) - below_h - coil_h(body.turns - tap)) / 2;
    const Real share = body.gap_capacitance_f / (body.gap_capacitance_f + body.coil_capacitance_f);
    const Real loop_ohm =
        omega * star.inductance_h / antenna.coil_q + share * share * body.radiation_ohm;
    const auto seen = [&](Real reactance_ohm) {
      const Real coupled_ohm = omega * (below_h + mutual_h);
      return Complex{0, omega * below_h} +
             coupled_ohm * coupled_ohm / Complex{loop_ohm, reactance_ohm};
    };
    const Real tuned = root_between(0, loop_ohm, [&](Real x) { return seen(x).imaginary(); });
    EXPECT_NEAR(seen(tuned).real().value(), 50, 0.01);
  }
}

}  // namespace
}  // namespace eterlab::antennas
