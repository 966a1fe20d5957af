#pragma once

#include <span>
#include <string_view>

namespace eterlab::antennas {

/// A line of two wires, as antennas are made of and fed with.
struct LadderLine {
  std::string_view name;   ///< as it is sold
  double impedance_ohm;    ///< characteristic
  double velocity_factor;  ///< of its push-pull wave
  double wire_mm;          ///< diameter
  double spacing_mm;       ///< between the centres of the wires
};

/// Ribbon, window line and open line, after their makers' sheets.
std::span<const LadderLine> ladder_lines();

}  // namespace eterlab::antennas
