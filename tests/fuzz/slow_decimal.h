#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Decimal numbers as rows of digits, computed as on paper: slow, exact, and sharing nothing with
// the code that is measured by them.

namespace eterlab::reference {

/// 0.d1d2d3... x 10^point: the decimal point stands after `point` digits. No digits: zero.
struct SlowDecimal {
  std::string digits;
  long point = 0;
};

/// whole x 2^exponent, every digit of it.
SlowDecimal exactly(std::uint64_t whole, int exponent);
SlowDecimal exactly(double x);

/// The number that a text begins with, without its sign.
SlowDecimal written(std::string_view text);

/// Negative, zero or positive as a is below, equal to or above b.
int compare(const SlowDecimal& a, const SlowDecimal& b);

enum class Tie : std::uint8_t { to_even, away_from_zero };
/// Rounds to so many decimals; a negative count rounds before the point.
SlowDecimal rounded(SlowDecimal number, long decimals, Tie tie);
/// Rounds to so many significant digits.
SlowDecimal with_precision(SlowDecimal number, int digits);

/// Whether no double is nearer to the number than |x|; of two equally near ones the even one is.
bool is_nearest(double x, const SlowDecimal& number);
/// Whether the number rounds to a double beyond the largest one.
bool is_beyond_doubles(const SlowDecimal& number);

std::string integer_digits(const SlowDecimal& number);
/// The digits after the point without trailing zeros.
std::string decimal_digits(const SlowDecimal& number);

}  // namespace eterlab::reference
