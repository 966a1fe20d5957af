#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

#include "coils/flat_spiral.h"
#include "coils/multilayer_coil.h"
#include "coils/single_layer_coil.h"
#include "coils/spaced_coil.h"
#include "coils/toroids/toroid_cores.h"
#include "common/numerics.h"
#include "common/physics.h"
#include "common/regional_settings.h"

// What the windows leave open: the catalogue of cores, digits that they do not show, ties, limits
// and faults. Expected values: the formulas with 50 decimal digits (Python's decimal), rounded half
// up where the results are rounded.

namespace eterlab::coils {
namespace {

TEST(SingleLayerCoil, RoundsItsTurnsFirst) {
  using Numbers = std::vector<double>;  // turns, uH, widest wire in mm, its length in cm
  const auto computed = [](const SingleLayerCoil& coil) {
    return Numbers{coil.turns.value(), coil.inductance_uh.value(), coil.widest_wire_mm.value(),
                   coil.wire_length_cm.value()};
  };
  // 1.54 turns are 1.5 for the wire too: unrounded ones would give 2.6 mm.
  EXPECT_EQ(computed(coil_of_inductance({8, 4}, 0.02)), (Numbers{1.5, 0.02, 2.67, 3}));
  // 1.679 turns, likewise: 263 cm unrounded.
  EXPECT_EQ(computed(coil_of_inductance({500, 10}, 3)), (Numbers{1.7, 3, 5.88, 266}));
  // Length and inductance negative: the root is of a positive number.
  EXPECT_EQ(computed(coil_of_inductance({20, -40}, -10)), (Numbers{27.8, -10, -1.44, 174}));
  // Whole centimetres are cut downwards, also below zero: -62.8.
  EXPECT_EQ(computed(coil_of_turns({-20, -40}, 10)), (Numbers{10, -0.82, -4, -63}));
  EXPECT_THROW(coil_of_inductance({-20, -40}, 10), ArithmeticFault);  // the square would be -1225
  EXPECT_THROW(coil_of_turns({1, -0.45}, -1), ArithmeticFault);
}

TEST(Coils, FollowTheRegionsDecimals) {
  set_regional_settings({".", ",", 3, 3, 3});
  EXPECT_EQ(coil_of_turns({20, 40}, 35).widest_wire_mm, 1.143);
  EXPECT_EQ(flat_spiral(10, 10, 30).inductance_uh, 4.167);
  EXPECT_EQ(multilayer_coil(100, 1, 1, 0.05).wire_length_m, 7.065);
  EXPECT_EQ(multilayer_coil(300, 0.8, 0.64, 0.01).inductance_uh, 1067.23);  // this one does not
  set_regional_settings({});
}

TEST(Coils, LengthsAreRoundedBeforeTheyAreUsed) {
  // 7.065 m would have 0.6477 ohm.
  EXPECT_NEAR(multilayer_coil(100, 1, 1, 0.05).resistance_ohm.value(), 0.648130, 1e-6);
}

double number(std::string_view comma_text) {
  std::string text{comma_text};
  std::ranges::replace(text, ',', '.');
  return std::stod(text);
}

// The number of a size is its outside diameter in hundredths of an inch.
/// Every turn a ring of its own: Maxwell's mutual inductance of coaxial rings, and the inductance
/// of a ring with the current on the surface of its wire.
Real rings_uh(const SpacedCoil& coil) {
  const Real radius_mm = coil.diameter_mm / 2;
  Real sum = coil.turns * (ln(8 * radius_mm / (coil.wire_diameter_mm() / 2)) - 2);
  for (int apart = 1; apart < coil.turns; ++apart) {
    const Real k = coil.diameter_mm / hypot(coil.diameter_mm, apart * coil.pitch_mm);
    sum += 2 * (coil.turns - apart) * ((2 / k - k) * elliptic_k(k) - 2 / k * elliptic_e(k));
  }
  return vacuum_permeability_h_per_m * 1e6 / 1000 * radius_mm * sum;
}

TEST(SpacedCoil, HasTheInductanceOfItsRings) {
  for (const SpacedCoil& coil : {SpacedCoil{60, 22, 2.947}, SpacedCoil{80, 26, 3.22},
                                 SpacedCoil{100, 4, 10}, SpacedCoil{40, 80, 2}}) {
    EXPECT_NEAR((inductance_uh(coil) / rings_uh(coil)).value(), 1, 0.005) << coil.turns;
  }
}

TEST(SpacedCoil, HasTheFewestTurnsAndExactlyTheInductance) {
  for (const double wanted_uh : {0.05, 1.0, 18.22, 300.0}) {
    const auto coil = spaced_coil(wanted_uh, 60);
    ASSERT_TRUE(coil);
    EXPECT_NEAR((inductance_uh(*coil) / wanted_uh).value(), 1, 1e-12);
    EXPECT_GE(coil->length_mm(), 60);
    if (coil->turns > 1) {  // one less, as long as wide, does not reach it
      const int fewer = coil->turns - 1;
      EXPECT_LT(inductance_uh({60, fewer, 60.0 / fewer}), wanted_uh);
    }
  }
  // As many turns at 0.2 mm are as long as the coil is wide; 1.4 / 7 is a double below 0.2.
  for (const auto& [diameter_mm, turns] : {std::pair{1.0, 5}, {1.4, 7}, {17.4, 87}}) {
    const Real most_uh = inductance_uh({diameter_mm, turns, 0.2});
    const auto longest = spaced_coil(most_uh * 0.9999, diameter_mm);
    ASSERT_TRUE(longest) << diameter_mm;
    EXPECT_EQ(longest->turns, turns);
    EXPECT_FALSE(spaced_coil(most_uh * 1.0001, diameter_mm)) << diameter_mm;
  }
}

TEST(ToroidCores, SizesWithTheirNumbersOfMixesAndDiameters) {
  const std::vector<std::pair<std::string, int>> expected{
      {"T-12", 10},  {"T-16", 10}, {"T-20", 11},  {"T-25", 11}, {"T-30", 11},  {"T-37", 11},
      {"T-44", 11},  {"T-50", 11}, {"T-68", 11},  {"T-80", 11}, {"T-94", 9},   {"T-106", 8},
      {"T-130", 8},  {"T-157", 6}, {"T-184", 5},  {"T-200", 6}, {"T-200A", 4}, {"T-225", 4},
      {"T-225A", 2}, {"T-300", 2}, {"T-300A", 2}, {"T-400", 2}, {"T-400A", 2}, {"T-520", 2}};
  std::vector<std::pair<std::string, int>> sizes;
  for (const ToroidCore& core : toroid_cores()) {
    const std::string size{core.size->name};
    if (sizes.empty() || sizes.back().first != size) {
      sizes.emplace_back(size, 0);
      const double named_mm = std::stod(size.substr(2)) * 0.254;
      EXPECT_NEAR(number(core.size->outside_diameter_mm), named_mm, named_mm * 0.05) << size;
      EXPECT_LT(number(core.size->height_mm), named_mm * 0.52) << size;
    }
    ++sizes.back().second;
  }
  EXPECT_EQ(sizes, expected);
}

// On cores of one size the inductance index goes with the permeability of the powder, of which mix
// 2 has 10. (Mix 0 has none to speak of, its index is that of the bare winding.)
TEST(ToroidCores, IndicesGoWithThePermeabilityButForTwo) {
  const std::map<int, double> permeability{{1, 20}, {2, 10}, {3, 35},  {6, 8.5}, {7, 9},
                                           {10, 6}, {12, 4}, {15, 25}, {17, 4},  {26, 75}};
  std::map<std::string_view, int> index_of_mix_2;
  for (const ToroidCore& core : toroid_cores()) {
    if (core.mix == 2) {
      index_of_mix_2[core.size->name] = core.inductance_index_uh;
    }
  }
  std::map<std::string, int> out_of_line;
  for (const ToroidCore& core : toroid_cores()) {
    if (core.mix != 0) {
      const double expected = index_of_mix_2.at(core.size->name) * permeability.at(core.mix) / 10;
      const double ratio = core.inductance_index_uh / expected;
      if (ratio < 0.6 || ratio > 1.3) {
        out_of_line[name_of(core)] = core.inductance_index_uh;
      }
    }
  }
  EXPECT_EQ(out_of_line, (std::map<std::string, int>{{"T-50/15", 1354}, {"T-225/ 6", 950}}));
}

TEST(ToroidCores, TellingRowsAtTheirPlaces) {
  const std::map<std::size_t, std::pair<std::string, int>> expected{
      {7, {"T-12/12", 8}},   {42, {"T-30/ 0", 6}},     {71, {"T-44/12", 18}},
      {77, {"T-50/ 2", 49}}, {157, {"T-225/ 6", 950}}, {169, {"T-520/26", 1460}}};
  for (const auto& [place, row] : expected) {
    const ToroidCore& core = toroid_cores()[place];
    EXPECT_EQ(std::pair(name_of(core), core.inductance_index_uh), row);
  }
}

}  // namespace
}  // namespace eterlab::coils
