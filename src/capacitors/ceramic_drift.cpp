#include "capacitors/ceramic_drift.h"

namespace eterlab::capacitors {

namespace {

constexpr CeramicCharacteristic characteristics[] = {
    {"P100", 100, "ROSSO + VIOLA"}, {"NP0", 0, "NERO"},
    {"N033", -33, "MARRONE"},       {"N075", -75, "ROSSO"},
    {"N150", -150, "ARANCIO"},      {"N220", -220, "GIALLO"},
    {"N330", -330, "VERDE"},        {"N470", -470, "BLU"},
    {"N750", -750, "VIOLA"},        {"N1500", -1500, "ARANCIO + ARANCIO"},
};

Real relative_drift(Real ppm_per_degree, Real degrees) { return ppm_per_degree * 1e-6 * degrees; }

}  // namespace

std::span<const CeramicCharacteristic> ceramic_characteristics() { return characteristics; }

Real ceramic_drift(Real capacitance, Real ppm_per_degree, Real degrees) {
  return capacitance * relative_drift(ppm_per_degree, degrees);
}

Real tuning_drift(Real ppm_per_degree, Real degrees) {
  // 1 / sqrt(1 + drift) - 1, without the difference of two numbers near 1.
  return expm1(-log1p(relative_drift(ppm_per_degree, degrees)) / 2);
}

}  // namespace eterlab::capacitors
