#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iomanip>
#include <iostream>
#include <optional>

#include "common/leading_number.h"
#include "common/number_text.h"
#include "common/regional_settings.h"
#include "fuzz/slow_decimal.h"

// Reading and writing of numbers, held against arithmetic on rows of digits. `scripts/fuzz` runs it
// under libFuzzer; the tests run it over inputs from fixed seeds.

namespace eterlab {
namespace {

using reference::SlowDecimal;

const RegionalSettings countries[] = {
    {".", ",", 3, 3, 2}, {",", ".", 3, 3, 2},           {".", "\u2019", 3, 3, 2},
    {".", ",", 3, 2, 3}, {",", "\u202f", 3, 3, 2},      {",", "", 3, 3, 2},
    {".", "'", 3, 0, 0}, {"\u066b", "\u066c", 4, 4, 1},
};

/// What is being looked at, for the report.
struct Case {
  double x = 0;
  int decimals = 0;
  std::string mask;
  std::string text;
};

void expect(bool holds, const char* what, const Case& at, const std::string& got = {},
            const std::string& wanted = {}) {
  if (!holds) {
    std::cerr << what << "\n  x " << std::hexfloat << at.x << " = " << std::defaultfloat
              << std::setprecision(17) << at.x << "\n  decimals " << at.decimals << "\n  mask "
              << at.mask << "\n  text " << std::quoted(at.text) << "\n  got    " << got
              << "\n  wanted " << wanted << '\n';
    std::abort();
  }
}

void expect_equal(const std::string& got, const std::string& wanted, const char* what,
                  const Case& at) {
  expect(got == wanted, what, at, got, wanted);
}

/// Nothing where the numbers leave their range.
template <class Computation>
std::optional<double> value_of(Computation computation) {
  try {
    return Real{computation()}.value();
  } catch (const ArithmeticFault&) {
    return std::nullopt;
  }
}

std::string grouped(std::string digits) {
  const RegionalSettings& region = regional_settings();
  int size = region.first_group;
  for (auto left = static_cast<int>(digits.size()); size > 0 && left > size;) {
    left -= size;
    digits.insert(static_cast<std::size_t>(left), region.group_separator);
    size = region.other_groups;
  }
  return digits;
}

std::string with_sign(bool is_negative, const SlowDecimal& number, std::string text) {
  if (is_negative && !number.digits.empty()) {
    text.insert(0, 1, '-');
  }
  return text;
}

std::string expected_fixed(bool is_negative, const SlowDecimal& digits, int decimals) {
  const SlowDecimal number = rounded(digits, decimals, reference::Tie::away_from_zero);
  std::string text = grouped(integer_digits(number));
  if (decimals > 0) {
    std::string after = decimal_digits(number);
    after.resize(static_cast<std::size_t>(decimals), '0');
    text += regional_settings().decimal_separator + after;
  }
  return with_sign(is_negative, number, text);
}

std::string expected_pattern(bool is_negative, const SlowDecimal& digits, const std::string& mask) {
  const std::size_t point = std::min(mask.find('.'), mask.size());
  std::string before = mask.substr(0, point);
  const std::string after = mask.substr(std::min(point + 1, mask.size()));
  const bool is_grouped = before.find(',') != std::string::npos;
  std::erase(before, ',');
  const std::size_t least_before = before.size() - std::min(before.find('0'), before.size());
  const std::size_t least_after = after.find_last_of('0') + 1;

  const SlowDecimal number =
      rounded(digits, static_cast<long>(after.size()), reference::Tie::away_from_zero);
  std::string integer = number.point > 0 ? integer_digits(number) : "";
  while (integer.size() < least_before) {
    integer.insert(0, 1, '0');
  }
  std::string text = is_grouped ? grouped(integer) : integer;
  if (point < mask.size()) {
    std::string decimals = decimal_digits(number);
    decimals.resize(std::max(decimals.size(), least_after), '0');
    text += regional_settings().decimal_separator + decimals;
  }
  return with_sign(is_negative, number, text);
}

std::string expected_plain(bool is_negative, const SlowDecimal& number, int precision) {
  const std::string& separator = regional_settings().decimal_separator;
  const long exponent = number.point - 1;
  if (number.digits.empty() || (exponent >= -4 && exponent < precision)) {
    const std::string after = decimal_digits(number);
    return with_sign(is_negative, number,
                     integer_digits(number) + (after.empty() ? after : separator + after));
  }
  std::string text = number.digits.substr(0, 1);
  if (number.digits.size() > 1) {
    text += separator + number.digits.substr(1);
  }
  text += exponent < 0 ? "E-" : "E+";
  text += std::abs(exponent) < 10 ? "0" : "";
  return with_sign(is_negative, number, text + std::to_string(std::abs(exponent)));
}

/// A Real with 15 digits or a Single with 7.
template <class Number>
void check_writing(Number x, int precision, const Case& at) {
  const bool is_negative = std::signbit(at.x);
  const SlowDecimal digits = with_precision(reference::exactly(x.value()), precision);
  expect_equal(fixed(x, at.decimals), expected_fixed(is_negative, digits, at.decimals), "fixed",
               at);
  expect_equal(fixed(x), expected_fixed(is_negative, digits, regional_settings().default_decimals),
               "fixed with default decimals", at);
  expect_equal(pattern(x, at.mask), expected_pattern(is_negative, digits, at.mask), "pattern", at);
  expect_equal(plain(x), expected_plain(is_negative, digits, precision), "plain", at);

  const auto value = value_of([&] { return rounded(x, at.decimals); });
  const SlowDecimal shown = rounded(digits, at.decimals, reference::Tie::away_from_zero);
  expect(value.has_value() != is_beyond_doubles(shown), "rounded leaves the range", at);
  expect(!value || is_nearest(*value, shown), "rounded", at, std::to_string(value.value_or(0)));
}

/// What is written reads back as itself.
void check_reading_back(Real x, const Case& at) {
  set_regional_settings({".", "", 3, 3, 2});
  expect(value_of([&] { return leading_number(fixed(x, at.decimals)); }) ==
             value_of([&] { return rounded(x, at.decimals); }),
         "fixed read back", at);
  const std::string text = plain(x);
  if (const auto value = value_of([&] { return leading_number(text); }); value) {
    expect_equal(plain(*value), text, "plain read back", at);
  } else {
    expect(is_beyond_doubles(reference::written(text)), "plain leaves the range", at);
  }
}

void check_number(Case at, const RegionalSettings& country) {
  set_regional_settings(country);
  check_writing(Real{at.x}, 15, at);
  if (const auto narrow = value_of([&] { return Real{Single{at.x}}; }); narrow) {
    const Single single{at.x};
    at.x = *narrow;
    check_writing(single, 7, at);
  }
  check_reading_back(at.x, at);
}

/// What the text begins with, 0 where that is beyond the range.
double check_reading(const Case& at) {
  const auto value = value_of([&] { return leading_number(at.text); });
  const SlowDecimal number = reference::written(at.text);
  expect(value.has_value() != is_beyond_doubles(number), "reading leaves the range", at);
  if (!value) {
    return 0;
  }
  expect(is_nearest(*value, number), "reading", at, std::to_string(*value));
  const std::size_t first = at.text.find_first_not_of(" \t\n");
  const bool is_negative = first != std::string::npos && at.text[first] == '-';
  expect(*value == 0 || std::signbit(*value) == is_negative, "sign of what was read", at);
  return *value;
}

/// Takes a fuzzer's bytes apart.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_{bytes} {}

  unsigned next() {
    const unsigned byte = bytes_.empty() ? 0 : static_cast<unsigned char>(bytes_.front());
    bytes_.remove_prefix(bytes_.empty() ? 0 : 1);
    return byte;
  }
  /// Up to `most` characters of a set; takes as many bytes and one, whatever they are.
  std::string of(std::string_view set, unsigned most) {
    std::string text;
    const unsigned count = next() % (most + 1);
    for (unsigned i = 0; i < most; ++i) {
      text += set[next() % set.size()];
    }
    return text.substr(0, count);
  }
  std::string_view rest() { return bytes_; }

 private:
  std::string_view bytes_;
};

void check(std::string_view input) {
  constexpr unsigned most_decimals = 20;
  constexpr std::size_t longest_text = 4000;
  Bytes bytes{input};
  Case at;
  const RegionalSettings& country = countries[bytes.next() % std::size(countries)];
  at.decimals = static_cast<int>(bytes.next() % (most_decimals + 1));
  const bool has_point = bytes.next() % 4 != 0;
  at.mask = bytes.of("#0,", 5);
  const std::string after = bytes.of("#0", 5);
  if (has_point) {
    at.mask += '.';
    at.mask += after;
  }
  std::uint64_t bits = 0;
  for (int byte = 0; byte < 8; ++byte) {
    bits = bits << 8U | bytes.next();
  }
  at.text = bytes.rest().substr(0, longest_text);

  const double read = check_reading(at);
  const auto any = std::bit_cast<double>(bits);
  for (const double x : {read, -read, read / 1000, std::isfinite(any) ? any : 0}) {
    at.x = x;
    check_number(at, country);
  }
  set_regional_settings({});
}

}  // namespace
}  // namespace eterlab

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  eterlab::check({reinterpret_cast<const char*>(data), size});
  return 0;
}
