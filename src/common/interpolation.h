#pragma once

#include <span>

#include "common/arithmetic.h"

namespace eterlab {

/// A point of a tabulated function.
struct TablePoint {
  double x;  ///< where
  double y;  ///< the function there
};

/// On the straight lines between the points of a table: one or more, in rising order of x. Beyond
/// its ends as there.
Real interpolated(std::span<const TablePoint> table, Real x);

}  // namespace eterlab
