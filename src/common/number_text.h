#pragma once

#include <string>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab {

/// @name Numbers to text
/// In the five styles of the results. All of them work on the decimal digits nearest to the value,
/// 15 of a Real and 7 of a Single (the even ones of two equally near), and round half away from
/// zero on those digits: 1.25 with one decimal is 1.3, 1.005 with two is 1.01. What rounds to zero
/// shows no minus sign. The separators are those of regional_settings().
/// @{

/// Exactly `decimals` decimals (0 or more), digit grouping, at least one digit before the
/// separator.
std::string fixed(Real x, int decimals);
/// @copydoc fixed(Real, int)
std::string fixed(Single x, int decimals);
/// With the regional default number of decimals.
std::string fixed(Real x);
/// @copydoc fixed(Real)
std::string fixed(Single x);

/// A mask such as "#,##0.##": "," asks for grouping; each "0" is a digit always written, each "#"
/// one dropped where it would be a leading or trailing zero. The decimal separator stays even when
/// no decimal is left ("12," for 12 in an Italian setting).
std::string pattern(Real x, std::string_view mask);
/// @copydoc pattern(Real, std::string_view)
std::string pattern(Single x, std::string_view mask);

/// The shortest text: no grouping, no trailing zeros, exponent form ("1,5E+16", "2E-05") when the
/// decimal exponent is below -4 or not below the number of digits held (15 or 7).
std::string plain(Real x);
/// @copydoc plain(Real)
std::string plain(Single x);

/// Rounded to so many significant digits, 1 or more, and shown as plain(): 0.00012346 with four is
/// "0,0001235", 1234567 is "1235000".
std::string sig(Real x, int digits);

/// Rounded as by sig() and shown as plain() with the prefix of the unit, f p n µ m k M G or none,
/// that leaves 1 to 999 before the separator: "2,5 kOhm", "33,21 µF", "70,71 V", "0 Ohm". Smaller
/// values keep f, larger ones G. Prefixes that nobody uses with a unit are passed over: m with F
/// ("4700 µF"), those above none with F and s, those above k with g and m.
std::string eng(Real x, std::string_view unit, int digits = 4);

/// @}

/// As one types it into a box: as plain() shows it, but with a point whatever the settings are.
std::string as_typed(Real x);

/// The value that fixed(x, decimals) shows. Throws overflow where rounding the largest numbers
/// leaves the range.
Real rounded(Real x, int decimals);
/// @copydoc rounded(Real, int)
Real rounded(Single x, int decimals);
/// With the regional default number of decimals.
Real rounded(Real x);

}  // namespace eterlab
