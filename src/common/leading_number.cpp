#include "common/leading_number.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

namespace eterlab {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_ignored(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool is_exponent_letter(char c) { return c == 'E' || c == 'e' || c == 'D' || c == 'd'; }
bool is_sign(char c) { return c == '+' || c == '-'; }

/// A number being read, of a text that ends in '\0'.
struct Scanned {
  char* begin;  ///< behind the sign
  char* end;    ///< of the characters taken
  bool has_digits = false;
  /// Decimal exponent of the first digit that is not 0, give or take one.
  std::int64_t magnitude = 0;
};

Scanned take_digits(char* at) {
  Scanned number{at, at};
  bool has_point = false;
  bool significant = false;
  for (; is_digit(*at) || (*at == '.' && !has_point); ++at) {
    if (*at == '.') {
      has_point = true;
      continue;
    }
    number.has_digits = true;
    significant = significant || *at != '0';
    if (significant && !has_point) {
      ++number.magnitude;
    } else if (!significant && has_point) {
      --number.magnitude;
    }
  }
  number.end = at;
  return number;
}

/// Takes the exponent behind the digits, if there is one, and writes its letter as "e".
void take_exponent(Scanned& number, const char* text_end) {
  char* const letter = number.end;
  if (!is_exponent_letter(*letter)) {
    return;
  }
  char* const digits = is_sign(letter[1]) ? letter + 2 : letter + 1;
  if (!is_digit(*digits)) {
    return;
  }
  constexpr std::int64_t far_beyond_any_text = std::numeric_limits<std::int64_t>::max() / 2;
  std::int64_t exponent = far_beyond_any_text;
  const char* const digits_end = std::from_chars(digits, text_end, exponent).ptr;
  exponent = std::min(exponent, far_beyond_any_text);
  number.magnitude += letter[1] == '-' ? -exponent : exponent;
  number.end = digits + (digits_end - digits);
  *letter = 'e';
}

/// Takes the number that a text begins with, and leaves out the text's blanks.
Scanned scan(std::string& characters) {
  std::erase_if(characters, is_ignored);
  Scanned number = take_digits(characters.data() + (is_sign(characters[0]) ? 1 : 0));
  if (number.has_digits) {
    take_exponent(number, characters.data() + characters.size());
  }
  return number;
}

}  // namespace

Real leading_number(std::string_view text) { return leading_number_if_any(text).value_or(0); }

std::optional<Real> leading_number_if_any(std::string_view text) {
  std::string characters{text};
  const Scanned number = scan(characters);
  if (!number.has_digits) {
    return std::nullopt;
  }
  double value = 0;
  if (std::from_chars(number.begin, number.end, value).ec == std::errc::result_out_of_range) {
    if (number.magnitude > 0) {
      throw ArithmeticFault{ArithmeticFault::Kind::overflow};
    }
    return Real{0};  // too small for a double
  }
  return Real{characters[0] == '-' ? -value : value};
}

std::string unread_text(std::string_view text) {
  std::string characters{text};
  const Scanned number = scan(characters);
  return number.end;
}

}  // namespace eterlab
