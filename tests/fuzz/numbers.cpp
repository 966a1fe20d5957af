#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <iterator>
#include <utility>
#include <vector>

#include "common/leading_number.h"
#include "common/number_text.h"
#include "common/regional_settings.h"

// Reading and writing of numbers, held against another way to the same texts: the C library, whose
// conversions are exact, and whole numbers. `scripts/fuzz` runs it under libFuzzer; the tests run
// it over inputs from fixed seeds.

namespace eterlab {
namespace {

const RegionalSettings countries[] = {
    {".", ",", 3, 3, 2}, {",", ".", 3, 3, 2},           {".", "\u2019", 3, 3, 2},
    {".", ",", 3, 2, 3}, {",", "\u202f", 3, 3, 2},      {",", "", 3, 3, 2},
    {".", "'", 3, 0, 0}, {"\u066b", "\u066c", 4, 4, 1},
};

/// What is being looked at, for the report.
std::string subject;

void expect_equal(const std::string& got, const std::string& wanted, const char* what) {
  if (got != wanted) {
    std::cerr << what << " of " << subject << "\n  got    " << got << "\n  wanted " << wanted
              << '\n';
    std::abort();
  }
}

/// A text for every double, the same for both zeros and for all that is too large.
std::string text_of(double x) {
  if (std::isinf(x)) {
    return "beyond the range";
  }
  char text[64];
  std::snprintf(text, sizeof text, "%a = %.17g", x + 0.0, x + 0.0);
  return text;
}

std::string text_of_result(const std::function<Real()>& computation) {
  try {
    return text_of(computation().value());
  } catch (const ArithmeticFault&) {
    return text_of(HUGE_VAL);
  }
}

/// The number that a text begins with.
double number_in(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
  const std::size_t end = text.find_first_not_of("0123456789.+-EeDd");  // no "0x10", no "inf"
  text.resize(std::min(end, text.size()));
  std::ranges::replace_if(
      text, [](char c) { return c == 'D' || c == 'd'; }, 'e');
  return std::strtod(text.c_str(), nullptr);
}

/// A number in decimal digits: whole x 10^exponent.
struct Decimal {
  std::string sign;
  unsigned long long whole = 0;
  int exponent = 0;

  [[nodiscard]] std::string sign_unless_zero() const { return whole == 0 ? "" : sign; }
  [[nodiscard]] double value() const {
    const std::string text = sign + std::to_string(whole) + 'e' + std::to_string(exponent);
    return std::strtod(text.c_str(), nullptr);
  }
};

Decimal decimal_of(double x, int precision) {
  char text[32];
  std::snprintf(text, sizeof text, "%.*e", precision - 1, std::abs(x));
  std::string digits = text;
  digits.erase(1, 1);  // the point
  char* letter = nullptr;
  const auto whole = std::strtoull(digits.c_str(), &letter, 10);
  return {std::signbit(x) ? "-" : "", whole, std::atoi(letter + 1) - precision + 1};
}

/// Half goes away from zero.
Decimal rounded_to(int decimals, Decimal number) {
  for (; number.exponent < -decimals - 1; ++number.exponent) {
    number.whole /= 10;  // what stands behind the first digit to go decides nothing
  }
  if (number.exponent == -decimals - 1) {
    number.whole = (number.whole + 5) / 10;
    ++number.exponent;
  }
  return number;
}

struct Digits {
  std::string before;  ///< the point: at least one
  std::string after;   ///< without trailing zeros
};

Digits digits_of(const Decimal& number) {
  std::string digits = std::to_string(number.whole);
  digits.append(number.whole == 0 ? 0 : std::max(number.exponent, 0), '0');
  const auto decimals = static_cast<std::size_t>(std::max(-number.exponent, 0));
  digits.insert(0, decimals + 1 - std::min(decimals + 1, digits.size()), '0');
  std::string after = digits.substr(digits.size() - decimals);
  after.erase(after.find_last_not_of('0') + 1);
  return {digits.substr(0, digits.size() - decimals), after};
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

std::string expected_fixed(const Decimal& number, int decimals) {
  const Decimal shown = rounded_to(decimals, number);
  auto [before, after] = digits_of(shown);
  after.resize(static_cast<std::size_t>(decimals), '0');
  return shown.sign_unless_zero() + grouped(before) +
         (decimals > 0 ? regional_settings().decimal_separator + after : "");
}

std::string expected_pattern(const Decimal& number, const std::string& mask) {
  const std::size_t point = std::min(mask.find('.'), mask.size());
  std::string before_point = mask.substr(0, point);
  const std::string after_point = mask.substr(std::min(point + 1, mask.size()));
  const bool is_grouped = std::erase(before_point, ',') > 0;
  const std::size_t least_before =
      before_point.size() - std::min(before_point.find('0'), before_point.size());
  const std::size_t least_after = after_point.find_last_of('0') + 1;

  const Decimal shown = rounded_to(static_cast<int>(after_point.size()), number);
  auto [before, after] = digits_of(shown);
  if (before == "0") {
    before.clear();
  }
  before.insert(0, least_before - std::min(least_before, before.size()), '0');
  after.resize(std::max(after.size(), least_after), '0');
  return shown.sign_unless_zero() + (is_grouped ? grouped(before) : before) +
         (point < mask.size() ? regional_settings().decimal_separator + after : "");
}

std::string expected_plain(const Decimal& number, int precision) {
  const std::string& separator = regional_settings().decimal_separator;
  const int exponent = number.exponent + precision - 1;
  if (number.whole == 0 || (exponent >= -4 && exponent < precision)) {
    const auto [before, after] = digits_of(number);
    return number.sign_unless_zero() + before + (after.empty() ? "" : separator + after);
  }
  std::string digits = std::to_string(number.whole);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.size() > 1) {
    digits.insert(1, separator);
  }
  char power[16];
  std::snprintf(power, sizeof power, "E%+03d", exponent);
  return number.sign + digits + power;
}

constexpr int digits_of_real = 15;

Decimal rounded_to_significant(int digits, const Decimal& number) {
  const int exponent = number.exponent + digits_of_real - 1;
  Decimal rounded = rounded_to(digits - 1 - exponent, number);
  for (; rounded.whole != 0 && rounded.whole < 100'000'000'000'000; --rounded.exponent) {
    rounded.whole *= 10;
  }
  return rounded;
}

struct Prefix {
  const char* text;
  int exponent;
};

/// From the largest down; the smallest is for all that is below it.
const std::pair<const char*, std::vector<Prefix>> units[] = {
    {"Ohm",
     {{"G", 9},
      {"M", 6},
      {"k", 3},
      {"", 0},
      {"m", -3},
      {"\u00b5", -6},
      {"n", -9},
      {"p", -12},
      {"f", -15}}},
    {"F", {{"", 0}, {"\u00b5", -6}, {"n", -9}, {"p", -12}, {"f", -15}}},
    {"s", {{"", 0}, {"m", -3}, {"\u00b5", -6}, {"n", -9}, {"p", -12}, {"f", -15}}},
    {"m", {{"k", 3}, {"", 0}, {"m", -3}, {"\u00b5", -6}, {"n", -9}, {"p", -12}, {"f", -15}}},
};

void check_significant(Real number, int digits) {
  const Decimal shown = rounded_to_significant(digits, decimal_of(number.value(), digits_of_real));
  subject = text_of(number.value()) + ", significant digits " + std::to_string(digits);
  expect_equal(sig(number, digits), expected_plain(shown, digits_of_real), "sig");
  const int exponent = shown.whole == 0 ? 0 : shown.exponent + digits_of_real - 1;
  for (const auto& [unit, prefixes] : units) {
    const auto found = std::ranges::find_if(
        prefixes, [&](const Prefix& prefix) { return exponent >= prefix.exponent; });
    const Prefix prefix = found == prefixes.end() ? prefixes.back() : *found;
    Decimal mantissa = shown;
    mantissa.exponent -= prefix.exponent;
    expect_equal(eng(number, unit, digits),
                 expected_plain(mantissa, digits_of_real) + ' ' + prefix.text + unit, "eng");
  }
}

/// A Real with 15 digits or a Single with 7.
template <class Number>
void check_writing(Number number, int precision, int decimals, const std::string& mask) {
  const Decimal digits = decimal_of(number.value(), precision);
  subject = text_of(number.value()) + ", decimals " + std::to_string(decimals) + ", mask " + mask;
  expect_equal(fixed(number, decimals), expected_fixed(digits, decimals), "fixed");
  expect_equal(fixed(number), expected_fixed(digits, regional_settings().default_decimals),
               "fixed with default decimals");
  expect_equal(pattern(number, mask), expected_pattern(digits, mask), "pattern");
  expect_equal(plain(number), expected_plain(digits, precision), "plain");
  expect_equal(text_of_result([&] { return rounded(number, decimals); }),
               text_of(rounded_to(decimals, digits).value()), "rounded");
}

/// Gives the number that the text begins with.
double check_reading(const std::string& text) {
  subject = text;
  const double number = number_in(text);
  expect_equal(text_of_result([&] { return leading_number(text); }), text_of(number), "reading");
  return number;
}

void check_number(double x, int decimals, const std::string& mask,
                  const RegionalSettings& country) {
  set_regional_settings(country);
  check_writing(Real{x}, digits_of_real, decimals, mask);
  check_significant(x, decimals + 1);
  if (std::abs(x) <= std::numeric_limits<float>::max()) {
    check_writing(Single{x}, 7, decimals, mask);
  }
  // What is written reads back as itself.
  set_regional_settings({".", "", 3, 3, 2});
  expect_equal(text_of(check_reading(fixed(x, decimals))),
               text_of_result([&] { return rounded(x, decimals); }), "fixed read back");
  const std::string text = plain(x);
  if (const double back = check_reading(text); std::isfinite(back)) {
    expect_equal(plain(back), text, "plain read back");
  }
}

void check(std::string_view input) {
  std::size_t at = 0;
  const auto next = [&] {
    return at < input.size() ? static_cast<unsigned char>(input[at++]) : 0U;
  };
  const auto five_of = [&](std::initializer_list<const char*> pieces) {
    std::string text;
    for (int i = 0; i < 5; ++i) {
      text += std::data(pieces)[next() % pieces.size()];
    }
    return text;
  };
  const RegionalSettings& country = countries[next() % std::size(countries)];
  const auto decimals = static_cast<int>(next() % 21);
  const std::string before = five_of({"", "#", "0", ","});
  const std::string after = five_of({"", "#", "0"});
  const std::string mask = next() % 4 == 0 ? before : before + '.' + after;
  std::uint64_t bits = 0;
  for (int byte = 0; byte < 8; ++byte) {
    bits = bits << 8U | next();
  }
  constexpr std::size_t longest_text = 4000;
  const double read = check_reading(std::string{input.substr(at, longest_text)});
  for (const double x : {read, -read, read / 1000, std::bit_cast<double>(bits)}) {
    if (std::isfinite(x)) {
      check_number(x, decimals, mask, country);
    }
  }
}

}  // namespace
}  // namespace eterlab

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  eterlab::check({reinterpret_cast<const char*>(data), size});
  return 0;
}
