#pragma once

#include <cstdint>
#include <iterator>
#include <random>
#include <string>

namespace eterlab::test {

/// Chances that are the same from the same seed on every machine.
class Random {
 public:
  explicit Random(std::uint64_t seed) : engine_{seed} {}

  std::uint64_t bits() { return engine_(); }
  /// 0 to count - 1.
  int below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
  int between(int least, int most) { return least + below(most - least + 1); }
  bool one_in(int count) { return below(count) == 0; }
  /// Any element of an array or container that is not empty.
  template <class Elements>
  const auto& any_of(const Elements& elements) {
    return *std::next(std::begin(elements), below(static_cast<int>(std::size(elements))));
  }

 private:
  std::mt19937_64 engine_;
};

/// A number as people type it: 50, 14.2, .05, -3.
std::string ordinary_number(Random& random);
/// Digits, signs, points, exponents and blanks in any order, of any size; at times a number at the
/// edges of the types, at times hundreds of digits.
std::string wild_number(Random& random);
/// Anything that stands on a keyboard.
std::string garbage(Random& random);

}  // namespace eterlab::test
