#include "common/windows_1252.h"

#include <algorithm>
#include <array>

namespace eterlab {

namespace {

/// The characters 0x80 to 0x9F; all others are the same as in Unicode. The five codes that the set
/// leaves open stand for the control characters of their number.
constexpr std::uint8_t first_special = 0x80;
constexpr std::array<char32_t, 32> specials{
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
constexpr char32_t after_specials = first_special + specials.size();

std::uint8_t code_of(char32_t character) {
  if (character < first_special || (character >= after_specials && character <= 0xFF)) {
    return static_cast<std::uint8_t>(character);
  }
  const auto* const special = std::find(specials.begin(), specials.end(), character);
  return special == specials.end()
             ? static_cast<std::uint8_t>('?')
             : static_cast<std::uint8_t>(first_special + (special - specials.begin()));
}

bool is_continuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

}  // namespace

std::vector<std::uint8_t> windows_1252_codes(std::string_view utf8) {
  std::vector<std::uint8_t> codes;
  while (!utf8.empty()) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    const auto* const end = std::find_if_not(utf8.begin() + 1, utf8.end(), is_continuation);
    const auto length = static_cast<std::size_t>(end - utf8.begin());
    // A lead byte carries 7, 5, 4 or 3 bits, each further byte six.
    char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
    for (const char byte : utf8.substr(1, length - 1)) {
      character = (character << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    codes.push_back(code_of(character));
    utf8.remove_prefix(length);
  }
  return codes;
}

std::string windows_1252_character(std::uint8_t code) {
  const char32_t character = code >= first_special && code < after_specials
                                 ? specials[code - std::size_t{first_special}]
                                 : char32_t{code};
  if (character < 0x80) {
    return {static_cast<char>(character)};
  }
  const auto last = static_cast<char>(0x80U | (character & 0x3FU));
  if (character < 0x800) {
    return {static_cast<char>(0xC0U | (character >> 6U)), last};
  }
  return {static_cast<char>(0xE0U | (character >> 12U)),
          static_cast<char>(0x80U | ((character >> 6U) & 0x3FU)), last};
}

std::uint8_t windows_1252_upper_case(std::uint8_t code) {
  constexpr std::uint8_t division_sign = 0xF7;
  constexpr std::uint8_t small_y_diaeresis = 0xFF;
  const bool is_ascii_letter = code >= 'a' && code <= 'z';
  const bool is_accented_letter =
      code >= 0xE0 && code != division_sign && code != small_y_diaeresis;
  if (is_ascii_letter || is_accented_letter) {
    return static_cast<std::uint8_t>(code - 0x20);
  }
  switch (code) {
    case 0x9A:  // s, o-e and z, each with its capital 16 codes before
    case 0x9C:
    case 0x9E:
      return static_cast<std::uint8_t>(code - 0x10);
    case small_y_diaeresis:
      return 0x9F;
    default:
      return code;
  }
}

}  // namespace eterlab
