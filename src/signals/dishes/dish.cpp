#include "signals/dishes/dish.h"

#include <numbers>

#include "common/numerics.h"
#include "common/physics.h"
#include "signals/decibel_watt.h"

namespace eterlab::signals {

DishFocus dish_focus(Real diameter, Real depth) {
  const Real focal_length = diameter * diameter / (16 * depth);
  return {.focal_length = focal_length,
          .focal_ratio = focal_length / diameter,
          .feed_angle_degrees = 4 * atan(4 * depth / diameter) * 180 / pi,
          .focus_to_rim = focal_length + depth};
}

DishGain dish_gain(Real diameter_m, Real wavelength_m, Real efficiency) {
  constexpr double beamwidth_wavelengths_degrees = 70;
  const Real diameter_wavelengths = diameter_m / wavelength_m;
  return {.gain_dbi = level_dbw(efficiency) + 2 * level_dbw(pi * diameter_wavelengths),
          .beamwidth_degrees = beamwidth_wavelengths_degrees / diameter_wavelengths,
          .effective_area_m2 = efficiency * pi * diameter_m * diameter_m / 4,
          .far_field_m = 2 * diameter_m * diameter_wavelengths,
          .surface_error_m = wavelength_m / (4 * pi) * sqrt(0.1 * std::numbers::ln10)};
}

Real dish_pattern_db(Real off_axis_degrees, Real beamwidth_degrees) {
  constexpr double half_power_u = 1.994417403381;  // of 8 J2(u) / u^2 = sqrt(1/2)
  const Real u =
      half_power_u * sin(off_axis_degrees * pi / 180) / sin(beamwidth_degrees / 2 * pi / 180);
  constexpr double hardly_off_the_axis = 1e-3;  // u^2 / 12 less than 1, where J2 loses digits
  const Real field = abs(u) < hardly_off_the_axis ? 1 - u * u / 12 : 8 * bessel_j(2, u) / (u * u);
  return 20 * log10(abs(field));
}

}  // namespace eterlab::signals
