#include "circuits/power_level.h"

#include <gtest/gtest.h>

namespace eterlab::circuits {
namespace {

// Voltages are sqrt(50) = 7.0711 times the unit's factor; levels count the decades to a milliwatt.
TEST(PowerLevel, OneUnitAcrossFiftyOhm) {
  struct Expected {
    PowerUnit unit;
    double voltage;
    double level_dbm;
  };
  const Expected table[] = {
      {watt_to_volt, 7.0711, 30},
      {milliwatt_to_millivolt, 223.608, 0},
      {microwatt_to_millivolt, 7.0711, -30},
      {nanowatt_to_millivolt, 0.22345, -60},
      {nanowatt_to_microvolt, 223.608, -60},
      {picowatt_to_microvolt, 7.0711, -90},
      {femtowatt_to_microvolt, 0.22345, -120},
  };
  for (const Expected& expected : table) {
    EXPECT_NEAR(rms_voltage(1, 50, expected.unit).value(), expected.voltage,
                expected.voltage * 1e-4);
    EXPECT_EQ(level_dbm(1, expected.unit), expected.level_dbm);
  }
}

TEST(PowerLevel, LevelIsRoundedToOneDecimal) {
  EXPECT_EQ(level_dbm(2, watt_to_volt), 33);      // 33.0103
  EXPECT_EQ(level_dbm(1.2, watt_to_volt), 30.8);  // 30.7918
  EXPECT_EQ(level_dbm(0.9, milliwatt_to_millivolt), -0.5);
  EXPECT_THROW(level_dbm(-1, watt_to_volt), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::circuits
