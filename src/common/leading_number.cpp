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

/// Walks a text as if its ignored characters were not there.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_{text} { skip_ignored(); }

  /// '\0' past the end: no part of a number.
  [[nodiscard]] char peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  char take() {
    const char c = text_[at_++];
    skip_ignored();
    return c;
  }
  [[nodiscard]] char take_sign() { return peek() == '+' || peek() == '-' ? take() : '+'; }

 private:
  void skip_ignored() {
    while (at_ < text_.size() && is_ignored(text_[at_])) {
      ++at_;
    }
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

/// A number being read: its characters as std::from_chars wants them, and its rough size.
struct Scanned {
  std::string characters;
  bool has_digits = false;
  /// Decimal exponent of the first digit that is not 0, give or take one.
  std::int64_t magnitude = 0;
};

Scanned take_digits(Reader& reader) {
  Scanned number;
  bool has_point = false;
  bool significant = false;
  while (is_digit(reader.peek()) || (reader.peek() == '.' && !has_point)) {
    const char c = reader.take();
    number.characters += c;
    if (c == '.') {
      has_point = true;
      continue;
    }
    number.has_digits = true;
    significant = significant || c != '0';
    if (significant && !has_point) {
      ++number.magnitude;
    } else if (!significant && has_point) {
      --number.magnitude;
    }
  }
  return number;
}

/// Adds the exponent at the reader's place, if there is one.
void take_exponent(Reader& reader, Scanned& number) {
  if (!is_exponent_letter(reader.peek())) {
    return;
  }
  reader.take();
  const char sign = reader.take_sign();
  std::string digits;
  while (is_digit(reader.peek())) {
    digits += reader.take();
  }
  if (digits.empty()) {
    return;
  }
  constexpr std::int64_t far_beyond_any_text = std::numeric_limits<std::int64_t>::max() / 2;
  std::int64_t exponent = far_beyond_any_text;
  std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
  exponent = std::min(exponent, far_beyond_any_text);
  number.magnitude += sign == '-' ? -exponent : exponent;
  number.characters += 'e';
  number.characters += sign;
  number.characters += digits;
}

}  // namespace

Real leading_number(std::string_view text) {
  Reader reader{text};
  const bool negative = reader.take_sign() == '-';
  Scanned number = take_digits(reader);
  if (!number.has_digits) {
    return 0;
  }
  take_exponent(reader, number);

  const std::string& characters = number.characters;
  double value = 0;
  const auto result =
      std::from_chars(characters.data(), characters.data() + characters.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    if (number.magnitude > 0) {
      throw ArithmeticFault{ArithmeticFault::Kind::overflow};
    }
    return 0;  // too small for a double
  }
  return Real{negative ? -value : value};
}

}  // namespace eterlab
