#include "antennas/suitable_diameter.h"

#include "common/rounding.h"

namespace eterlab::antennas {

namespace {

constexpr int decimals = 2;
constexpr double slack_mm = 1e-11;  // what the rounding of the limits takes for noise

}  // namespace

bool is_suitable(Real diameter_mm, const ThicknessRange& range, Real wavelength_m) {
  return diameter_mm >= 1000 * range.least * wavelength_m - slack_mm &&
         diameter_mm <= 1000 * range.greatest * wavelength_m + slack_mm;
}

std::string diameter_refusal(const ThicknessRange& range, Real wavelength_m) {
  return "DIAMETRO ADATTO A QUESTA FREQUENZA : DA " +
         fixed_up(1000 * range.least * wavelength_m, decimals) + " A " +
         fixed_down(1000 * range.greatest * wavelength_m, decimals) + " mm";
}

}  // namespace eterlab::antennas
