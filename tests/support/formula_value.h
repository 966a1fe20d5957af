#pragma once

#include <complex>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "common/formula.h"

namespace eterlab::test {

/// What the formulas of a page make of the quantities that are known.
class FormulaValues {
 public:
  using Value = std::complex<double>;

  void know(const std::string& symbol, Value value) { known_[symbol] = value; }

  /// Carries out all of them, in any order, as far as what they want is known. A line "y = ..."
  /// tells y, unless it is known; with "se" behind it, if that holds; with "altrimenti", if none of
  /// the lines for y before it did.
  void carry_out(const std::vector<std::string>& formulas);

  [[nodiscard]] std::optional<Value> value_of(const std::string& symbol) const;

 private:
  [[nodiscard]] std::optional<Value> value(const Formula& formula) const;
  [[nodiscard]] std::optional<Value> operated(const Formula& formula) const;
  [[nodiscard]] std::optional<Value> called(const Formula& formula) const;
  [[nodiscard]] std::optional<Value> sum_of(const Formula& formula) const;
  [[nodiscard]] std::optional<bool> holds(const Formula& relation) const;
  bool carry_out(const Formula& line);

  std::map<std::string, Value> known_;
  /// Symbols of which a line with "se" could not be judged, or did not hold.
  std::set<std::string> unjudged_;
};

/// How many base units are in one of these: 1e-6 for µH, 0.01 for cm. Fails the test for others.
double base_units(std::string_view unit);

}  // namespace eterlab::test
