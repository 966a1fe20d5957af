#pragma once

#include <initializer_list>
#include <iterator>

#include "common/arithmetic.h"

namespace eterlab {

/// A polynomial by Horner's rule, its coefficients from that of x^0 upwards.
inline Real polynomial(Real x, std::initializer_list<double> coefficients) {
  Real sum = 0;
  for (auto at = std::rbegin(coefficients); at != std::rend(coefficients); ++at) {
    sum = sum * x + *at;
  }
  return sum;
}

}  // namespace eterlab
