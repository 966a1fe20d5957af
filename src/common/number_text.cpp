#include "common/number_text.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "common/decimal_digits.h"
#include "common/regional_settings.h"

namespace eterlab {

namespace {

std::string grouped(std::string digits) {
  const RegionalSettings& region = regional_settings();
  if (region.first_group <= 0) {
    return digits;
  }
  int place = static_cast<int>(digits.size()) - region.first_group;
  while (place > 0) {
    digits.insert(static_cast<std::size_t>(place), region.group_separator);
    place = region.other_groups > 0 ? place - region.other_groups : 0;
  }
  return digits;
}

std::string sign(const DecimalDigits& number) { return number.is_negative() ? "-" : ""; }

std::string fixed_text(DecimalDigits number, int decimals) {
  number.round_to(decimals);
  std::string text = sign(number) + grouped(number.integer_part());
  if (decimals > 0) {
    text += regional_settings().decimal_separator;
    text += number.fraction(decimals);
  }
  return text;
}

std::string pattern_text(DecimalDigits number, std::string_view mask) {
  const std::size_t point = mask.find('.');
  const std::string_view before = mask.substr(0, point);
  const bool grouping = before.find(',') != std::string_view::npos;
  const std::string_view after =
      point == std::string_view::npos ? std::string_view{} : mask.substr(point + 1);
  // The outermost "0" on each side decides: what stands within it is always written too.
  const std::string_view always = before.substr(std::min(before.find('0'), before.size()));
  const auto always_before =
      always.size() - static_cast<std::size_t>(std::ranges::count(always, ','));
  const auto always_after = static_cast<int>(after.find_last_of('0') + 1);

  number.round_to(static_cast<int>(after.size()));
  number.drop_trailing_zeros();
  std::string integer = number.integer_part();
  if (always_before == 0 && integer == "0") {
    integer.clear();
  }
  integer.insert(0, always_before - std::min(always_before, integer.size()), '0');

  std::string text = sign(number);
  text += grouping ? grouped(std::move(integer)) : integer;
  if (point != std::string_view::npos) {
    text += regional_settings().decimal_separator;
    text += number.fraction(std::max(always_after, number.decimals()));
  }
  return text;
}

std::string plain_text(DecimalDigits number, std::string_view decimal_separator) {
  constexpr int smallest_exponent = -4;
  number.drop_trailing_zeros();
  if (number.exponent() >= smallest_exponent && number.exponent() < number.precision()) {
    std::string text = sign(number) + number.integer_part();
    if (number.decimals() > 0) {
      text += decimal_separator;
      text += number.fraction(number.decimals());
    }
    return text;
  }
  const std::string_view digits = number.digits();
  std::string text = sign(number) + digits.front();
  if (digits.size() > 1) {
    text += decimal_separator;
    text += digits.substr(1);
  }
  const std::string exponent = std::to_string(std::abs(number.exponent()));
  text += number.exponent() < 0 ? "E-" : "E+";
  text += exponent.size() < 2 ? "0" + exponent : exponent;
  return text;
}

std::string plain_text(const DecimalDigits& number) {
  return plain_text(number, regional_settings().decimal_separator);
}

/// The power of ten of the prefix under which a number of that exponent is shown with the unit.
int prefix_exponent(int exponent, std::string_view unit) {
  constexpr int smallest = -15;
  int largest = 9;
  if (unit == "F" || unit == "s") {
    largest = 0;
  } else if (unit == "m" || unit == "g") {
    largest = 3;
  }
  // Downwards to a multiple of three, below zero as above.
  const int thousands = (std::max(exponent, smallest) - smallest) / 3 * 3 + smallest;
  return unit == "F" && thousands == -3 ? -6 : std::min(thousands, largest);
}

std::string_view prefix_of(int exponent) {
  constexpr std::string_view prefixes[] = {"f", "p", "n", "\u00b5", "m", "", "k", "M", "G"};
  return prefixes[exponent / 3 + 5];
}

Real rounded_value(DecimalDigits number, int decimals) {
  number.round_to(decimals);
  return number.value();
}

}  // namespace

std::string fixed(Real x, int decimals) { return fixed_text(DecimalDigits{x}, decimals); }
std::string fixed(Single x, int decimals) { return fixed_text(DecimalDigits{x}, decimals); }
std::string fixed(Real x) { return fixed(x, regional_settings().default_decimals); }
std::string fixed(Single x) { return fixed(x, regional_settings().default_decimals); }

std::string pattern(Real x, std::string_view mask) { return pattern_text(DecimalDigits{x}, mask); }
std::string pattern(Single x, std::string_view mask) {
  return pattern_text(DecimalDigits{x}, mask);
}

std::string plain(Real x) { return plain_text(DecimalDigits{x}); }
std::string plain(Single x) { return plain_text(DecimalDigits{x}); }

std::string sig(Real x, int digits) {
  DecimalDigits number{x};
  number.round_to_significant(digits);
  return plain_text(number);
}

std::string eng(Real x, std::string_view unit, int digits) {
  DecimalDigits number{x};
  number.round_to_significant(digits);
  const int exponent = prefix_exponent(number.exponent(), unit);
  number.shift(-exponent);
  std::string text = plain_text(number) + ' ';
  text += prefix_of(exponent);
  text += unit;
  return text;
}

Real rounded(Real x, int decimals) { return rounded_value(DecimalDigits{x}, decimals); }
Real rounded(Single x, int decimals) { return rounded_value(DecimalDigits{x}, decimals); }
Real rounded(Real x) { return rounded(x, regional_settings().default_decimals); }

std::string as_typed(Real x) { return plain_text(DecimalDigits{x}, "."); }

}  // namespace eterlab
