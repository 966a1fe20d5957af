#pragma once

#include <functional>
#include <stdexcept>

#include "common/arithmetic.h"

namespace eterlab::test {

/// What the computation does wrong; throws where it does nothing wrong.
inline ArithmeticFault::Kind kind_of_fault(const std::function<void()>& computation) {
  try {
    computation();
  } catch (const ArithmeticFault& fault) {
    return fault.kind();
  }
  throw std::logic_error{"no fault"};
}

}  // namespace eterlab::test
