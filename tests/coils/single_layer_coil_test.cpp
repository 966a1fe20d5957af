#include "coils/single_layer_coil.h"

#include <gtest/gtest.h>

#include "common/regional_settings.h"

namespace eterlab::coils {
namespace {

// Expected values were computed with exact decimals in Python.

TEST(SingleLayerCoil, TurnsOfAnInductance) {
  struct Expected {
    CoilForm form;
    double inductance_uh;
    double turns;
    double widest_wire_mm;
    double wire_length_cm;
  };
  const Expected table[] = {
      {{20, 40}, 10, 35, 1.14, 219},
      // 1.54 turns are 1.5 for the wire too: unrounded ones would give 2.6 mm.
      {{8, 4}, 0.02, 1.5, 2.67, 3},
      // 1.679 turns, likewise: 263 cm unrounded.
      {{500, 10}, 3, 1.7, 5.88, 266},
      // Length and inductance negative: the root is of a positive number.
      {{20, -40}, -10, 27.8, -1.44, 174},
  };
  for (const Expected& expected : table) {
    const SingleLayerCoil coil = coil_of_inductance(expected.form, expected.inductance_uh);
    EXPECT_EQ(coil.turns, expected.turns);
    EXPECT_EQ(coil.widest_wire_mm, expected.widest_wire_mm);
    EXPECT_EQ(coil.wire_length_cm, expected.wire_length_cm);
  }
}

TEST(SingleLayerCoil, InductanceOfTurns) {
  struct Expected {
    CoilForm form;
    double turns;
    double inductance_uh;
    double widest_wire_mm;
    double wire_length_cm;
  };
  const Expected table[] = {
      {{20, 40}, 35, 10, 1.14, 219},
      {{10, 10}, 3, 0.06, 3.33, 9},
      {{100, 200}, 1234.5, 62203.68, 0.16, 38763},
      // Whole centimetres are cut downwards, also below zero: -62.8.
      {{-20, -40}, 10, -0.82, -4, -63},
      {{20, -40}, -10, -1.29, 4, -63},
  };
  for (const Expected& expected : table) {
    const SingleLayerCoil coil = coil_of_turns(expected.form, expected.turns);
    EXPECT_EQ(coil.inductance_uh, expected.inductance_uh);
    EXPECT_EQ(coil.widest_wire_mm, expected.widest_wire_mm);
    EXPECT_EQ(coil.wire_length_cm, expected.wire_length_cm);
  }
}

TEST(SingleLayerCoil, WireHasTheDecimalsOfTheRegion) {
  set_regional_settings({",", ".", 3, 3, 3});
  EXPECT_EQ(coil_of_turns({20, 40}, 35).widest_wire_mm, 1.143);
  set_regional_settings({});
}

TEST(SingleLayerCoil, Faults) {
  EXPECT_THROW(coil_of_inductance({-20, -40}, 10), ArithmeticFault);  // the square would be -1225
  EXPECT_THROW(coil_of_inductance({20, 40}, 1e-6), ArithmeticFault);  // 0.01 turns are 0.0
  EXPECT_THROW(coil_of_turns({1, -0.45}, -1), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::coils
