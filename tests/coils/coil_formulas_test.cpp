#include <gtest/gtest.h>

#include "coils/copper_wire.h"
#include "coils/flat_spiral.h"
#include "coils/multilayer_coil.h"
#include "coils/single_layer_coil.h"
#include "coils/straight_wire.h"
#include "common/regional_settings.h"

namespace eterlab::coils {
namespace {

// Expected values: the formulas with 50 decimal digits (Python's decimal), rounded half up where
// the results are rounded.

TEST(SingleLayerCoil, TurnsOrInductanceAndTheWire) {
  struct Expected {
    SingleLayerCoil (*solve)(const CoilForm&, Real);
    CoilForm form;
    double input, turns, inductance_uh, widest_wire_mm, wire_length_cm;
  };
  const Expected table[] = {
      // 1.54 turns are 1.5 for the wire too: unrounded ones would give 2.6 mm.
      {coil_of_inductance, {8, 4}, 0.02, 1.5, 0.02, 2.67, 3},
      // 1.679 turns, likewise: 263 cm unrounded.
      {coil_of_inductance, {500, 10}, 3, 1.7, 3, 5.88, 266},
      // Length and inductance negative: the root is of a positive number.
      {coil_of_inductance, {20, -40}, -10, 27.8, -10, -1.44, 174},
      {coil_of_turns, {100, 200}, 1234.5, 1234.5, 62203.68, 0.16, 38763},
      // Whole centimetres are cut downwards, also below zero: -62.8.
      {coil_of_turns, {-20, -40}, 10, 10, -0.82, -4, -63},
  };
  for (const Expected& expected : table) {
    const SingleLayerCoil coil = expected.solve(expected.form, expected.input);
    EXPECT_EQ(coil.turns, expected.turns);
    EXPECT_EQ(coil.inductance_uh, expected.inductance_uh);
    EXPECT_EQ(coil.widest_wire_mm, expected.widest_wire_mm);
    EXPECT_EQ(coil.wire_length_cm, expected.wire_length_cm);
  }
  set_regional_settings({",", ".", 3, 3, 3});  // whose decimals the wire has
  EXPECT_EQ(coil_of_turns({20, 40}, 35).widest_wire_mm, 1.143);
  set_regional_settings({});
}

TEST(SingleLayerCoil, Faults) {
  EXPECT_THROW(coil_of_inductance({-20, -40}, 10), ArithmeticFault);  // the square would be -1225
  EXPECT_THROW(coil_of_inductance({20, 40}, 1e-6), ArithmeticFault);  // 0.01 turns are 0.0
  EXPECT_THROW(coil_of_turns({1, -0.45}, -1), ArithmeticFault);
}

TEST(MultilayerCoil, FromTurnsBobbinAndWire) {
  struct Expected {
    double turns, width_cm, inner_radius_cm, wire_cm;
    double turns_per_layer, layers, thickness_cm, outer_radius_cm;
    double wire_length_m, inductance_uh, resistance_ohm;
  };
  const Expected table[] = {
      // The length is 7.065 m before rounding; with that the resistance would be 0.6477 ohm.
      {100, 1, 1, 0.05, 20, 5, 0.25, 1.25, 7.07, 218.45, 0.648130},
      {250, 1.2, 0.75, 0.04, 30, 8.333333, 0.333333, 1.083333, 14.39, 842.6, 2.061217},
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
  // The region's decimals decide the length, never the inductance.
  set_regional_settings({".", ",", 3, 3, 3});
  EXPECT_EQ(multilayer_coil(100, 1, 1, 0.05).wire_length_m, 7.065);
  EXPECT_EQ(multilayer_coil(300, 0.8, 0.64, 0.01).inductance_uh, 1067.23);  // 1067.2329
  set_regional_settings({});
}

TEST(FlatSpiral, MeanRadiusWidthAndInductance) {
  struct Expected {
    double turns, inner_mm, outer_mm, mean_mm, width_mm, inductance_uh;
  };
  for (const Expected& expected :
       {Expected{5, 20, 20, 20, 0, 2.5}, Expected{20, 12.5, 40, 26.25, 27.5, 21.28},
        Expected{10, -30, -10, -20, 20, 25}}) {
    const FlatSpiral coil = flat_spiral(expected.turns, expected.inner_mm, expected.outer_mm);
    EXPECT_EQ(coil.mean_radius_mm, expected.mean_mm);
    EXPECT_EQ(coil.width_mm, expected.width_mm);
    EXPECT_EQ(coil.inductance_uh, expected.inductance_uh);
  }
  set_regional_settings({".", ",", 3, 3, 4});
  EXPECT_EQ(flat_spiral(10, 10, 30).inductance_uh, 4.1667);
  set_regional_settings({});
}

TEST(StraightWire, Inductance) {
  struct Expected {
    double diameter_mm, length_m, inductance_uh;
  };
  for (const Expected& expected :
       {Expected{2, 100, 229.1214529106035}, Expected{-1, -1, -1.508809928020406},
        Expected{100, 0.05, -5.685281944005469e-4}}) {
    EXPECT_NEAR(straight_wire_inductance_uh(expected.diameter_mm, expected.length_m).value(),
                expected.inductance_uh, 1e-12);
  }
}

TEST(CopperWire, FromDiameterAndWeight) {
  struct Expected {
    double diameter_mm, weight_g, section_mm2, length_m, largest_current_a;
    float resistance_ohm;
  };
  const Expected table[] = {
      // The length is rounded before it is used: 0.0562 m are taken as 0.06 m.
      {0.5, 0.0981, 0.1963495375, 0.06, 0.49087384375, 0.005378F},
      {0.05, 5, 0.001963495375, 286.44, 0.0049087384375, 2567.535F},  // 2567.535460
      {-1, -100, 0.78539815, -14.32, 1.963495375, -0.320897F},
  };
  for (const Expected& expected : table) {
    const CopperWire wire = copper_wire(expected.diameter_mm, expected.weight_g);
    EXPECT_NEAR(wire.section_mm2.value(), expected.section_mm2, 1e-12);
    EXPECT_EQ(wire.length_m, expected.length_m);
    EXPECT_NEAR(wire.largest_current_a.value(), expected.largest_current_a, 1e-12);
    EXPECT_EQ(wire.resistance_ohm.value(), expected.resistance_ohm);
  }
}

}  // namespace
}  // namespace eterlab::coils
