#include "lines/coax_cables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace eterlab::lines {
namespace {

std::vector<std::string_view> texts(const CoaxCable& cable) {
  return {cable.impedance_ohm,          cable.capacitance_pf_per_m, cable.outer_diameter_mm,
          cable.loss_db_at_100_mhz,     cable.loss_db_at_400_mhz,   cable.max_voltage_kv,
          cable.max_power_w_at_100_mhz, cable.velocity_factor};
}

/// The number of a text that is one and nothing else.
std::optional<double> number(std::string_view comma_text) {
  std::string text{comma_text};
  std::ranges::replace(text, ',', '.');
  if (text.empty() || text.find_first_not_of("0123456789.") != std::string::npos) {
    return std::nullopt;
  }
  return std::stod(text);
}

TEST(CoaxCables, NamesAreDifferentAndFound) {
  std::set<std::string_view> names;
  for (const CoaxCable& cable : coax_cables()) {
    names.insert(cable.name);
    EXPECT_EQ(find_coax_cable(cable.name), &cable);
  }
  EXPECT_EQ(names.size(), 78U);
  EXPECT_EQ(coax_cables().size(), 78U);
  for (const char* name : {"rg 58", "RG 58 ", "RG  58", "RG58", "RG 5 8", "CAVI RG", ""}) {
    EXPECT_EQ(find_coax_cable(name), nullptr) << name;
  }
}

// The line's own equation: Z C v = 1 / 299.79 m/us, that is 3336 ohm pF/m.
TEST(CoaxCables, ImpedanceCapacitanceAndVelocityAgree) {
  int checked = 0;
  for (const CoaxCable& cable : coax_cables()) {
    const auto impedance = number(cable.impedance_ohm);
    const auto capacitance = number(cable.capacitance_pf_per_m);
    const auto velocity = number(cable.velocity_factor);
    if (impedance && capacitance && velocity) {
      EXPECT_NEAR(*impedance * *capacitance * *velocity, 3336, 3336 * 0.09) << cable.name;
      ++checked;
    }
  }
  EXPECT_EQ(checked, 54);
}

// With the root of the frequency in the conductors, in proportion to it in the dielectric: from
// twice to four times at four times the frequency, with the scatter of old data.
TEST(CoaxCables, LossGrowsWithFrequency) {
  int checked = 0;
  for (const CoaxCable& cable : coax_cables()) {
    const auto at_100 = number(cable.loss_db_at_100_mhz);
    const auto at_400 = number(cable.loss_db_at_400_mhz);
    if (at_100 && at_400) {
      EXPECT_GT(*at_400 / *at_100, 1.4) << cable.name;
      EXPECT_LT(*at_400 / *at_100, 3) << cable.name;
      ++checked;
    }
  }
  EXPECT_EQ(checked, 72);
}

TEST(CoaxCables, UnknownAndUncertainValues) {
  int unknown = 0;
  int uncertain = 0;
  int empty = 0;
  for (const CoaxCable& cable : coax_cables()) {
    for (const std::string_view text : texts(cable)) {
      unknown += text == "ignota" ? 1 : 0;
      uncertain += text.ends_with(" ?") ? 1 : 0;
      empty += text.empty() ? 1 : 0;
    }
  }
  EXPECT_EQ(unknown, 34);
  EXPECT_EQ(uncertain, 21);
  EXPECT_EQ(empty, 1);
}

TEST(CoaxCables, TellingRows) {
  const std::vector<std::vector<std::string_view>> rows{
      {"RG 6", "75", "66", "8,4", "8,9", "19,4", "2,7", "0,66", ""},
      {"RG 23", "125", "39", "16x24", "5,7", "15,6", "3,0", "950", "0,66 ?"},
      {"RG 85", "75", "71", "39,5", "2,8", "6,40", "10,0", "ignota", "0,66 ?"},
      {"RG 86", "200", "25", "7,2x17", "1,9", "ignota", "ignota", "ignota", "0,66 ?"},
      {"RG 302", "75", "ignota", "5,3", "10,8", "22,6", "ignota", "ignota", "0,69"},
  };
  for (std::vector<std::string_view> row : rows) {
    const CoaxCable* cable = find_coax_cable(row.front());
    ASSERT_NE(cable, nullptr) << row.front();
    row.erase(row.begin());
    EXPECT_EQ(texts(*cable), row) << cable->name;
  }
  EXPECT_EQ(coax_cables().front().name, "RG 4");
  EXPECT_EQ(coax_cables().back().name, "H 1500");
}

}  // namespace
}  // namespace eterlab::lines
