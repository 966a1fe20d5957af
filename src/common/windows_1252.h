#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace eterlab {

/// @name Windows-1252
/// The character set in which the characters of western Europe have codes from 0 to 255. Letters,
/// digits and signs of ASCII have their ASCII codes.
/// @{

/// One code for each character; that of "?" for a character that the set does not have.
std::vector<std::uint8_t> windows_1252_codes(std::string_view utf8);

/// The character of a code, in UTF-8.
std::string windows_1252_character(std::uint8_t code);

/// The code of a letter's capital where the set has one, else the code itself.
std::uint8_t windows_1252_upper_case(std::uint8_t code);

/// @}

}  // namespace eterlab
