#pragma once

#include <cstdint>

#include "common/arithmetic.h"

namespace eterlab::coils {

/// What a spiral winds around.
enum class SpiralShape : std::uint8_t { round, square };

/// The artwork of a flat spiral on a printed board.
struct PrintedSpiral {
  SpiralShape shape;
  Real inner_m;  ///< free diameter or side in the middle
  Real track_m;  ///< width
  Real gap_m;    ///< between two tracks, up to widest_gap_ratio widths
};

/// The widest gap over the width of the track.
inline constexpr double widest_gap_ratio = 3;

/// A spiral of so many turns.
struct PrintedCoil {
  Real turns;           ///< whole or not, 1 or more
  Real inductance_h;    ///< without a ground plane
  Real outer_m;         ///< diameter or side
  Real track_length_m;  ///< from end to end
};

/// Against the sum over its turns the inductance is within 3 % for gaps up to the width of the
/// track. Wider ones make it too small: by up to 5 and 10 % for gaps of two and three widths around
/// a free middle of ten widths, by more around a smaller one. Source: S. S. Mohan, M. Hershenson,
/// S. P. Boyd, T. H. Lee, "Simple Accurate Expressions for Planar Spiral Inductances", IEEE J.
/// Solid-State Circuits 34, 1999, the expression of current sheets.
PrintedCoil printed_coil(const PrintedSpiral& spiral, Real turns);

inline constexpr double fewest_printed_turns = 1;  ///< of printed_coil_near()
inline constexpr double most_printed_turns = 50;   ///< of printed_coil_near()

/// Of those with whole quarters of turns the one whose inductance is nearest, the smaller of two.
PrintedCoil printed_coil_near(const PrintedSpiral& spiral, Real inductance_h);

}  // namespace eterlab::coils
