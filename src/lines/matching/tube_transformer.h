#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::lines {

/// How the tubes of a quarter-wave transformer stand.
enum class TubeForm : std::uint8_t {
  side_by_side,     ///< two equal ones
  round_in_round,   ///< on one axis
  round_in_square,  ///< on its axis
};

/// The tubes that have an impedance, with air between them.
struct TubeSection {
  Real diameter_mm;  ///< of both tubes, or of the inner one
  Real size_mm;      ///< between the axes, or the inner width of the outer tube
};

/// From the diameter of two tubes side by side, or the inner width of the outer one. Spacers only
/// slow the wave. A round tube in a square one is as in a round one of 1.0787 times its width: of
/// the impedance 3E-6 off where it is 0.3 of the width, 3E-3 at 0.7, and no use beyond. Source:
/// Wheeler, IEEE Trans. MTT 27, 1979.
TubeSection tube_section(TubeForm form, Real given_mm, Real impedance_ohm);

}  // namespace eterlab::lines
