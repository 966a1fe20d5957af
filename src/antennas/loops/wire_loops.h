#pragma once

#include "common/arithmetic.h"

namespace eterlab::antennas {

/// @name Loops of bare wire
/// At resonance in free space. Lengths above zero, the wire's radius at most
/// thickest_wire_wavelengths. Source: tables computed by the method of moments (NEC-2) for wire
/// without losses with lambda / a = 1000, 10 000 and 100 000, a being the radius. Between those
/// linear in log(lambda / a), between the shapes linear in their number, beyond both as at the
/// nearest. NEC-2 itself finds there lengths within 0.35 %, resistances within 3 %, of rectangles
/// three to four times as high as wide within 5 %.
/// @{

/// Radius of the thickest wire for which the tables may be used.
inline constexpr double thickest_wire_wavelengths = 1.0 / 200;

/// Of about a wavelength around, with the resistance that it has then at its feed point.
struct ResonantLoop {
  Real perimeter_m;     ///< all of the wire
  Real resistance_ohm;  ///< where the current is highest
};

/// A rectangle fed in the middle of its lower side, the ratio from 0.5 to 4; beyond that as there.
ResonantLoop rectangular_loop(Real height_over_width, Real wavelength_m, Real wire_diameter_m);

/// A triangle with two equal sides.
struct Triangle {
  Real base_m;    ///< the third side
  Real side_m;    ///< each of the two
  Real height_m;  ///< over the base
};

/// A triangle from its perimeter and the angle between the equal sides, between 0 and 180 degrees.
Triangle triangle(Real perimeter_m, Real apex_degrees);
/// A triangle fed in the middle of its base, the angle from 45 to 120 degrees; beyond that as
/// there.
ResonantLoop delta_loop(Real apex_degrees, Real wavelength_m, Real wire_diameter_m);

/// An upright rectangle with a bar across, fed in the bar's middle.
struct Hentenna {
  Real height_m;        ///< of the rectangle
  Real width_m;         ///< of the rectangle, a sixth of a wave
  Real bar_height_m;    ///< over the lower side
  Real wire_m;          ///< of rectangle and bar
  Real resistance_ohm;  ///< in the middle of the bar
};

/// Half a wave high.
Hentenna classic_hentenna(Real wavelength_m, Real wire_diameter_m);
/// Made higher so that it has 50 ohm.
Hentenna hentenna_of_50_ohm(Real wavelength_m, Real wire_diameter_m);

/// @}

}  // namespace eterlab::antennas
