#include "circuits/ohms_law.h"

#include <gtest/gtest.h>

namespace eterlab::circuits {
namespace {

// One resistor whose four quantities are whole numbers: 12 V, 3 A, 4 ohm, 36 W.
TEST(OhmsLaw, AnyTwoQuantitiesGiveTheOtherTwo) {
  for (const OperatingPoint& point :
       {from_voltage_and_current(12, 3), from_voltage_and_resistance(12, 4),
        from_voltage_and_power(12, 36), from_current_and_resistance(3, 4),
        from_current_and_power(3, 36), from_resistance_and_power(4, 36)}) {
    EXPECT_EQ(point.voltage_v, 12);
    EXPECT_EQ(point.current_a, 3);
    EXPECT_EQ(point.resistance_ohm, 4);
    EXPECT_EQ(point.power_w, 36);
  }
  EXPECT_THROW(from_resistance_and_power(-4, 36), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::circuits
