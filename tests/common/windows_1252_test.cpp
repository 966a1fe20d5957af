#include "common/windows_1252.h"

#include <gtest/gtest.h>

namespace eterlab {
namespace {

using Codes = std::vector<std::uint8_t>;

// Codes from the published table of the character set.
TEST(Windows1252, CodesOfCharacters) {
  EXPECT_EQ(windows_1252_codes("Aa0~ "), (Codes{0x41, 0x61, 0x30, 0x7E, 0x20}));
  EXPECT_EQ(windows_1252_codes("°éÿ"), (Codes{0xB0, 0xE9, 0xFF}));
  EXPECT_EQ(windows_1252_codes("€Ÿ‰"), (Codes{0x80, 0x9F, 0x89}));
  // Each of one, two, three and four bytes without a code: one "?" for each.
  EXPECT_EQ(windows_1252_codes("Ωあ😀x"), (Codes{'?', '?', '?', 'x'}));
  EXPECT_EQ(windows_1252_codes(""), Codes{});
}

TEST(Windows1252, EveryCodeIsACharacterOfThatCode) {
  for (int code = 0; code <= 255; ++code) {
    const auto byte = static_cast<std::uint8_t>(code);
    EXPECT_EQ(windows_1252_codes(windows_1252_character(byte)), Codes{byte});
  }
  EXPECT_EQ(windows_1252_character(0x80), "€");
  EXPECT_EQ(windows_1252_character(0xE8), "è");
}

TEST(Windows1252, UpperCase) {
  const std::pair<const char*, const char*> table[] = {
      {"a", "A"}, {"z", "Z"}, {"è", "È"}, {"þ", "Þ"}, {"š", "Š"}, {"œ", "Œ"}, {"ž", "Ž"},
      {"ÿ", "Ÿ"}, {"`", "`"}, {"{", "{"}, {"÷", "÷"}, {"ß", "ß"}, {"5", "5"}, {"Q", "Q"}};
  for (const auto& [small, capital] : table) {
    EXPECT_EQ(windows_1252_upper_case(windows_1252_codes(small)[0]), windows_1252_codes(capital)[0])
        << small;
  }
}

}  // namespace
}  // namespace eterlab
