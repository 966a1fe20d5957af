#include "circuits/reactance.h"

#include <gtest/gtest.h>

namespace eterlab::circuits {
namespace {

// By long division of the rounded constants: 2 pi itself would give 439.82 ohm at 7 MHz and 10 uH.
TEST(Reactance, OfInductorAndCapacitor) {
  EXPECT_NEAR(inductive_reactance_ohm(14.2, 2.35).value(), 209.5636, 1e-12);
  EXPECT_NEAR(capacitive_reactance_ohm(14.2, 33).value(), 339.308578745199, 1e-12);
}

}  // namespace
}  // namespace eterlab::circuits
