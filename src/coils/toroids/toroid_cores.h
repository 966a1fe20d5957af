#pragma once

#include <span>
#include <string>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::coils {

/// A size of toroidal core, with its dimensions as catalogues print them ("12,70").
struct ToroidSize {
  std::string_view name;                 ///< "T-50"
  std::string_view outside_diameter_mm;  ///< of the ring
  std::string_view height_mm;            ///< along its axis
};

/// An iron-powder toroidal core of the T series.
struct ToroidCore {
  const ToroidSize* size;   ///< in the catalogue of sizes; never null
  int mix;                  ///< number of the powder
  int inductance_index_uh;  ///< A_L: inductance of 100 turns
};

/// The mix in two characters: " 2", "26".
std::string mix_code(const ToroidCore& core);
/// Size and mix: "T-50/ 2", "T-200A/26".
std::string name_of(const ToroidCore& core);

/// The catalogue, by size from the smallest, within a size by mix.
std::span<const ToroidCore> toroid_cores();

/// Turns that give an inductance, which must not be negative, on a core of an inductance index:
/// N = 100 sqrt(L / A_L). Source: makers' definition of A_L for iron powder.
Real toroid_turns(Real inductance_uh, Real inductance_index_uh);

}  // namespace eterlab::coils
