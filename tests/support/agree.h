#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "common/arithmetic.h"

namespace eterlab::test {

/// Whether numbers are the expected ones, each within this distance.
inline ::testing::AssertionResult agree(const std::vector<Real>& numbers,
                                        const std::vector<double>& expected, double distance = 0) {
  if (std::ranges::equal(numbers, expected, [distance](Real number, double wanted) {
        return std::abs(number.value() - wanted) <= distance;
      })) {
    return ::testing::AssertionSuccess();
  }
  auto failure = ::testing::AssertionFailure();
  for (const Real number : numbers) {
    failure << ::testing::PrintToString(number.value()) << ' ';
  }
  return failure;
}

}  // namespace eterlab::test
