#pragma once

#include <array>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab::units {

/// @name Prefixes of units
/// Source: BIPM, The International System of Units, 9th edition, with the four of 2022.
/// @{

/// A power of ten with a name.
struct SiPrefix {
  std::string_view name;    ///< Italian
  std::string_view symbol;  ///< before that of the unit
  int exponent;             ///< of ten
};

/// From the largest to the smallest.
inline constexpr std::array<SiPrefix, 24> si_prefixes{{
    {"quetta", "Q", 30}, {"ronna", "R", 27},  {"yotta", "Y", 24},  {"zetta", "Z", 21},
    {"exa", "E", 18},    {"peta", "P", 15},   {"tera", "T", 12},   {"giga", "G", 9},
    {"mega", "M", 6},    {"chilo", "k", 3},   {"etto", "h", 2},    {"deca", "da", 1},
    {"deci", "d", -1},   {"centi", "c", -2},  {"milli", "m", -3},  {"micro", "µ", -6},
    {"nano", "n", -9},   {"pico", "p", -12},  {"femto", "f", -15}, {"atto", "a", -18},
    {"zepto", "z", -21}, {"yocto", "y", -24}, {"ronto", "r", -27}, {"quecto", "q", -30},
}};

/// A number of units with one prefix as the number of those with another, told by their exponents.
Real with_other_prefix(Real number, int from_exponent, int to_exponent);

/// @}

}  // namespace eterlab::units
