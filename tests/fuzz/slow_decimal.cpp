#include "fuzz/slow_decimal.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <regex>

namespace eterlab::reference {

namespace {

void multiply(std::string& digits, std::uint64_t factor) {
  std::uint64_t carry = 0;
  for (std::size_t at = digits.size(); at-- > 0;) {
    carry += static_cast<std::uint64_t>(digits[at] - '0') * factor;
    digits[at] = static_cast<char>('0' + carry % 10);
    carry /= 10;
  }
  if (carry > 0) {
    digits.insert(0, std::to_string(carry));
  }
}

SlowDecimal trimmed(SlowDecimal number) {
  number.digits.erase(number.digits.find_last_not_of('0') + 1);
  const std::size_t zeros = std::min(number.digits.find_first_not_of('0'), number.digits.size());
  number.digits.erase(0, zeros);
  number.point = number.digits.empty() ? 0 : number.point - static_cast<long>(zeros);
  return number;
}

/// |x| is whole x 2^exponent.
struct Binary {
  std::uint64_t whole;
  int exponent;
};
constexpr int smallest_exponent = -1074;

Binary binary(double x) {
  int exponent = 0;
  const double fraction = std::frexp(std::abs(x), &exponent);
  const int shifted = std::max(exponent - 53, smallest_exponent);
  return {static_cast<std::uint64_t>(std::ldexp(fraction, exponent - shifted)), shifted};
}

}  // namespace

SlowDecimal exactly(std::uint64_t whole, int exponent) {
  SlowDecimal number{std::to_string(whole)};
  // 2^-n is 5^n x 10^-n.
  const std::uint64_t factor = exponent < 0 ? 5 : 2;
  for (int left = std::abs(exponent); left > 0;) {
    std::uint64_t power = 1;
    for (int at_once = 12; at_once > 0 && left > 0; --at_once, --left) {
      power *= factor;
    }
    multiply(number.digits, power);
  }
  number.point = static_cast<long>(number.digits.size()) + std::min(exponent, 0);
  return trimmed(number);
}

SlowDecimal exactly(double x) {
  const Binary parts = binary(x);
  return exactly(parts.whole, parts.exponent);
}

SlowDecimal written(std::string_view text) {
  std::string without_blanks{text};
  std::erase_if(without_blanks, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
  static const std::regex rule{R"(^[+-]?([0-9]*)(?:\.([0-9]*))?(?:[EeDd]([+-]?[0-9]+))?)"};
  std::smatch parts;
  std::regex_search(without_blanks, parts, rule);
  const std::string before = parts[1];
  const std::string after = parts[2];
  if (before.empty() && after.empty()) {
    return {};
  }
  constexpr std::size_t longest_exponent = 9;
  const std::string exponent = parts[3];
  const long power = exponent.empty() ? 0 : std::stol(exponent.substr(0, longest_exponent));
  return trimmed({before + after, static_cast<long>(before.size()) + power});
}

int compare(const SlowDecimal& a, const SlowDecimal& b) {
  if (a.digits.empty() || b.digits.empty()) {
    return static_cast<int>(!a.digits.empty()) - static_cast<int>(!b.digits.empty());
  }
  return a.point != b.point ? (a.point < b.point ? -1 : 1) : a.digits.compare(b.digits);
}

SlowDecimal rounded(SlowDecimal number, long decimals, Tie tie) {
  const long kept = number.point + decimals;
  if (kept >= static_cast<long>(number.digits.size())) {
    return number;
  }
  if (kept < 0) {
    return {};
  }
  const std::string dropped = number.digits.substr(static_cast<std::size_t>(kept));
  number.digits.erase(static_cast<std::size_t>(kept));
  const bool is_last_odd = kept > 0 && (number.digits.back() - '0') % 2 == 1;
  const int half = dropped.compare("5");
  if (half > 0 || (half == 0 && (tie == Tie::away_from_zero || is_last_odd))) {
    number.digits.insert(0, 1, '0');
    ++number.point;
    auto digit = number.digits.rbegin();
    for (; *digit == '9'; ++digit) {
      *digit = '0';
    }
    ++*digit;
  }
  return trimmed(number);
}

SlowDecimal with_precision(SlowDecimal number, int digits) {
  const long decimals = digits - number.point;
  return rounded(std::move(number), decimals, Tie::to_even);
}

bool is_nearest(double x, const SlowDecimal& number) {
  const auto [whole, exponent] = binary(x);
  const bool wins_ties = whole % 2 == 0;
  const int above = compare(number, exactly(2 * whole + 1, exponent - 1));
  if (above > 0 || (above == 0 && !wins_ties)) {
    return false;
  }
  if (whole == 0) {
    return true;
  }
  constexpr std::uint64_t power_of_two = std::uint64_t{1} << 52U;
  const bool is_below_closer = whole == power_of_two && exponent > smallest_exponent;
  const int below = compare(number, is_below_closer ? exactly(4 * whole - 1, exponent - 2)
                                                    : exactly(2 * whole - 1, exponent - 1));
  return below > 0 || (below == 0 && wins_ties);
}

bool is_beyond_doubles(const SlowDecimal& number) {
  const auto [whole, exponent] = binary(std::numeric_limits<double>::max());
  return compare(number, exactly(2 * whole + 1, exponent - 1)) >= 0;
}

std::string integer_digits(const SlowDecimal& number) {
  if (number.point <= 0) {
    return "0";
  }
  std::string text = number.digits;
  text.resize(static_cast<std::size_t>(number.point), '0');
  return text;
}

std::string decimal_digits(const SlowDecimal& number) {
  if (number.point >= static_cast<long>(number.digits.size())) {
    return "";
  }
  return number.point < 0
             ? std::string(static_cast<std::size_t>(-number.point), '0') + number.digits
             : number.digits.substr(static_cast<std::size_t>(number.point));
}

}  // namespace eterlab::reference
