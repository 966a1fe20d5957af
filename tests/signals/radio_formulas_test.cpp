#include <gtest/gtest.h>

#include "common/numerics.h"
#include "common/physics.h"
#include "signals/decibel_watt.h"
#include "signals/dishes/can_feed.h"
#include "signals/dishes/dish.h"
#include "signals/radiated_power.h"
#include "signals/received_signal.h"
#include "signals/s_meter.h"

// By routes of their own: other formulas, integrals, published values.

namespace eterlab::signals {
namespace {

TEST(SMeter, AnSUnitDoublesTheVoltageAndS9IsThePublishedOne) {
  const std::pair<SMeter, double> table[] = {{s_meter_below_30_mhz, 50e-6},
                                             {s_meter_above_30_mhz, 5e-6}};
  for (const auto& [meter, s9_v] : table) {
    const std::vector<SMeterMark> marks = s_meter_marks(meter);
    for (int row = 0; row < 15; ++row) {
      const auto& mark = marks[static_cast<std::size_t>(row)];
      const Real volts = rms_voltage_v(power_w(mark.level_dbm - one_watt_dbm), 50);
      const Real times_s9 = row < 9 ? pow(2, row - 8) : pow(10, (row - 8) / 2.0);
      EXPECT_NEAR((volts / (times_s9 * s9_v)).value(), 1, 0.03) << row;
      const auto reading = s_meter_reading(meter, level_dbm_of_voltage(volts, 50));
      EXPECT_NEAR(reading->s_units.value(), mark.s_units, 1e-9);
      EXPECT_NEAR(reading->db_over_s9.value(), mark.db_over_s9, 1e-9);
      EXPECT_EQ(highest_mark_reached(marks, level_dbm_of_voltage(volts, 50)), row);
    }
  }
}

TEST(RadiatedPower, LosesNoDigitsOfSmallLosses) {
  // 1 - 10^(-x / 10) is x ln(10) / 10 to 1E-10 of itself.
  EXPECT_NEAR(radiated_power(50, 1e-9, 0).lost_w.value(), 50 * 2.302585093e-10, 1e-17);
  const RadiatedPower power = radiated_power(50, 7, 12);
  EXPECT_DOUBLE_EQ((power.lost_w + power.at_antenna_w).value(), 50);
  EXPECT_NEAR(level_dbw(power.eirp_w / power.erp_w).value(), 2.15, 1e-12);
}

TEST(DipoleSignal, ItsResistanceIsTheIntegralOfItsPattern) {
  const Real cin = integral(0, 2 * pi, [](Real t) { return (1 - cos(t)) / t; });
  EXPECT_NEAR((free_space_impedance_ohm / (4 * pi) * cin).value(), half_wave_dipole_resistance_ohm,
              0.005);
}

// Directivity 1.6409 of the thin dipole, from the books.
TEST(DipoleSignal, IsThatOfAnAntennaOfItsGain) {
  for (const double frequency_hz : {1.8e6, 14.2e6, 432e6}) {
    const DipoleSignal dipole = dipole_signal(1e-4, frequency_hz);
    const AntennaSignal antenna =
        antenna_signal(1e-4, frequency_hz, level_dbw(1.6409), half_wave_dipole_resistance_ohm);
    EXPECT_NEAR((antenna.receiver_v / dipole.matched_load_v).value(), 1, 2e-4);
    EXPECT_NEAR((antenna.available_power_w / dipole.available_power_w).value(), 1, 4e-4);
  }
}

// In a system of 50 ohm, K = 20 lg(f / MHz) - G - 29.79 dB, from the literature.
TEST(AntennaSignal, HasThePublishedAntennaFactor) {
  for (const double mhz : {3.6, 145.0, 10368.0}) {
    const Real factor = antenna_signal(1e-6, mhz * 1e6, 6.5, 50).antenna_factor_db_per_m;
    EXPECT_NEAR(factor.value(), (20 * log10(mhz) - 6.5 - 29.79).value(), 0.02);
  }
}

TEST(Dish, ItsRimIsWhereTheFocusSeesIt) {
  for (const double depth : {5.0, 20.0, 30.0, 90.0}) {
    const DishFocus dish = dish_focus(120, depth);
    const Real beside_focus = dish.focal_length - depth;
    EXPECT_NEAR(dish.focus_to_rim.value(), hypot(beside_focus, 60).value(), 1e-9);
    EXPECT_NEAR(dish.feed_angle_degrees.value(), (2 * atan2(60, beside_focus) * 180 / pi).value(),
                1e-9);
  }
}

TEST(Dish, GainAndSurfaceErrorAreThoseOfItsArea) {
  const DishGain dish = dish_gain(0.6, 0.03, 0.55);
  EXPECT_NEAR(dish.gain_dbi.value(),
              level_dbw(4 * pi * dish.effective_area_m2 / (0.03 * 0.03)).value(), 1e-12);
  const Real phase_error = 4 * pi * dish.surface_error_m / 0.03;
  EXPECT_NEAR(level_dbw(exp(-phase_error * phase_error)).value(), -1, 1e-12);
}

// The field of an aperture with the taper 1 - r^2: the integral of it over the aperture.
TEST(Dish, PatternIsTheIntegralOverTheAperture) {
  EXPECT_NEAR(dish_pattern_db(1, 2).value(), level_dbw(0.5).value(), 1e-9);
  EXPECT_EQ(dish_pattern_db(0, 2), 0);
  const Real half_power_u = root_between(1, 3, [](Real u) {
    return 4 * integral(0, 1, [u](Real r) { return (1 - r * r) * bessel_j(0, u * r) * r; }) -
           sqrt(0.5);
  });
  for (const double degrees : {1e-4, 0.0004, 0.5, 2.0, -3.3, 6.0}) {
    const Real u = half_power_u * sin(degrees * pi / 180) / sin(pi / 180);
    const Real field =
        4 * integral(0, 1, [u](Real r) { return (1 - r * r) * bessel_j(0, u * r) * r; });
    EXPECT_NEAR(dish_pattern_db(degrees, 2).value(), (20 * log10(abs(field))).value(), 1e-7)
        << degrees;
  }
}

TEST(CanFeed, CutOffsAreTheZerosOfTheFieldAtTheWall) {
  const CanCutoffs cutoffs = can_cutoffs(0.084);
  const auto wall = [](Real cutoff_hz) { return pi * 0.084 * cutoff_hz / speed_of_light_m_per_s; };
  const Real te11 = wall(cutoffs.te11_hz);
  EXPECT_NEAR((bessel_j(0, te11) - bessel_j(1, te11) / te11).value(), 0, 1e-8);
  EXPECT_NEAR(bessel_j(0, wall(cutoffs.tm01_hz)).value(), 0, 1e-8);
}

TEST(CanFeed, WavesInTheCanAreLongerByTheCutOff) {
  const Real guide_m = can_feed(0.084, 2.437e9).guide_wavelength_m;
  const auto squared = [](Real hz) {
    return (hz / speed_of_light_m_per_s) * (hz / speed_of_light_m_per_s);
  };
  EXPECT_NEAR((1 / (guide_m * guide_m)).value(),
              (squared(2.437e9) - squared(can_cutoffs(0.084).te11_hz)).value(), 1e-9);
}

TEST(CanFeed, SmallestIsTheFirstThatCarries) {
  for (const double mhz : {144.0, 1296.0, 2320.0, 2437.0, 5760.0, 10368.0}) {
    const Real smallest_mm = smallest_can_mm(mhz * 1e6);
    EXPECT_TRUE(can_carries(smallest_mm / 1000, mhz * 1e6)) << mhz;
    EXPECT_FALSE(can_carries((smallest_mm - 1) / 1000, mhz * 1e6)) << mhz;
  }
}

}  // namespace
}  // namespace eterlab::signals
