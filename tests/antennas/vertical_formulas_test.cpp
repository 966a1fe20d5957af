#include <gtest/gtest.h>

#include <utility>

#include "antennas/verticals/base_loading.h"
#include "antennas/verticals/capacity_hat.h"
#include "antennas/verticals/collinear_vertical.h"
#include "antennas/verticals/gamma_ground_plane.h"
#include "antennas/verticals/j_antennas.h"
#include "antennas/verticals/microvert.h"
#include "antennas/verticals/whip.h"
#include "antennas/wavelength.h"
#include "common/complex.h"
#include "common/numerics.h"
#include "common/physics.h"

// Routes of their own to what the windows of vertical antennas show: network analysis, limits,
// derivatives, quadrature.

namespace eterlab::antennas {
namespace {

constexpr Whip whips[] = {{2.5, 10}, {5, 20}, {1, 50}, {8, 25}};

// With a current that falls evenly to the tip, as on a very low whip, R = 40 (pi h / lambda)^2; a
// quarter wave has 30 Cin(2 pi) / 2 ohm.
TEST(Whip, RadiatesAsKnownInTheLimits) {
  for (const double low : {1e-6, 1e-4, 1e-3}) {
    EXPECT_NEAR(whip_radiation_resistance_ohm(low).value() / (10 * low * low), 1, 1e-6);
  }
  EXPECT_NEAR(whip_radiation_resistance_ohm(pi / 2).value(), 36.5648, 1e-4);
}

TEST(Whip, HasTheReactanceOfItsStaticCapacitanceFarBelowResonance) {
  for (const Whip& whip : whips) {
    constexpr double low_mhz = 1e-3;
    const Real static_ohm = 1e6 / (2 * pi * low_mhz * static_capacitance_pf(whip));
    EXPECT_NEAR((capacitive_reactance_ohm(whip, low_mhz) / static_ohm).value(), 1, 1e-3);
  }
}

TEST(Whip, TellsItsSlopeAndItsResonance) {
  for (const Whip& whip : whips) {
    const Real resonance_mhz = self_resonance_mhz(whip);
    EXPECT_TRUE(is_capacitive(whip, resonance_mhz * (1 - 1e-9)));
    EXPECT_FALSE(is_capacitive(whip, resonance_mhz * (1 + 1e-9)));
    EXPECT_FALSE(is_capacitive(whip, 2.5 * resonance_mhz));  // where the tangent is positive again
    for (const double share : {0.1, 0.5, 0.9}) {
      const Real f = share * resonance_mhz;
      const Real step = 1e-5 * f;
      const Real fall_ohm =
          capacitive_reactance_ohm(whip, f - step) - capacitive_reactance_ohm(whip, f + step);
      EXPECT_NEAR((reactance_slope_ohm(whip, f) / (fall_ohm * f / (2 * step))).value(), 1, 1e-6);
    }
  }
}

/// What the cable sees of a tapped coil and its whip, from the currents in both parts of the coil.
Complex impedance_at_tap_ohm(const BaseLoading& loading, const TappedCoil& tapped) {
  const coils::SpacedCoil& coil = tapped.coil;
  const Real correction_uh = coils::rosa_correction_uh(coil.diameter_mm, coil.turns);
  const auto own_uh = [&](Real turns) {
    return coils::wheeler_sheet_inductance_uh(turns, coil.diameter_mm, coil.pitch_mm) -
           turns * correction_uh;
  };
  const Real w = 2 * pi * loading.frequency_mhz;
  const Real lower = w * own_uh(tapped.tap_turns);
  const Real upper = w * own_uh(coil.turns - tapped.tap_turns);
  const Real mutual = (w * own_uh(coil.turns) - lower - upper) / 2;
  const Complex whip{loading.base_resistance_ohm, -loading.whip_reactance_ohm};
  // For 1 A into the whip.
  const Complex lower_a =
      (whip + imaginary_unit * (upper + mutual)) / (imaginary_unit * (lower + mutual));
  return imaginary_unit * (lower_a * lower - mutual) / (lower_a + 1);
}

TEST(TappedCoil, ShowsFiftyOhmToTheCable) {
  const struct {
    Whip whip;
    double frequency_mhz;
    double ground_ohm;
    double coil_mm;
  } cases[] = {
      {{2.5, 10}, 7.05, 10, 60}, {{5, 20}, 3.6, 15, 80},   {{1, 6}, 1.84, 0.1, 100},
      {{2, 8}, 14.2, 40, 40},    {{0.5, 20}, 28.5, 5, 30}, {{9, 30}, 3.6, 1, 150},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.frequency_mhz);
    const BaseLoading loading = base_loading(each.whip, each.frequency_mhz, each.ground_ohm);
    ASSERT_TRUE(is_below_cable_impedance(loading) && can_be_tapped(loading));
    const auto turns = tapped_coil_turns(loading, each.coil_mm);
    ASSERT_TRUE(turns && *turns >= 4);
    const TappedCoil tapped = tapped_coil(loading, each.coil_mm, *turns);
    const Complex seen_ohm = impedance_at_tap_ohm(loading, tapped);
    EXPECT_NEAR(seen_ohm.real().value(), 50, 1e-4);
    EXPECT_NEAR(seen_ohm.imaginary().value(), 0, 1e-4);
  }
}

// The potential that a unit of charge per length on one spoke makes on another one, on average, is
// twice the integral of 1 / (distance) over the other one, both of length 1.
TEST(CapacityHat, IsAStarOfChargedWires) {
  constexpr double length_m = 2;
  constexpr double far_m = 1e9;
  for (const int number : {4, 6, 8}) {
    Real potential = ln(4 * length_m / 0.004) - 1;
    for (int i = 1; i < number; ++i) {
      const Real cosine = cos(2 * pi * i / number);
      potential += integral(0, 1, [&](Real t) { return 1 / sqrt(1 + t * t - 2 * t * cosine); });
    }
    const Real capacitance_pf =
        1e12 * 2 * pi * vacuum_permittivity_f_per_m * number * length_m / potential;
    const HatSpokes spokes{number, 4};
    EXPECT_NEAR(capacitance_of_spokes_pf(spokes, length_m, far_m).value(), capacitance_pf.value(),
                1e-6);
    // The ground adds capacitance; the spokes of that are found again.
    const Real over_ground_pf = capacitance_of_spokes_pf(spokes, length_m, 6);
    EXPECT_GT(over_ground_pf, capacitance_pf);
    EXPECT_NEAR(spoke_length_m(spokes, over_ground_pf, 6).value(), length_m, 1e-9);
  }
}

// How far the sections are from the quarter wave of the simple rule, and that what is put together
// of parts is as long as they are.
TEST(JAntennas, KeepTheirProportions) {
  for (const double thickness : {0.0003, 0.001, 0.008}) {
    const Tube tube{thickness * 1000 * wavelength_m(145).value(), 145};
    const Real quarter_m = tube.wavelength_m() / 4;
    const OpenJ open = open_j(tube);
    EXPECT_GT(open.short_conductor_m, 0.85 * quarter_m);
    EXPECT_LT(open.short_conductor_m, 0.93 * quarter_m);
    EXPECT_NEAR((open.long_conductor_m - open.short_conductor_m).value(),
                (2 * gamma_ground_plane(tube).radiator_m).value(), 1e-12);
    // By the definition of the hyperbolic cosine.
    EXPECT_NEAR(cosh(open.section_impedance_ohm * pi / free_space_impedance_ohm).value(),
                (open.spacing_m * 1000 / tube.diameter_mm).value(), 1e-9);
    const SlimJim jim = slim_jim(tube);
    EXPECT_NEAR((jim.below_cut_m + jim.cut_m + jim.above_cut_m).value(), jim.height_m.value(),
                1e-12);
    EXPECT_LT(jim.tap_m, jim.below_cut_m / 4);
    EXPECT_LT(shorted_j(tube).tap_m, quarter_m / 4);
  }
}

TEST(GammaGroundPlane, ReplacesItsCapacitorByAnOpenCable) {
  for (const Tube& tube : {Tube{6, 145}, Tube{20, 28.5}, Tube{2, 1200}}) {
    const GammaGroundPlane antenna = gamma_ground_plane(tube);
    const Real angle = 2 * pi * antenna.cable_capacitor_m / (0.66 * tube.wavelength_m());
    const Real capacitor_ohm = 1e6 / (2 * pi * tube.frequency_mhz * antenna.capacitance_pf);
    EXPECT_NEAR((50 / tan(angle)).value(), capacitor_ohm.value(), 1e-9);
  }
}

TEST(CollinearVertical, MatchesThroughItsSection) {
  for (const int half_waves : {1, 2}) {
    const CollinearVertical antenna = collinear_vertical({4, 145}, half_waves);
    const Real seen_ohm =
        antenna.cable_impedance_ohm * antenna.cable_impedance_ohm / antenna.base_resistance_ohm;
    EXPECT_NEAR(seen_ohm.value(), 47, 2);
    EXPECT_NEAR((antenna.height_m / antenna.half_wave_m).value(), 0.5 + 1.04 * half_waves, 1e-12);
  }
}

TEST(Microvert, IsMatchedByItsTwoCoils) {
  for (const auto& [frequency_mhz, tube_mm] :
       {std::pair{1.8, 100}, {7.05, 40}, {14.2, 30}, {30.0, 1.5}}) {
    SCOPED_TRACE(frequency_mhz);
    const Microvert antenna = microvert(frequency_mhz, tube_mm);
    const Real w = 2 * pi * frequency_mhz;
    const Real tube_ohm = -1e6 / (w * antenna.tube_capacitance_pf);
    const Complex series{antenna.input_resistance_ohm, w * antenna.matched_series_uh + tube_ohm};
    const Complex shunt{0, w * antenna.matched_shunt_uh};
    const Complex seen_ohm = series * shunt / (series + shunt);
    EXPECT_NEAR(seen_ohm.real().value(), 50, 1e-9);
    EXPECT_NEAR(seen_ohm.imaginary().value(), 0, 1e-9);
    EXPECT_NEAR((w * antenna.inductance_uh + tube_ohm).value(), 0, 1e-9);
    const auto choke_ohm = [&](int turns) {
      return w * coils::wheeler_sheet_inductance_uh(turns, 100, 5);
    };
    EXPECT_GE(choke_ohm(antenna.choke_turns), 1000);
    EXPECT_LT(choke_ohm(antenna.choke_turns - 1), 1000);
  }
}

}  // namespace
}  // namespace eterlab::antennas
