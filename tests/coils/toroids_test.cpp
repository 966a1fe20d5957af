#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

#include "coils/toroid_cores.h"
#include "coils/toroid_transformer.h"
#include "coils/toroid_tuning.h"

namespace eterlab::coils {
namespace {

double number(std::string_view comma_text) {
  std::string text{comma_text};
  std::ranges::replace(text, ',', '.');
  return std::stod(text);
}

// The number of a size is its outside diameter in hundredths of an inch.
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
  EXPECT_EQ(toroid_cores().size(), 170U);
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

// Round numbers from here on, worked out by hand.

// 100 turns give the index itself, 10 turns a hundredth of it.
TEST(ToroidCores, Turns) {
  EXPECT_EQ(toroid_turns(49, 49), 100);
  EXPECT_EQ(toroid_turns(0.25, 25), 10);
  EXPECT_THROW(toroid_turns(-1, 49), ArithmeticFault);
}

// 31.4 ohm at 1 MHz want 25 uH, which are 100 turns on a core of index 25.
TEST(ToroidTransformer, TurnsAreInTheRatioOfTheRootsOfTheImpedances) {
  struct Expected {
    double frequency_mhz, antenna_ohm, cable_ohm, antenna_turns, cable_turns;
  };
  for (const Expected& expected :
       {Expected{1, 31.4, 7.85, 100, 50}, Expected{1, 31.4, 125.6, 100, 200},
        Expected{1, 125.6, 31.4, 200, 100}, Expected{4, 31.4, 31.4, 50, 50}}) {
    const MatchingWindings windings =
        matching_windings(expected.frequency_mhz, expected.antenna_ohm, expected.cable_ohm, 25);
    EXPECT_NEAR(windings.antenna_turns.value(), expected.antenna_turns, 1e-9);
    EXPECT_NEAR(windings.cable_turns.value(), expected.cable_turns, 1e-9);
  }
  EXPECT_THROW(matching_windings(7, -200, -50, 49), ArithmeticFault);
  EXPECT_THROW(matching_windings(-7, -200, 50, 49), ArithmeticFault);
}

TEST(ToroidTuning, ThirdQuantityFromTheOtherTwo) {
  EXPECT_EQ(from_frequency_and_inductance(5, 4).capacitance_pf, 253);       // 25300 / 100
  EXPECT_EQ(from_frequency_and_capacitance(-5, -253).inductance_uh, -4);    // 25300 / -6325
  EXPECT_EQ(from_inductance_and_capacitance(-4, -25).frequency_mhz, 15.9);  // 159 / 10
  EXPECT_THROW(from_inductance_and_capacitance(-4, 25), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::coils
