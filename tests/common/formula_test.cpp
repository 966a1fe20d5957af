#include "common/formula.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace eterlab::test {
namespace {

/// The tree as a text in which nothing is left to precedence.
std::string tree(const Formula& formula) {
  using Kind = Formula::Kind;
  std::string name = formula.text;
  if (!formula.subscript.empty()) {
    name += "_" + formula.subscript;
  }
  if (formula.kind == Kind::number || formula.kind == Kind::symbol) {
    return name;
  }
  if (formula.kind == Kind::words) {
    return "'" + name + "'";
  }
  const std::string signs = formula.kind == Kind::quotient ? "/"
                            : formula.kind == Kind::power  ? "^"
                            : formula.kind == Kind::root   ? "root"
                            : formula.kind == Kind::group  ? ""
                                                           : name;
  std::string all = formula.operators.empty() ? signs : "";
  for (const std::string& sign : formula.operators) {
    all += sign;
  }
  all += "(";
  for (const Formula& part : formula.parts) {
    all += (all.back() == '(' ? "" : " ") + tree(part);
  }
  return all + ")";
}

TEST(FormulaNotation, ReadsWhatIsMeant) {
  const std::pair<const char*, const char*> table[] = {
      {"1,5E-7", "1,5E-7"},
      {"R_{p1}", "R_p1"},
      {"Z_0'", "Z′_0"},
      {"a + b - c", "+−(a b c)"},
      {"a·b/(c·d)·e", "·(/(·(a b) (·(c d))) e)"},
      {"-a^2", "−(^(a 2))"},
      {"2·-3", "·(2 −(3))"},
      {"x² + y³", "+(^(x 2) ^(y 3))"},
      {"10^-3", "^(10 −(3))"},
      {"a^b^c", "^(^(a b) c)"},
      {"√(L·C)", "root(·(L C))"},
      {"tan(45°)/2", "/(tan(°(45)) 2)"},
      {"arrotonda(x; 2)", "arrotonda(x 2)"},
      {"|Z_1 ∥ Z_2|", "(∥(Z_1 Z_2))"},
      {"Σ(n = 1; N; n)", "Σ(=(n 1) N n)"},
      {"k = 0,5 \"se\" d < 3", "(=(k 0,5) 'se' <(d 3))"},
      {"2E", ""},  // a letter behind a number is no exponent and no product
      {"2 π", ""},
      {"a (b)", ""},
      {"a +", ""},
      {"(a", ""},
      {"√2", ""},
      {"x_", ""},
      {"", ""},
      {"\"se", ""},
  };
  for (const auto& [text, expected] : table) {
    try {
      EXPECT_EQ(tree(parse_formula(text)), expected) << text;
    } catch (const FormulaError&) {
      EXPECT_STREQ(expected, "") << text;
    }
  }
}

TEST(FormulaNotation, TellsWhereItIsWrong) {
  try {
    parse_formula("π = a·b·");
    FAIL();
  } catch (const FormulaError& error) {
    EXPECT_STREQ(error.what(), "a number, symbol or parenthesis expected at character 9");
  }
}

}  // namespace
}  // namespace eterlab::test
