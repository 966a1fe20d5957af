#include "units/wire_gauge.h"

namespace eterlab::units {

namespace {

// Gauge 36 has a diameter of 5 mils; 39 steps from there to 0000 multiply it by 92.
constexpr double reference_gauge = 36;
constexpr double reference_mm = 0.127;
constexpr double steps = 39;
constexpr double ratio = 92;

}  // namespace

Real awg_diameter_mm(Real gauge) {
  return reference_mm * pow(ratio, (reference_gauge - gauge) / steps);
}

std::optional<int> nearest_awg(Real diameter_mm) {
  constexpr double thickest = -3;
  constexpr double thinnest = 50;
  const Real gauge = round(reference_gauge - steps * ln(diameter_mm / reference_mm) / ln(ratio));
  if (gauge < thickest || gauge > thinnest) {
    return std::nullopt;
  }
  return round_to_int16(gauge);
}

}  // namespace eterlab::units
