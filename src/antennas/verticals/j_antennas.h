#pragma once

#include "antennas/verticals/tube.h"
#include "common/arithmetic.h"

namespace eterlab::antennas {

/// @name J antennas
/// A vertical half wave fed at its end by a section of two parallel conductors, matched to a cable
/// of 50 ohm. All conductors are of one diameter; spacings are between axes. The dimensions are
/// fitted to numerical solutions in free space that have exactly 50 ohm; a fit's standing wave
/// ratio is at most 1.1 in the range of thickness that is told with it.
/// @{

/// Both conductors open at their lower ends, where the cable goes to.
struct OpenJ {
  Real long_conductor_m;       ///< section and half wave
  Real short_conductor_m;      ///< the section
  Real spacing_m;              ///< of the two
  Real section_impedance_ohm;  ///< characteristic impedance of the section
};
/// Of the open J.
inline constexpr ThicknessRange open_j_thickness{0.0001, 0.01};
/// For a thickness in its range.
OpenJ open_j(const Tube& tube);

/// Both conductors joined at their lower ends, the cable tapped above.
struct ShortedJ {
  Real long_conductor_m;   ///< section and half wave
  Real short_conductor_m;  ///< the section
  Real spacing_m;          ///< of the two
  Real tap_m;              ///< of the cable, above the short
};
/// Of the shorted J.
inline constexpr ThicknessRange shorted_j_thickness{0.0002, 0.01};
/// For a thickness in its range. Source of the arrangement: H. Beggerow's aerial.
ShortedJ shorted_j(const Tube& tube);

/// One closed loop with a cut in one side, the cable tapped above its lower end.
struct SlimJim {
  Real height_m;     ///< of the whole loop
  Real below_cut_m;  ///< of the side with the cut
  Real cut_m;        ///< its opening
  Real above_cut_m;  ///< of the side with the cut
  Real spacing_m;    ///< of the sides
  Real tap_m;        ///< of the cable, above the lower end
};
/// Of the Slim Jim.
inline constexpr ThicknessRange slim_jim_thickness{0.0003, 0.008};
/// For a thickness in its range. Source of the arrangement: F. C. Judd, Practical Wireless, 1978.
SlimJim slim_jim(const Tube& tube);

/// @}

}  // namespace eterlab::antennas
