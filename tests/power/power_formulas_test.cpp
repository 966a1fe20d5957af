#include <gtest/gtest.h>

#include "power/series_resistor.h"
#include "power/three_terminal_regulator.h"

namespace eterlab::power {
namespace {

TEST(ZenerResistor, ResistanceAndDissipation) {
  struct Expected {
    double supply_v, zener_v, load_ma;
    int standing_ma, resistance_ohm;
    float dissipation_w;
  };
  const Expected table[] = {
      // 6.9 V / 40 mA is 172.5 ohm; in doubles (12 - 5.1) / 40 x 1000 is 172.50000000000003.
      {12, 5.1, 20, 20, 173, 0.276F},
      // Exact in binary: 2.5 ohm and 3.5 ohm go to the even neighbour.
      {1.25, 1, 100, 0, 2, 0.025F},
      {8, 1, 2000, 0, 4, 14},
  };
  for (const Expected& expected : table) {
    const ZenerResistor resistor = zener_series_resistor(expected.supply_v, expected.zener_v,
                                                         expected.load_ma, expected.standing_ma);
    EXPECT_EQ(resistor.resistance_ohm, expected.resistance_ohm);
    EXPECT_EQ(resistor.dissipation_w.value(), expected.dissipation_w);
  }
  EXPECT_EQ(zener_series_resistor(33.767, 1, 1, 0).resistance_ohm, 32767);
  EXPECT_THROW(zener_series_resistor(33.768, 1, 1, 0), ArithmeticFault);
}

TEST(LedResistor, RoundingAndRange) {
  EXPECT_EQ(led_series_resistor_ohm(5.12346, 3).value(), 212.35F);   // 212.346
  EXPECT_EQ(led_series_resistor_ohm(3.00125, 3).value(), 0.13F);     // 0.125, away from zero
  EXPECT_THROW(led_series_resistor_ohm(-1e40, 3), ArithmeticFault);  // beyond single precision
}

// What the windows' tests leave open. R2 = U / 25 mA by hand.
TEST(Regulators, RoundingAndRange) {
  EXPECT_EQ(raised_fixed_regulator(5, 9.26)->r2_ohm, 170);  // 170.4
  EXPECT_EQ(raised_fixed_regulator(5, 5.0625)->r2_ohm, 3);  // 2.5, away from zero
  EXPECT_TRUE(raised_fixed_regulator(12, 12.001));
  EXPECT_FALSE(raised_fixed_regulator(12, 35.001));
  EXPECT_TRUE(adjustable_regulator(1.251));
  EXPECT_FALSE(adjustable_regulator(100.001));
  EXPECT_FALSE(constant_current_resistor_ohm(1000.01));
}

}  // namespace
}  // namespace eterlab::power
