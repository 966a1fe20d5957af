#include "antennas/dipoles/ladder_line.h"

namespace eterlab::antennas {

std::span<const LadderLine> ladder_lines() {
  static constexpr LadderLine lines[] = {
      {"PIATTINA 300 OHM", 300, 0.82, 0.8, 7.5},
      {"SCALETTA 450 OHM", 450, 0.91, 1.0, 20},
      {"LINEA APERTA 600 OHM", 600, 0.97, 1.6, 119},
  };
  return lines;
}

}  // namespace eterlab::antennas
