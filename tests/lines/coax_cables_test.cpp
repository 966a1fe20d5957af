#include "lines/coax_cables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace eterlab::lines {
namespace {

using Texts = std::vector<std::string_view>;

Texts texts(const CoaxCable& cable) {
  return {cable.impedance_ohm,          cable.capacitance_pf_per_m, cable.outer_diameter_mm,
          cable.loss_db_at_100_mhz,     cable.loss_db_at_400_mhz,   cable.max_voltage_kv,
          cable.max_power_w_at_100_mhz, cable.velocity_factor};
}

/// The number of a text that is one and nothing else; otherwise 0.
double number(std::string text) {
  std::ranges::replace(text, ',', '.');
  const bool is_number = text.find_first_not_of("0123456789.") == std::string::npos;
  return text.empty() || !is_number ? 0 : std::stod(text);
}

// The line's own equation: Z C v = 1 / 299.79 m/us, that is 3336 ohm pF/m. The loss grows with the
// root of the frequency in the conductors, in proportion to it in the dielectric: from twice to
// four times at four times the frequency. Both with the scatter of old data.
TEST(CoaxCables, AgreeWithPhysics) {
  int with_constants = 0;
  int with_losses = 0;
  for (const CoaxCable& cable : coax_cables()) {
    SCOPED_TRACE(cable.name);
    EXPECT_EQ(find_coax_cable(cable.name), &cable);
    const auto at = [all = texts(cable)](int i) { return number(std::string{all[i]}); };
    if (const double product = at(0) * at(1) * at(7); product != 0) {
      EXPECT_NEAR(product, 3336, 3336 * 0.09);
      ++with_constants;
    }
    if (at(3) * at(4) != 0) {
      EXPECT_NEAR(at(4) / at(3), 2.2, 0.8);
      ++with_losses;
    }
  }
  EXPECT_EQ(with_constants, 54);
  EXPECT_EQ(with_losses, 72);
}

TEST(CoaxCables, TellingRows) {
  const Texts rows[] = {
      {"RG 6", "75", "66", "8,4", "8,9", "19,4", "2,7", "0,66", ""},
      {"RG 23", "125", "39", "16x24", "5,7", "15,6", "3,0", "950", "0,66 ?"},
      {"RG 85", "75", "71", "39,5", "2,8", "6,40", "10,0", "ignota", "0,66 ?"},
      {"RG 302", "75", "ignota", "5,3", "10,8", "22,6", "ignota", "ignota", "0,69"},
  };
  for (Texts row : rows) {
    const CoaxCable* cable = find_coax_cable(row.front());
    ASSERT_NE(cable, nullptr) << row.front();
    row.erase(row.begin());
    EXPECT_EQ(texts(*cable), row) << cable->name;
  }
  EXPECT_EQ(coax_cables().size(), 78U);
  EXPECT_EQ(coax_cables().front().name, "RG 4");
  EXPECT_EQ(coax_cables().back().name, "H 1500");
  for (const char* name : {"rg 58", "RG 58 ", "RG58", "CAVI RG", ""}) {
    EXPECT_EQ(find_coax_cable(name), nullptr) << name;
  }
}

}  // namespace
}  // namespace eterlab::lines
