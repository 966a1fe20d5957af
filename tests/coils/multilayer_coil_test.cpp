#include "coils/multilayer_coil.h"

#include <gtest/gtest.h>

#include "common/regional_settings.h"

// Expected values: the formulas with 50 decimal digits (Python's decimal), rounded where said.

namespace eterlab::coils {
namespace {

TEST(MultilayerCoil, FromTurnsBobbinAndWire) {
  struct Expected {
    double turns, width_cm, inner_radius_cm, wire_cm;
    double turns_per_layer, layers, thickness_cm, outer_radius_cm;
    double wire_length_m, inductance_uh, resistance_ohm;
  };
  const Expected table[] = {
      // The length is 7.065 m before rounding; with that the resistance would be 0.6477 ohm.
      {100, 1, 1, 0.05, 20, 5, 0.25, 1.25, 7.07, 218.45, 0.648130},
      {2000, 1, 1, 0.05, 20, 100, 5, 6, 439.6, 192937.5, 40.299594},
      {250, 1.2, 0.75, 0.04, 30, 8.333333, 0.333333, 1.083333, 14.39, 842.6, 2.061217},
      {300, 0.8, 0.64, 0.01, 80, 3.75, 0.0375, 0.6775, 12.41, 1067.23, 28.441649},
      {-100, -1, 1, 0.05, -20, 5, 0.25, 1.25, -7.07, 15946.88, -0.648130},
  };
  for (const Expected& expected : table) {
    const MultilayerCoil coil = multilayer_coil(expected.turns, expected.width_cm,
                                                expected.inner_radius_cm, expected.wire_cm);
    EXPECT_NEAR(coil.turns_per_layer.value(), expected.turns_per_layer, 1e-6);
    EXPECT_NEAR(coil.layers.value(), expected.layers, 1e-6);
    EXPECT_NEAR(coil.thickness_cm.value(), expected.thickness_cm, 1e-6);
    EXPECT_NEAR(coil.outer_radius_cm.value(), expected.outer_radius_cm, 1e-6);
    EXPECT_EQ(coil.wire_length_m, expected.wire_length_m);
    EXPECT_EQ(coil.inductance_uh, expected.inductance_uh);
    EXPECT_NEAR(coil.resistance_ohm.value(), expected.resistance_ohm, 1e-6);
  }
}

TEST(MultilayerCoil, RegionalDecimalsDecideTheLengthOnly) {
  set_regional_settings({".", ",", 3, 3, 3});
  const MultilayerCoil coil = multilayer_coil(100, 1, 1, 0.05);
  EXPECT_EQ(coil.wire_length_m, 7.065);
  EXPECT_NEAR(coil.resistance_ohm.value(), 0.647672, 1e-6);
  EXPECT_EQ(coil.inductance_uh, 218.45);
  set_regional_settings({});
}

}  // namespace
}  // namespace eterlab::coils
