#pragma once

#include "common/arithmetic.h"
#include "transformers/laminated_core.h"

namespace eterlab::transformers {

/// Permeability of laminations to what alternates beside a direct current: on the safe side, good
/// ones have up to three times as much.
inline constexpr double incremental_permeability = 1000;

/// What a winding that carries direct current must do. All above zero, but for the last.
struct GappedWinding {
  Real inductance_h;         ///< at least
  Real direct_current_a;     ///< through the winding
  Real peak_linkage_vs = 0;  ///< flux linkage of what alternates
};

/// @name Cores with a gap
/// Two conditions, both on the safe side: the induction of the direct current, as if the gap alone
/// held it back, and of what alternates is 1.2 T at most; gap and iron together leave the
/// inductance. Source: C. R. Hanna, Journal AIEE 46 (1927), whose best gap has the fewest turns.
/// @{

/// Turns, not rounded: the fewest possible where nothing alternates, up to some 10 % more where the
/// induction is mostly of what alternates.
Real least_turns(const GappedWinding& winding, const LaminatedCore& core);
/// Total length of the gap for a number of turns, no less than least_turns().
Real total_gap_m(const GappedWinding& winding, Real turns);
/// Inductance of a winding on a core; the gap may be 0.
Real inductance_h(const LaminatedCore& core, Real turns, Real gap_m);

/// @}

}  // namespace eterlab::transformers
