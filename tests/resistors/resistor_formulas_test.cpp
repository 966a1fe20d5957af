#include <gtest/gtest.h>

#include <tuple>

#include "common/physics.h"
#include "resistors/meter_range.h"
#include "resistors/series_resistor.h"

// What the windows leave open: digits that they do not show, ties, limits and faults.

namespace eterlab::resistors {
namespace {

TEST(ZenerResistor, WholeOhmWithinSixteenBits) {
  // Exact in binary: 2.5 ohm and 3.5 ohm go to the even neighbour.
  EXPECT_EQ(zener_series_resistor(1.25, 1, 100, 0).resistance_ohm, 2);
  EXPECT_EQ(zener_series_resistor(8, 1, 2000, 0).resistance_ohm, 4);
  EXPECT_EQ(zener_series_resistor(33.767, 1, 1, 0).resistance_ohm, 32767);
  EXPECT_THROW(zener_series_resistor(33.768, 1, 1, 0), ArithmeticFault);
}

TEST(LedResistor, RoundingAndRange) {
  EXPECT_EQ(led_series_resistor_ohm(3.00125, 3).value(), 0.13F);     // 0.125, away from zero
  EXPECT_THROW(led_series_resistor_ohm(-1e40, 3), ArithmeticFault);  // beyond single precision
}

// The current divides as the conductances do; the wire is no hotter than it may be and one step
// thinner would be, unless it is the thinnest.
TEST(MeterRange, ShuntTakesTheRest) {
  for (const auto& [meter_ohm, full_scale_ma, range_a] :
       {std::tuple{100.0, 1.0, 10.0}, {1500.0, 0.05, 0.001}, {0.5, 1000.0, 1e6}}) {
    SCOPED_TRACE(range_a);
    const MeterShunt shunt = meter_shunt(meter_ohm, full_scale_ma, range_a);
    const Real meter_a = range_a * shunt.resistance_ohm / (shunt.resistance_ohm + Real{meter_ohm});
    EXPECT_NEAR(meter_a.value(), full_scale_ma / 1000, full_scale_ma * 1e-12);
    const double density_a_per_mm2 =
        (shunt.current_a / (pi / 4 * shunt.wire_diameter_mm * shunt.wire_diameter_mm)).value();
    EXPECT_LE(density_a_per_mm2, 3 + 1e-9);
    const double thinner = shunt.wire_diameter_mm.value() - 0.1;
    EXPECT_TRUE(thinner < 0.05 || shunt.current_a.value() / (pi / 4 * thinner * thinner) > 3);
  }
  // 0.75 pi ampere want 1 mm, not 1.1.
  EXPECT_EQ(meter_shunt(1, 1, 0.001 + 0.75 * pi).wire_diameter_mm, 1);
}

TEST(MeterRange, MultiplierTakesTheRest) {
  const MeterMultiplier multiplier = meter_multiplier(1500, 100, 0.15 * (1 + 1e-6));
  EXPECT_NEAR(multiplier.resistance_ohm.value(), 1.5e-3, 1e-11);  // what is left of 1500 ohm
  EXPECT_NEAR(multiplier.power_w.value(), 1.5e-11, 1e-19);
  EXPECT_EQ(multiplier.preferred_resistance_ohm, 1.5e-3);
}

}  // namespace
}  // namespace eterlab::resistors
