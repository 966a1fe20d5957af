#include "signals/dishes/can_feed.h"

#include "common/physics.h"

namespace eterlab::signals {

namespace {

constexpr double first_zero_of_j1_derivative = 1.84118378;
constexpr double first_zero_of_j0 = 2.40482556;
constexpr double least_over_cutoff = 1.001;

}  // namespace

CanCutoffs can_cutoffs(Real inner_diameter_m) {
  const Real by_zero_hz = speed_of_light_m_per_s / (pi * inner_diameter_m);
  return {first_zero_of_j1_derivative * by_zero_hz, first_zero_of_j0 * by_zero_hz};
}

bool can_carries(Real inner_diameter_m, Real frequency_hz) {
  return frequency_hz > least_over_cutoff * can_cutoffs(inner_diameter_m).te11_hz;
}

Real smallest_can_mm(Real frequency_hz) {
  // Cut-off times diameter is the same for all cans.
  return floor(1000 * least_over_cutoff * can_cutoffs(1).te11_hz / frequency_hz) + 1;
}

CanFeed can_feed(Real inner_diameter_m, Real frequency_hz) {
  const Real wavelength_m = speed_of_light_m_per_s / frequency_hz;
  const Real ratio = can_cutoffs(inner_diameter_m).te11_hz / frequency_hz;
  const Real guide_wavelength_m = wavelength_m / sqrt((1 - ratio) * (1 + ratio));
  return {.guide_wavelength_m = guide_wavelength_m,
          .probe_from_bottom_m = guide_wavelength_m / 4,
          .probe_length_m = 0.95 * wavelength_m / 4,
          .can_length_m = 0.75 * guide_wavelength_m};
}

}  // namespace eterlab::signals
