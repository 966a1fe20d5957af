#include "lines/standing_wave.h"

#include "common/number_text.h"

namespace eterlab::lines {

Mismatch mismatch_of(Real standing_wave_ratio) {
  constexpr double line_impedance_ohm = 50;
  const Real rho = (standing_wave_ratio - 1) / (standing_wave_ratio + 1);
  const Real reflected_percent = rounded(100 * rho * rho, 1);
  std::optional<Real> return_loss_db;
  if (rho > 0) {
    return_loss_db = -20 * ln(rho) / ln(10);
  }
  return {line_impedance_ohm * standing_wave_ratio,
          line_impedance_ohm / standing_wave_ratio,
          rho,
          reflected_percent,
          100 - reflected_percent,
          return_loss_db};
}

}  // namespace eterlab::lines
