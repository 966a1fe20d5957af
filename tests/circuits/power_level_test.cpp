#include "circuits/power_level.h"

#include <gtest/gtest.h>

namespace eterlab::circuits {
namespace {

// Voltages are sqrt(50) = 7.0711 times the unit's factor; levels count the decades to a milliwatt.
// What each unit makes of one is seen in its window.
TEST(PowerLevel, VoltageAndLevelInTenths) {
  EXPECT_NEAR(rms_voltage(1, 50, watt_to_volt).value(), 7.0711, 1e-4);
  EXPECT_NEAR(rms_voltage(1, 50, femtowatt_to_microvolt).value(), 0.22345, 1e-4);
  EXPECT_EQ(level_dbm(2, watt_to_volt), 33);      // 33.0103
  EXPECT_EQ(level_dbm(1.2, watt_to_volt), 30.8);  // 30.7918
  EXPECT_EQ(level_dbm(0.9, milliwatt_to_millivolt), -0.5);
  EXPECT_THROW(level_dbm(-1, watt_to_volt), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::circuits
