#include "units/wire_gauge.h"

#include <gtest/gtest.h>

namespace eterlab::units {
namespace {

// Expected values were computed with fifty decimals in Python.
TEST(WireGauge, Diameter) {
  struct Expected {
    double gauge;
    double diameter_mm;
  };
  const Expected table[] = {
      {-3, 11.684},
      {-2, 10.404902483053985},
      {0, 8.2514628021714628},
      {24, 0.51055922706257235},
      {24.5, 0.48180284745751981},
      {36, 0.127},
      {80, 0.00077312234123378836},
  };
  for (const Expected& expected : table) {
    EXPECT_DOUBLE_EQ(awg_diameter_mm(expected.gauge).value(), expected.diameter_mm);
  }
}

}  // namespace
}  // namespace eterlab::units
