#pragma once

#include <string>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab {

/// The decimal digits of a value: d1.d2d3... x 10^exponent, d1 not 0 unless the value is zero.
class DecimalDigits {
 public:
  explicit DecimalDigits(Real x);    ///< 15 digits
  explicit DecimalDigits(Single x);  ///< 7 digits

  /// Rounds half away from zero on the digits held.
  void round_to(int decimals);
  /// The same, to so many digits: 1 or more.
  void round_to_significant(int digits);
  /// Multiplies by a power of ten; may go beyond what a double holds.
  void shift(int exponent);
  /// Those after the last digit that is not 0.
  void drop_trailing_zeros();

  /// Whether no digit but 0 is left.
  [[nodiscard]] bool is_zero() const { return count_ == 0; }
  /// Zero is not.
  [[nodiscard]] bool is_negative() const { return negative_ && !is_zero(); }
  /// The power of ten of the first digit.
  [[nodiscard]] int exponent() const { return exponent_; }
  /// How many digits the type of the value carries: 15 or 7.
  [[nodiscard]] int precision() const { return precision_; }
  /// Digits held, without the zeros that rounding or dropping took away.
  [[nodiscard]] std::string_view digits() const {
    return {digits_, static_cast<std::size_t>(count_)};
  }
  /// The digits before the decimal point, "0" if there are none.
  [[nodiscard]] std::string integer_part() const;
  /// The first `decimals` digits after the decimal point.
  [[nodiscard]] std::string fraction(int decimals) const;
  /// The number of digits after the decimal point, the last of them not 0 after dropping zeros.
  [[nodiscard]] int decimals() const;
  /// The number that the digits held write.
  [[nodiscard]] Real value() const;

 private:
  static constexpr int max_precision = 15;

  void read(std::string_view scientific);
  void clear();
  /// From the digit of weight 10^highest down to that of 10^lowest.
  [[nodiscard]] std::string digits_between(int highest, int lowest) const;

  char digits_[max_precision] = {};
  int count_ = 0;
  int exponent_ = 0;
  int precision_ = max_precision;
  bool negative_ = false;
};

}  // namespace eterlab
