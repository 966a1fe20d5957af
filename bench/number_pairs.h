#pragma once

#include <span>

namespace eterlab::bench {

/// A way of reading or writing a number, and the nearest that the standard library has: of the same
/// value, with as many digits.
struct NumberPair {
  const char* name;
  const char* nearest_name;
  void (*run)();
  void (*run_nearest)();
};

std::span<const NumberPair> number_pairs();

}  // namespace eterlab::bench
