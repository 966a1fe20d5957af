#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "common/arithmetic.h"
#include "lines/matching/matched_load.h"

namespace eterlab::lines {

/// A matching section that amateurs often build.
struct UsualSection {
  std::string_view load;     ///< and the line to it
  std::string_view section;  ///< what matches them
  MatchedLoad matched;       ///< each branch
  int branches;              ///< joined in parallel at the line

  /// At the line.
  [[nodiscard]] Real input_impedance_ohm() const;
  /// On the line.
  [[nodiscard]] Real swr() const;
};

/// All of them, with sections of cables on sale.
const std::vector<UsualSection>& usual_sections();

}  // namespace eterlab::lines
