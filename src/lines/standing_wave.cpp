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

Complex reflection_coefficient(Complex load_ohm, Real line_ohm) {
  return (load_ohm - line_ohm) / (load_ohm + line_ohm);
}

Real standing_wave_ratio(Complex load_ohm, Real line_ohm) {
  // (1 + rho) / (1 - rho), where 1 - rho^2 = 4 R Z0 / |Z + Z0|^2
  const Real sum = abs(load_ohm + line_ohm);
  const Real numerator = sum + abs(load_ohm - line_ohm);
  return numerator / line_ohm * (numerator / load_ohm.real()) / 4;
}

}  // namespace eterlab::lines
