#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "lines/coax_cables.h"
#include "lines/matching/gamma_match.h"

// What the windows leave open: the catalogue, digits that they do not show, ties and limits.

namespace eterlab::lines {
namespace {

/// The number of a text that is one and nothing else; otherwise 0.
double number(std::string_view text_with_comma) {
  std::string text{text_with_comma};
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
    const double product = number(cable.impedance_ohm) * number(cable.capacitance_pf_per_m) *
                           number(cable.velocity_factor);
    if (product != 0) {
      EXPECT_NEAR(product, 3336, 3336 * 0.09);
      ++with_constants;
    }
    const double loss_db = number(cable.loss_db_at_100_mhz);
    const double loss_at_fourfold_db = number(cable.loss_db_at_400_mhz);
    if (loss_db * loss_at_fourfold_db != 0) {
      EXPECT_NEAR(loss_at_fourfold_db / loss_db, 2.2, 0.8);
      ++with_losses;
    }
  }
  EXPECT_EQ(with_constants, 54);
  EXPECT_EQ(with_losses, 72);
}

TEST(CoaxCables, AreFoundByTheirWholeNames) {
  EXPECT_EQ(coax_cables().size(), 78U);
  EXPECT_EQ(coax_cables().front().name, "RG 4");
  EXPECT_EQ(coax_cables().back().name, "H 1500");
  for (const char* name : {"rg 58", "RG 58 ", "RG58", "CAVI RG", ""}) {
    EXPECT_EQ(find_coax_cable(name), nullptr) << name;
  }
}

// By Python's struct (single precision) and round (ties to even).
TEST(GammaMatch, WholeNumbers) {
  EXPECT_EQ(gamma_match(600).capacitance_pf, 4);          // 3.5
  EXPECT_EQ(gamma_match(839.9999999).capacitance_pf, 2);  // 2.5, in single precision only
  EXPECT_EQ(gamma_match(0.0641).cable_length_cm, 33775);  // may exceed 16 bits
}

}  // namespace
}  // namespace eterlab::lines
