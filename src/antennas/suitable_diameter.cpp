#include "antennas/suitable_diameter.h"

#include "common/rounding.h"

namespace eterlab::antennas {

namespace {

constexpr int decimals = 2;
constexpr double slack_mm = 1e-11;  // what the rounding of the limits takes for noise

}  // namespace

bool SuitableDiameter::admits(Real diameter_mm, Real wavelength_m) const {
  return diameter_mm >= 1000 * least_wavelengths * wavelength_m - slack_mm &&
         diameter_mm <= 1000 * greatest_wavelengths * wavelength_m + slack_mm;
}

std::string SuitableDiameter::refusal(Real wavelength_m) const {
  return "DIAMETRO ADATTO A QUESTA FREQUENZA : DA " +
         fixed_up(1000 * least_wavelengths * wavelength_m, decimals) + " A " +
         fixed_down(1000 * greatest_wavelengths * wavelength_m, decimals) + " mm";
}

}  // namespace eterlab::antennas
