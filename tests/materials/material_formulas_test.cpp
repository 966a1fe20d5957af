#include <gtest/gtest.h>

#include "materials/copper_wire.h"

// Expected values: the formulas with 50 decimal digits (Python's decimal).

namespace eterlab::materials {
namespace {

TEST(CopperWire, LengthsAreRoundedBeforeTheyAreUsed) {
  EXPECT_EQ(copper_wire(0.5, 0.0981).resistance_ohm.value(), 0.005378F);  // of 0.06 m, not 0.0562
  EXPECT_EQ(copper_wire(0.05, 5).resistance_ohm.value(), 2567.535F);      // 2567.535460
}

}  // namespace
}  // namespace eterlab::materials
