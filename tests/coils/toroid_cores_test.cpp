#include "coils/toroid_cores.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace eterlab::coils {
namespace {

double number(std::string_view comma_text) {
  std::string text{comma_text};
  std::ranges::replace(text, ',', '.');
  return std::stod(text);
}

TEST(ToroidCores, SizesFollowEachOtherWithTheirNumbersOfMixes) {
  const std::vector<std::pair<std::string, int>> expected{
      {"T-12", 10},  {"T-16", 10}, {"T-20", 11},  {"T-25", 11}, {"T-30", 11},  {"T-37", 11},
      {"T-44", 11},  {"T-50", 11}, {"T-68", 11},  {"T-80", 11}, {"T-94", 9},   {"T-106", 8},
      {"T-130", 8},  {"T-157", 6}, {"T-184", 5},  {"T-200", 6}, {"T-200A", 4}, {"T-225", 4},
      {"T-225A", 2}, {"T-300", 2}, {"T-300A", 2}, {"T-400", 2}, {"T-400A", 2}, {"T-520", 2}};
  std::vector<std::pair<std::string, int>> sizes;
  double diameter_mm = 0;
  for (const ToroidCore& core : toroid_cores()) {
    if (sizes.empty() || sizes.back().first != core.size->name) {
      sizes.emplace_back(core.size->name, 0);
      EXPECT_GE(number(core.size->outside_diameter_mm), diameter_mm) << core.size->name;
      EXPECT_LT(number(core.size->height_mm), number(core.size->outside_diameter_mm));
      diameter_mm = number(core.size->outside_diameter_mm);
    }
    ++sizes.back().second;
  }
  EXPECT_EQ(sizes, expected);
  EXPECT_EQ(toroid_cores().size(), 170U);
}

// The number of a size is its outside diameter in hundredths of an inch.
TEST(ToroidCores, DiametersAgreeWithTheNamesOfTheSizes) {
  for (const ToroidCore& core : toroid_cores()) {
    const double named_mm = std::stod(std::string{core.size->name.substr(2)}) * 0.254;
    EXPECT_NEAR(number(core.size->outside_diameter_mm), named_mm, named_mm * 0.05)
        << core.size->name;
  }
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
  struct Expected {
    std::size_t place;
    const char* name;
    int index_uh;
    const char* diameter_mm;
    const char* height_mm;
  };
  const Expected table[] = {
      {0, "T-12/ 0", 3, "3,18", "1,27"},          {7, "T-12/12", 8, "3,18", "1,27"},
      {42, "T-30/ 0", 6, "7,80", "3,25"},         {71, "T-44/12", 18, "11,18", "4,04"},
      {77, "T-50/ 2", 49, "12,70", "4,83"},       {83, "T-50/15", 1354, "12,70", "4,83"},
      {124, "T-106/26", 900, "26,92", "11,1"},    {149, "T-200/26", 895, "50,8", "13,97"},
      {150, "T-200A/ 2", 218, "50,8", "25,40"},   {156, "T-225/ 6", 100, "57,15", "13,97"},
      {157, "T-225/ 6", 950, "57,15", "13,97"},   {163, "T-300A/26", 1600, "76,20", "25,4"},
      {169, "T-520/26", 1460, "132,08", "20,32"},
  };
  for (const Expected& expected : table) {
    SCOPED_TRACE(expected.place);
    const ToroidCore& core = toroid_cores()[expected.place];
    EXPECT_EQ(name_of(core), expected.name);
    EXPECT_EQ(core.inductance_index_uh, expected.index_uh);
    EXPECT_EQ(core.size->outside_diameter_mm, expected.diameter_mm);
    EXPECT_EQ(core.size->height_mm, expected.height_mm);
  }
}

// 100 turns give the index itself, 10 turns a hundredth of it.
TEST(ToroidCores, Turns) {
  EXPECT_EQ(toroid_turns(49, 49), 100);
  EXPECT_EQ(toroid_turns(0.25, 25), 10);
  EXPECT_NEAR(toroid_turns(10, 49).value(), 45.17539515, 1e-8);
  EXPECT_THROW(toroid_turns(-1, 49), ArithmeticFault);
}

}  // namespace
}  // namespace eterlab::coils
