#include "common/decimal_digits.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <system_error>

namespace eterlab {

namespace {

constexpr int single_precision_digits = 7;
/// Sign, digits, point, exponent: "-1.23456789012345e-308".
constexpr std::size_t scientific_size = 32;

}  // namespace

DecimalDigits::DecimalDigits(Real x) {
  char text[scientific_size];
  const auto end = std::to_chars(std::begin(text), std::end(text), x.value(),
                                 std::chars_format::scientific, precision_ - 1);
  read({text, static_cast<std::size_t>(end.ptr - text)});
}

DecimalDigits::DecimalDigits(Single x) : precision_{single_precision_digits} {
  char text[scientific_size];
  const auto end = std::to_chars(std::begin(text), std::end(text), x.value(),
                                 std::chars_format::scientific, precision_ - 1);
  read({text, static_cast<std::size_t>(end.ptr - text)});
}

void DecimalDigits::read(std::string_view scientific) {
  negative_ = scientific.front() == '-';
  if (negative_) {
    scientific.remove_prefix(1);
  }
  digits_[0] = scientific[0];
  const auto count = static_cast<std::size_t>(precision_);
  scientific.copy(digits_ + 1, count - 1, 2);  // behind the point
  count_ = precision_;
  std::string_view exponent = scientific.substr(count + 2);  // behind the letter
  if (exponent.front() == '+') {
    exponent.remove_prefix(1);  // from_chars takes no plus sign
  }
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), exponent_);
  if (digits_[0] == '0') {
    clear();
  }
}

void DecimalDigits::clear() {
  count_ = 0;
  exponent_ = 0;
}

void DecimalDigits::round_to(int decimals) {
  const int kept = exponent_ + 1 + decimals;
  if (is_zero() || kept >= count_) {
    return;
  }
  const bool up = kept >= 0 && digits_[kept] >= '5';
  count_ = std::max(kept, 0);
  if (!up) {
    if (count_ == 0) {
      clear();
    }
    return;
  }
  while (count_ > 0 && digits_[count_ - 1] == '9') {
    --count_;
  }
  if (count_ > 0) {
    ++digits_[count_ - 1];
    return;
  }
  digits_[count_++] = '1';  // 9.99 becomes 10, 0.5 becomes 1
  ++exponent_;
}

void DecimalDigits::round_to_significant(int digits) { round_to(digits - 1 - exponent_); }

void DecimalDigits::shift(int exponent) {
  if (!is_zero()) {
    exponent_ += exponent;
  }
}

void DecimalDigits::drop_trailing_zeros() {
  while (count_ > 0 && digits_[count_ - 1] == '0') {
    --count_;
  }
}

std::string DecimalDigits::digits_between(int highest, int lowest) const {
  const int places = highest - lowest + 1;
  std::string text(static_cast<std::size_t>(places), '0');
  const int before = exponent_ - highest;  // digits held above the highest, or places above those
  const int first = std::max(before, 0);
  const int last = std::min(before + places, count_);
  if (first < last) {
    std::copy(digits_ + first, digits_ + last, text.begin() + (first - before));
  }
  return text;
}

std::string DecimalDigits::integer_part() const {
  return digits_between(std::max(exponent_, 0), 0);
}

std::string DecimalDigits::fraction(int decimals) const { return digits_between(-1, -decimals); }

int DecimalDigits::decimals() const { return std::max(count_ - 1 - exponent_, 0); }

Real DecimalDigits::value() const {
  if (is_zero()) {
    return 0;
  }
  char text[scientific_size];
  char* at = text;
  if (negative_) {
    *at++ = '-';
  }
  at = std::copy_n(digits_, count_, at);
  *at++ = 'e';
  at = std::to_chars(at, std::end(text), exponent_ - count_ + 1).ptr;
  double value = 0;
  // Digits that are already a double's leave the range upwards: rounded up, or shifted.
  if (std::from_chars(text, at, value).ec == std::errc::result_out_of_range) {
    throw ArithmeticFault{ArithmeticFault::Kind::overflow};
  }
  return Real{value};
}

}  // namespace eterlab
