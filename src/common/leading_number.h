#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/arithmetic.h"

namespace eterlab {

/// The number a text begins with; the one rule by which every input box is read.
///
/// Blanks, tabs and line feeds are ignored wherever they stand. Then: an optional sign; digits with
/// at most one ".", which may be missing on one side of it (".5", "5."); an exponent letter E or D,
/// taken only when at least one digit follows it. The first other character ends the number, a
/// comma as any other. A text that begins with no number reads as 0. Throws overflow for a
/// magnitude beyond the range of a double; one too small for it reads as 0.
Real leading_number(std::string_view text);

/// The same, but nothing for a text that begins with no number.
std::optional<Real> leading_number_if_any(std::string_view text);

/// What of a text is not read: all from the character on that ends the number, without blanks. A
/// sign or point by itself is the beginning of a number.
std::string unread_text(std::string_view text);

}  // namespace eterlab
