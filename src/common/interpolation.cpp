#include "common/interpolation.h"

#include <algorithm>

namespace eterlab {

Real interpolated(std::span<const TablePoint> table, Real x) {
  const auto after = std::ranges::upper_bound(table, x.value(), {}, &TablePoint::x);
  if (after == table.begin()) {
    return table.front().y;
  }
  const auto before = after - 1;
  if (after == table.end()) {
    return before->y;
  }
  return before->y + (x - before->x) / (after->x - before->x) * (after->y - before->y);
}

}  // namespace eterlab
