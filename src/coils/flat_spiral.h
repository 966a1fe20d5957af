#pragma once

#include "common/arithmetic.h"

namespace eterlab::coils {

/// A flat spiral air coil.
struct FlatSpiral {
  Real mean_radius_mm;  ///< half-way between the inner and the outer one
  Real width_mm;        ///< of the winding, from its inner to its outer radius
  Real inductance_uh;   ///< rounded to the regional default number of decimals
};

/// Source: Wheeler's formula for a spiral coil, L = a^2 N^2 / (8 a + 11 c) with lengths in inches,
/// turned to millimetre with rounded factors: L = (a N)^2 / (100 (2 a + 2.8 c)), where a is the
/// mean radius and c the width. The outer radius should not be below the inner one; equal ones are
/// the coil of one radius.
FlatSpiral flat_spiral(Real turns, Real inner_radius_mm, Real outer_radius_mm);

}  // namespace eterlab::coils
