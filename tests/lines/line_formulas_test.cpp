#include <algorithm>
#include <string>

#include "lines/coax_cables.h"
#include "lines/free_space.h"
#include "lines/gamma_match.h"
#include "lines/standing_wave.h"
#include "support/agree.h"

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

// Computed with forty decimal digits from 20 (log10(1000 d) + 1.099 - log10(300 / f)).
TEST(FreeSpace, Attenuation) {
  EXPECT_EQ(free_space_path(300, 0.001).attenuation_db, 21.98);      // one wavelength
  EXPECT_EQ(free_space_path(10000, 384400).attenuation_db, 224.13);  // to the moon
  EXPECT_EQ(free_space_path(0.001, 0.001).attenuation_db, -87.56);   // -87.56243
}

// Lengths by Python's decimal, the capacitance by its struct (single precision) and round (ties to
// even).
TEST(GammaMatch, LengthsAndWholeNumbers) {
  const GammaMatch match = gamma_match(7.05);
  EXPECT_TRUE(test::agree({match.wavelength_m, match.rod_length_cm, match.spacing_cm},
                          {42.523829787234043, 265.77393617021277, 29.76668085106383}, 1e-12));
  EXPECT_EQ(gamma_match(600).capacitance_pf, 4);          // 3.5
  EXPECT_EQ(gamma_match(839.9999999).capacitance_pf, 2);  // 2.5, in single precision only
  EXPECT_EQ(gamma_match(0.0641).cable_length_cm, 33775);  // may exceed 16 bits
}

// With exact decimals in Python, the percentages rounded.
TEST(StandingWave, Mismatch) {
  const Mismatch mismatch = mismatch_of(1.05);
  EXPECT_TRUE(test::agree(
      {mismatch.high_impedance_ohm, mismatch.low_impedance_ohm, mismatch.reflection_coefficient,
       mismatch.reflected_percent, mismatch.radiated_percent, mismatch.return_loss_db.value()},
      {52.5, 47.619047619, 0.024390243902, 0.1, 99.9, 32.255677134395}, 1e-9));
  EXPECT_EQ(mismatch_of(2).radiated_percent, 88.9);  // not 88.89
  EXPECT_EQ(mismatch_of(1).radiated_percent, 100);
}

}  // namespace
}  // namespace eterlab::lines
