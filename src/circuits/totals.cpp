#include "circuits/totals.h"

#include <numeric>

#include "common/complex.h"

namespace eterlab::circuits {

Real sum_of(std::span<const Real> values) {
  return std::accumulate(values.begin(), values.end(), Real{});
}

Real parallel_of(std::span<const Real> values) {
  return std::accumulate(values.begin() + 1, values.end(), values.front(),
                         [](Real a, Real b) { return parallel(a, b); });
}

}  // namespace eterlab::circuits
