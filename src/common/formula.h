#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace eterlab {

/// A formula, or a part of one, as a tree. Texts are UTF-8.
struct Formula {
  enum class Kind {
    number,    ///< text, with a decimal comma
    symbol,    ///< text and subscript
    words,     ///< text, from between quotes
    line,      ///< parts one behind the other: relations and words
    relation,  ///< parts with operators between them: = ≈ < > ≤ ≥ ≠ →
    sum,       ///< parts with operators between them: + − ±
    sign,      ///< text (− or ±) before the one part
    product,   ///< parts with operators between them: · ∥
    quotient,  ///< the first part over the second
    power,     ///< the first part to the power of the second
    postfix,   ///< the one part before text: °, %
    root,      ///< of the first part; square, cube with the text 3
    absolute,  ///< of the one part
    group,     ///< the one part in parentheses
    call,      ///< function of the parts; its name is a symbol, text and subscript
    big        ///< Σ or ∫: lower limit, upper limit, what is summed; or the last alone
  };

  Kind kind;
  std::string text = {};
  std::string subscript = {};
  std::vector<Formula> parts = {};
  std::vector<std::string> operators = {};
};

/// What is no formula. Tells what was expected and where, from 1.
class FormulaError : public std::runtime_error {
 public:
  using runtime_error::runtime_error;
};

/// Reads a formula in the notation of the handbook's pages, one line of text:
///
///     f_0 = 1 / (2·π·√(L·C))        k = 0,5 "se" d/l > 0,3
///
/// Products are always written; a quotient takes all factors to its left; a name before a
/// parenthesis is a function, whose arguments are parted by semicolons; x², x³ are powers. Throws
/// FormulaError.
Formula parse_formula(std::string_view text);

}  // namespace eterlab
