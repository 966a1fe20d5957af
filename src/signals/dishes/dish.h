#pragma once

#include "common/arithmetic.h"

namespace eterlab::signals {

/// @name Parabolic dishes
/// Of a circular rim. All arguments must be above zero.
/// @{

/// Where the focus of a dish is. Source: geometry of the paraboloid, y^2 = 4 f x.
struct DishFocus {
  Real focal_length;        ///< from the centre of the dish, in the unit of its diameter
  Real focal_ratio;         ///< focal length over diameter
  Real feed_angle_degrees;  ///< at which the feed sees the dish, from rim to rim
  Real focus_to_rim;        ///< in the unit of the diameter
};

/// From the diameter of the rim and the depth at the centre, in one unit.
DishFocus dish_focus(Real diameter, Real depth);

/// What a dish does at a wavelength.
struct DishGain {
  Real gain_dbi;           ///< (pi D / lambda)^2 times the efficiency
  Real beamwidth_degrees;  ///< between the directions of half the power, 70 lambda / D
  Real effective_area_m2;  ///< received power over power density
  Real far_field_m;        ///< the pattern holds from this distance on, 2 D^2 / lambda
  Real surface_error_m;    ///< RMS, that costs 1 dB by Ruze: exp(-(4 pi e / lambda)^2)
};

/// The efficiency is a fraction, at most 1. Of dishes of a wavelength or more.
DishGain dish_gain(Real diameter_m, Real wavelength_m, Real efficiency);

/// The pattern of a circular aperture whose field falls off to the rim as a parabola,
/// 20 lg(8 J2(u) / u^2), in a direction seen from its axis; 0 dB there. u goes with the sine of the
/// angle, so that the pattern has this beamwidth, which is below 180. Throws invalid_argument in
/// the midst of a zero.
Real dish_pattern_db(Real off_axis_degrees, Real beamwidth_degrees);

/// @}

}  // namespace eterlab::signals
