#include "common/formula.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <utility>

namespace eterlab {

namespace {

using Kind = Formula::Kind;

/// The characters of a text, each as its own piece of UTF-8.
std::vector<std::string> characters_of(std::string_view text) {
  constexpr unsigned char mask = 0xC0;
  constexpr unsigned char follows = 0x80;
  std::vector<std::string> characters;
  for (const char byte : text) {
    if (!characters.empty() && (static_cast<unsigned char>(byte) & mask) == follows) {
      characters.back() += byte;
    } else {
      characters.emplace_back(1, byte);
    }
  }
  return characters;
}

bool is_digit(const std::string& c) { return c.size() == 1 && c[0] >= '0' && c[0] <= '9'; }

/// Signs beyond ASCII that are no letters.
constexpr auto signs = std::to_array<std::string_view>(
    {"·", "×", "−", "±", "√", "∛", "²", "³", "≈", "≤", "≥", "≠", "→", "∥", "°", "∫"});

bool is_letter(const std::string& c) {
  if (c.size() == 1) {
    return (c[0] >= 'a' && c[0] <= 'z') || (c[0] >= 'A' && c[0] <= 'Z');
  }
  return std::ranges::find(signs, c) == signs.end();
}

class Parser {
 public:
  explicit Parser(std::string_view text) : characters_{characters_of(text)} {}

  Formula line() {
    Formula all{Kind::line};
    while (!is_at_end()) {
      const bool is_quoted = peek() == "\"";
      const bool stands_alone = all.parts.empty() || all.parts.back().kind == Kind::words;
      if (!is_quoted && !stands_alone) {
        fail("an operator");
      }
      all.parts.push_back(is_quoted ? words() : relation());
    }
    if (all.parts.empty()) {
      fail("a formula");
    }
    return all.parts.size() == 1 ? std::move(all.parts.front()) : all;
  }

 private:
  [[noreturn]] void fail(std::string_view expected) const {
    throw FormulaError{std::string{expected} + " expected at character " + std::to_string(at_ + 1)};
  }

  void skip_blanks() {
    while (at_ < characters_.size() && characters_[at_] == " ") {
      ++at_;
    }
  }

  bool is_at_end() {
    skip_blanks();
    return at_ == characters_.size();
  }

  const std::string& peek() {
    static const std::string end;
    return is_at_end() ? end : characters_[at_];
  }

  bool take(std::string_view character) {
    const bool is_there = peek() == character;
    at_ += is_there ? 1 : 0;
    return is_there;
  }

  void want(std::string_view character) {
    if (!take(character)) {
      fail(character);
    }
  }

  /// Whether the very next character, behind no blank, is this one.
  [[nodiscard]] bool touches(std::string_view character) const {
    return at_ < characters_.size() && characters_[at_] == character;
  }

  /// One of these, as it is drawn; empty where there is none.
  std::string take_operator(
      std::initializer_list<std::pair<std::string_view, std::string_view>> of) {
    for (const auto& [written, drawn] : of) {
      if (take(written)) {
        return std::string{drawn};
      }
    }
    return {};
  }

  Formula words() {
    want("\"");
    Formula quoted{Kind::words};
    while (at_ < characters_.size() && characters_[at_] != "\"") {
      quoted.text += characters_[at_++];
    }
    want("\"");
    return quoted;
  }

  template <class Operand, class Operator>
  Formula chain(Kind kind, Operand operand, Operator next_operator) {
    Formula all{kind};
    all.parts.push_back(operand());
    for (std::string sign = next_operator(); !sign.empty(); sign = next_operator()) {
      all.operators.push_back(std::move(sign));
      all.parts.push_back(operand());
    }
    return all.operators.empty() ? std::move(all.parts.front()) : all;
  }

  Formula relation() {
    return chain(
        Kind::relation, [this] { return sum(); },
        [this] {
          return take_operator({{"=", "="},
                                {"≈", "≈"},
                                {"<", "<"},
                                {">", ">"},
                                {"≤", "≤"},
                                {"≥", "≥"},
                                {"≠", "≠"},
                                {"→", "→"}});
        });
  }

  Formula sum() {
    return chain(
        Kind::sum, [this] { return signed_product(); },
        [this] {
          return take_operator({{"+", "+"}, {"-", "−"}, {"−", "−"}, {"±", "±"}});
        });
  }

  Formula signed_product() {
    if (std::string sign = take_operator({{"-", "−"}, {"−", "−"}, {"±", "±"}}); !sign.empty()) {
      return {Kind::sign, std::move(sign), {}, {signed_product()}, {}};
    }
    return product();
  }

  Formula product() {
    Formula left = power();
    while (true) {
      if (std::string sign = take_operator({{"·", "·"}, {"×", "·"}, {"∥", "∥"}}); !sign.empty()) {
        if (left.kind != Kind::product) {
          left = {Kind::product, {}, {}, {std::move(left)}, {}};
        }
        left.operators.push_back(std::move(sign));
        left.parts.push_back(factor());
      } else if (take("/")) {
        left = {Kind::quotient, {}, {}, {std::move(left), factor()}, {}};
      } else {
        return left;
      }
    }
  }

  /// May have a sign of its own, as in 2·-3.
  Formula factor() {
    if (peek() == "-" || peek() == "−") {
      ++at_;
      return {Kind::sign, "−", {}, {power()}, {}};
    }
    return power();
  }

  Formula power() {
    Formula base = primary();
    while (true) {
      if (take("^")) {
        base = {Kind::power, {}, {}, {std::move(base), exponent()}, {}};
      } else if (touches("²") || touches("³")) {
        const bool is_square = touches("²");
        ++at_;
        base = {Kind::power, {}, {}, {std::move(base), {Kind::number, is_square ? "2" : "3"}}, {}};
      } else if (touches("°") || touches("%")) {
        base = {Kind::postfix, characters_[at_++], {}, {std::move(base)}, {}};
      } else {
        return base;
      }
    }
  }

  Formula exponent() {
    if (take("-") || take("−")) {
      return {Kind::sign, "−", {}, {primary()}, {}};
    }
    return primary();
  }

  Formula primary() {
    const std::string& next = peek();
    if (is_digit(next)) {
      return number();
    }
    if (take("(")) {
      Formula inner{Kind::group, {}, {}, {relation()}, {}};
      want(")");
      return inner;
    }
    if (take("|")) {
      Formula inner{Kind::absolute, {}, {}, {sum()}, {}};
      want("|");
      return inner;
    }
    if (next == "√" || next == "∛") {
      const bool is_cube = next == "∛";
      ++at_;
      want("(");
      Formula inner{Kind::root, is_cube ? "3" : "", {}, {sum()}, {}};
      want(")");
      return inner;
    }
    if (next == "Σ" || next == "∫") {
      return big();
    }
    if (!next.empty() && (is_letter(next) || next == "…")) {
      return name();
    }
    fail("a number, symbol or parenthesis");
  }

  Formula number() {
    Formula digits{Kind::number};
    const auto take_digits = [&] {
      while (at_ < characters_.size() && is_digit(characters_[at_])) {
        digits.text += characters_[at_++];
      }
    };
    take_digits();
    const auto digit_at = [this](std::size_t place) {
      return place < characters_.size() && is_digit(characters_[place]);
    };
    if (touches(",") && digit_at(at_ + 1)) {
      digits.text += characters_[at_++];
      take_digits();
    }
    if (touches("E")) {
      const bool has_sign = at_ + 1 < characters_.size() &&
                            (characters_[at_ + 1] == "-" || characters_[at_ + 1] == "+");
      if (digit_at(at_ + (has_sign ? 2U : 1U))) {
        digits.text += characters_[at_++];
        if (has_sign) {
          digits.text += characters_[at_++];
        }
        take_digits();
      }
    }
    return digits;
  }

  void take_primes(Formula& symbol) {
    while (touches("'")) {
      symbol.text += "′";
      ++at_;
    }
  }

  Formula name() {
    Formula symbol{Kind::symbol};
    while (at_ < characters_.size() &&
           (is_letter(characters_[at_]) || (!symbol.text.empty() && is_digit(characters_[at_])))) {
      if (symbol.text.empty() && characters_[at_] == "…") {
        symbol.text = characters_[at_++];
        return symbol;
      }
      symbol.text += characters_[at_++];
    }
    take_primes(symbol);
    if (touches("_")) {
      ++at_;
      subscript(symbol);
      take_primes(symbol);
    }
    if (touches("(")) {
      symbol.kind = Kind::call;
      symbol.parts = arguments();
    }
    return symbol;
  }

  void subscript(Formula& symbol) {
    if (touches("{")) {
      for (++at_; at_ < characters_.size() && !touches("}"); ++at_) {
        symbol.subscript += characters_[at_];
      }
      want("}");
    } else {
      while (at_ < characters_.size() &&
             (is_letter(characters_[at_]) || is_digit(characters_[at_]))) {
        symbol.subscript += characters_[at_++];
      }
    }
    if (symbol.subscript.empty()) {
      fail("a subscript");
    }
  }

  std::vector<Formula> arguments() {
    want("(");
    std::vector<Formula> all;
    do {
      all.push_back(relation());
    } while (take(";"));
    want(")");
    return all;
  }

  Formula big() {
    Formula all{Kind::big, characters_[at_++]};
    all.parts = arguments();
    if (all.parts.size() != 1 && all.parts.size() != 3) {
      fail("one part or three");
    }
    return all;
  }

  std::vector<std::string> characters_;
  std::size_t at_ = 0;
};

}  // namespace

Formula parse_formula(std::string_view text) { return Parser{text}.line(); }

}  // namespace eterlab
