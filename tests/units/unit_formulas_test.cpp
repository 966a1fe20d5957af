#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

#include "common/physics.h"
#include "units/angles.h"
#include "units/locator.h"
#include "units/measures.h"
#include "units/si_prefixes.h"
#include "units/temperature.h"
#include "units/wave_quantities.h"
#include "units/wire_gauge.h"

// What the windows leave open: digits that they do not show, limits and faults.

namespace eterlab::units {
namespace {

TEST(Temperature, KelvinInSinglePrecision) {
  EXPECT_EQ(kelvin_from_celsius(0.126).value(), 273.13F);
  EXPECT_EQ(kelvin_from_celsius(1234567.89).value(), 1234841.0F);  // all the digits that it holds
}

// Places computed apart from this code, in double precision with the latitude and its field
// fraction packed to four bytes and back.
TEST(Locator, OfPlaces) {
  const std::tuple<double, double, const char*> table[] = {
      {10, 44, "JN53AX"},  // 13.4 in single precision is just below itself: the cell to the south
      {0, -83, "JA07AA"},  // 0.7 likewise, but its tenfold is 7 in single precision
      {-70.65, -33.45, "FF46QN"},
      {-180, -90, "AA00AA"},
      // Off the globe: beyond the letter R, before the letter A, and beyond all characters.
      {190, -100, "S@50AA"},
      {-180 + 190 * 20.0, 0, "ÿJ00AA"},
      {-180 + 191 * 20.0, 0, "?J00AA"},
      {-180 - 66 * 20.0, 0, "?J00AA"},
  };
  for (const auto& [longitude_deg, latitude_deg, locator] : table) {
    EXPECT_EQ(locator_of({longitude_deg, Single{latitude_deg}}), locator);
  }
}

TEST(Locator, CentreOfASubsquare) {
  const Position centre = position_of("Jn61fV").value();
  EXPECT_DOUBLE_EQ(centre.longitude_deg.value(), 12 + 5.5 / 12);
  EXPECT_EQ(centre.latitude_deg.value(), 41.8958333F);
  // By their codes: é is É, 0xC9 = 201; € is 0x80 = 128; z is Z; a blank is 32.
  const Position nowhere = position_of("é€z z ").value();
  EXPECT_DOUBLE_EQ(nowhere.longitude_deg.value(), 136 * 20 - 180 + 42 * 2 + 25.5 / 12);
  EXPECT_EQ(nowhere.latitude_deg.value(), static_cast<float>(63 * 10 - 90 - 16 - 32.5 / 24));
}

// Diameters of ASTM B258, to a tenth of a mil; beyond them, half a gauge.
TEST(WireGauge, NearestToADiameter) {
  const std::pair<double, std::optional<int>> table[] = {
      {11.684, -3},          {8.251, 0},  {2.588, 10},
      {0.511, 24},           {0.127, 36}, {0.0254, 50},
      {12.39, std::nullopt}, {12.37, -3}, {0.0236, std::nullopt},
      {0.0237, 50}};
  for (const auto& [diameter_mm, gauge] : table) {
    EXPECT_EQ(nearest_awg(diameter_mm), gauge) << diameter_mm;
  }
}

// NIST Special Publication 811, appendix B, to the digits that it prints.
TEST(Measures, FactorsAsPublished) {
  const std::map<std::string_view, double> published{{"ONCE", 28.34952},
                                                     {"LIBBRE", 453.5924},
                                                     {"GRANI", 0.06479891},
                                                     {"POLLICI QUADRATI", 6.4516e-4},
                                                     {"PIEDI QUADRATI", 9.290304e-2},
                                                     {"ACRI", 4046.856},
                                                     {"POLLICI CUBI", 1.638706e-2},
                                                     {"PINTE INGLESI", 0.5682612},
                                                     {"GALLONI INGLESI", 4.54609},
                                                     {"GALLONI U.S.A.", 3.785412},
                                                     {"PSI", 6894.757},
                                                     {"POLLICI DI MERCURIO", 3386.389},
                                                     {"HORSEPOWER", 745.6999},
                                                     {"CAVALLI VAPORE", 735.4988},
                                                     {"BTU ALL'ORA", 0.2930711},
                                                     {"MIGLIA ORARIE", 0.44704},
                                                     {"NODI", 0.5144444},
                                                     {"CHILOMETRI ORARI", 0.2777778}};
  std::size_t found = 0;
  for (const Quantity& quantity : quantities()) {
    for (const Unit& unit : quantity.units) {
      if (const auto factor = published.find(unit.name); factor != published.end()) {
        ++found;
        EXPECT_NEAR(unit.size, factor->second, 5e-7 * factor->second) << unit.name;
      }
    }
  }
  EXPECT_EQ(found, published.size());
}

TEST(WaveQuantities, BelongTogetherWhicheverIsGiven) {
  for (const WaveQuantities& wave : {wave_of_wavelength(0.7), wave_of_frequency(0.7),
                                     wave_of_angular_frequency(0.7), wave_of_period(0.7)}) {
    EXPECT_DOUBLE_EQ((wave.wavelength_m * wave.frequency_hz).value(), 299'792'458);
    EXPECT_DOUBLE_EQ((wave.frequency_hz * wave.period_s).value(), 1);
    EXPECT_DOUBLE_EQ((wave.angular_frequency_rad_per_s * wave.period_s).value(), 2 * pi);
  }
  EXPECT_EQ(wave_of_wavelength(0.7).wavelength_m, 0.7);
  EXPECT_EQ(wave_of_angular_frequency(0.7).angular_frequency_rad_per_s, 0.7);
  EXPECT_EQ(wave_of_period(0.7).period_s, 0.7);
}

// Worked out by hand.
TEST(Angles, SexagesimalCarriesOver) {
  const std::tuple<double, bool, double, int, double> table[] = {
      {59.99999, false, 60, 0, 0},    {-1.99999, true, 2, 0, 0},
      {12.5125, false, 12, 30, 45},   {0.0125125, false, 0, 0, 45},  // 45.045 seconds
      {0.000125, false, 0, 0, 0.5},                                  // 0.45 seconds: away from zero
      {-359.983325, true, 359, 59, 0}                                // 59 minutes less 0.03 seconds
  };
  for (const auto& [degrees, is_negative, whole, minutes, seconds] : table) {
    SCOPED_TRACE(degrees);
    const SexagesimalAngle angle = sexagesimal(degrees);
    EXPECT_EQ(angle.is_negative, is_negative);
    EXPECT_EQ(angle.degrees, whole);
    EXPECT_EQ(angle.minutes, minutes);
    EXPECT_EQ(angle.seconds, seconds);
  }
}

TEST(Angles, LoseWholeTurnsButNotTheirSign) {
  EXPECT_EQ(within_a_turn(-810), -90);
  EXPECT_EQ(within_a_turn(720.25), 0.25);
}

// The rule of the SI: capitals from mega on, small letters below one.
TEST(SiPrefixes, GoDownInPairsAndByTheRuleOfCapitals) {
  int previous = 33;
  for (const SiPrefix& prefix : si_prefixes) {
    EXPECT_LT(prefix.exponent, previous);
    previous = prefix.exponent;
    const bool is_capital = prefix.symbol[0] >= 'A' && prefix.symbol[0] <= 'Z';
    EXPECT_EQ(is_capital, prefix.exponent >= 6) << prefix.name;
    EXPECT_TRUE(std::ranges::any_of(si_prefixes, [&](const SiPrefix& other) {
      return other.exponent == -prefix.exponent;
    })) << prefix.name;
  }
}

}  // namespace
}  // namespace eterlab::units
