#include "support/formula_value.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>

namespace eterlab::test {

namespace {

using Kind = Formula::Kind;
using Value = FormulaValues::Value;

std::string key_of(const Formula& symbol) {
  return symbol.subscript.empty() ? symbol.text : symbol.text + '_' + symbol.subscript;
}

std::optional<double> real(std::optional<Value> value) {
  return value && std::abs(value->imag()) <= 1e-9 * std::abs(*value) ? std::optional{value->real()}
                                                                     : std::nullopt;
}

double number_in(std::string text) {
  std::ranges::replace(text, ',', '.');
  return std::stod(text);
}

std::optional<double> constant(const std::string& symbol) {
  static const std::map<std::string, double> constants{
      {"π", std::numbers::pi},
      {"c", 299792458},
      {"μ_0", 1.25663706127e-6},
      {"ε_0", 8.8541878188e-12},
  };
  const auto found = constants.find(symbol);
  return found == constants.end() ? std::nullopt : std::optional{found->second};
}

const std::map<std::string, std::function<Value(Value)>>& functions() {
  static const std::map<std::string, std::function<Value(Value)>> all{
      {"exp", [](Value x) { return std::exp(x); }},
      {"ln", [](Value x) { return std::log(x); }},
      {"log", [](Value x) { return std::log10(x); }},
      {"sin", [](Value x) { return std::sin(x); }},
      {"cos", [](Value x) { return std::cos(x); }},
      {"tan", [](Value x) { return std::tan(x); }},
      {"cot", [](Value x) { return 1.0 / std::tan(x); }},
      {"arcsin", [](Value x) { return std::asin(x); }},
      {"arccos", [](Value x) { return std::acos(x); }},
      {"arctan", [](Value x) { return std::atan(x); }},
      {"sinh", [](Value x) { return std::sinh(x); }},
      {"cosh", [](Value x) { return std::cosh(x); }},
      {"tanh", [](Value x) { return std::tanh(x); }},
      {"coth", [](Value x) { return 1.0 / std::tanh(x); }},
      {"arcosh", [](Value x) { return std::acosh(x); }},
      {"arsinh", [](Value x) { return std::asinh(x); }},
      {"artanh", [](Value x) { return std::atanh(x); }},
      {"mod", [](Value x) { return std::abs(x); }},
      {"Re", [](Value x) { return x.real(); }},
      {"Im", [](Value x) { return x.imag(); }},
      {"arg", [](Value x) { return std::arg(x); }},
      {"conj", [](Value x) { return std::conj(x); }},
      {"intero", [](Value x) { return std::trunc(x.real()); }},
      {"su", [](Value x) { return std::ceil(x.real() - 1e-9); }},
      {"giù", [](Value x) { return std::floor(x.real() + 1e-9); }},
  };
  return all;
}

}  // namespace

void FormulaValues::carry_out(const std::vector<std::string>& formulas) {
  bool has_learnt = true;
  while (has_learnt) {
    has_learnt = false;
    unjudged_.clear();
    for (const std::string& formula : formulas) {
      has_learnt = carry_out(parse_formula(formula)) || has_learnt;
    }
  }
}

bool FormulaValues::carry_out(const Formula& line) {
  const std::vector<Formula> parts = line.kind == Kind::line ? line.parts : std::vector{line};
  const auto relation = std::ranges::find(parts, Kind::relation, &Formula::kind);
  if (relation == parts.end() || relation->parts.front().kind != Kind::symbol) {
    return false;
  }
  const std::string symbol = key_of(relation->parts.front());
  if (known_.contains(symbol)) {
    return false;
  }
  const auto words = std::find_if(relation + 1, parts.end(),
                                  [](const Formula& part) { return part.kind == Kind::words; });
  if (words != parts.end() && words->text.starts_with("se")) {
    const auto condition = words + 1;
    const std::optional<bool> is_so = condition == parts.end() ? std::nullopt : holds(*condition);
    if (!is_so.value_or(false)) {
      if (!is_so) {
        unjudged_.insert(symbol);
      }
      return false;
    }
  }
  if (words != parts.end() && words->text.starts_with("altrimenti") && unjudged_.contains(symbol)) {
    return false;
  }
  for (std::size_t i = 0; i < relation->operators.size(); ++i) {
    const bool tells = relation->operators[i] == "=" || relation->operators[i] == "≈";
    if (const auto result = value(relation->parts[i + 1]); tells && result) {
      know(symbol, *result);
      return true;
    }
  }
  return false;
}

std::optional<Value> FormulaValues::value_of(const std::string& symbol) const {
  const auto found = known_.find(symbol);
  return found == known_.end() ? std::nullopt : std::optional{found->second};
}

std::optional<bool> FormulaValues::holds(const Formula& relation) const {
  if (relation.kind != Kind::relation) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < relation.operators.size(); ++i) {
    const auto left = real(value(relation.parts[i]));
    const auto right = real(value(relation.parts[i + 1]));
    if (!left || !right) {
      return std::nullopt;
    }
    const std::string& sign = relation.operators[i];
    const bool is_so = sign == "<"   ? *left < *right
                       : sign == ">" ? *left > *right
                       : sign == "≤" ? *left <= *right
                       : sign == "≥" ? *left >= *right
                       : sign == "≠" ? *left != *right
                                     : *left == *right;
    if (!is_so) {
      return false;
    }
  }
  return true;
}

std::optional<Value> FormulaValues::value(const Formula& formula) const {
  const auto part = [&](std::size_t i) { return value(formula.parts[i]); };
  switch (formula.kind) {
    case Kind::number:
      return number_in(formula.text);
    case Kind::symbol: {
      const std::string key = key_of(formula);
      if (const auto found = value_of(key); found) {
        return found;
      }
      if (key == "j") {
        return Value{0, 1};
      }
      if (const auto known = constant(key); known) {
        return *known;
      }
      return std::nullopt;
    }
    case Kind::sum:
    case Kind::product:
      return operated(formula);
    case Kind::sign:
      return part(0) && formula.text == "−" ? std::optional{-*part(0)} : std::nullopt;
    case Kind::quotient:
      return part(0) && part(1) ? std::optional{*part(0) / *part(1)} : std::nullopt;
    case Kind::power: {
      const auto base = part(0);
      const auto exponent = part(1);
      return base && exponent ? std::optional{std::pow(*base, *exponent)} : std::nullopt;
    }
    case Kind::postfix:
      return part(0)
                 ? std::optional{*part(0) * (formula.text == "%" ? 0.01 : std::numbers::pi / 180)}
                 : std::nullopt;
    case Kind::root:
      return part(0) ? std::optional{formula.text.empty() ? std::sqrt(*part(0))
                                                          : Value{std::cbrt(part(0)->real())}}
                     : std::nullopt;
    case Kind::absolute:
      return part(0) ? std::optional{Value{std::abs(*part(0))}} : std::nullopt;
    case Kind::group:
      return part(0);
    case Kind::call:
      return called(formula);
    case Kind::big:
      return sum_of(formula);
    case Kind::words:
    case Kind::line:
    case Kind::relation:
      return std::nullopt;
  }
  return std::nullopt;
}

std::optional<Value> FormulaValues::operated(const Formula& formula) const {
  std::optional<Value> result = value(formula.parts[0]);
  for (std::size_t i = 0; result && i < formula.operators.size(); ++i) {
    const std::optional<Value> other = value(formula.parts[i + 1]);
    const std::string& sign = formula.operators[i];
    if (!other || sign == "±") {
      return std::nullopt;
    }
    result = sign == "+"   ? *result + *other
             : sign == "−" ? *result - *other
             : sign == "·" ? *result * *other
                           : *result * *other / (*result + *other);
  }
  return result;
}

std::optional<Value> FormulaValues::called(const Formula& formula) const {
  std::vector<Value> arguments;
  for (const Formula& part : formula.parts) {
    const auto argument = value(part);
    if (!argument) {
      return std::nullopt;
    }
    arguments.push_back(*argument);
  }
  const auto less = [](Value a, Value b) { return a.real() < b.real(); };
  if (formula.text == "min") {
    return std::ranges::min(arguments, less);
  }
  if (formula.text == "max") {
    return std::ranges::max(arguments, less);
  }
  if (formula.text == "arrotonda") {
    const double places = arguments.size() > 1 ? std::pow(10, arguments[1].real()) : 1;
    return std::round(arguments[0].real() * places * (1 + 1e-15)) / places;
  }
  const auto found = functions().find(formula.text);
  const bool is_known = found != functions().end() && formula.subscript.empty();
  return is_known ? std::optional{found->second(arguments[0])} : std::nullopt;
}

std::optional<Value> FormulaValues::sum_of(const Formula& formula) const {
  if (formula.text != "Σ" || formula.parts.size() != 3 || formula.parts[0].kind != Kind::relation) {
    return std::nullopt;
  }
  const auto first = real(value(formula.parts[0].parts[1]));
  const auto last = real(value(formula.parts[1]));
  if (!first || !last) {
    return std::nullopt;
  }
  FormulaValues within = *this;
  Value sum = 0;
  for (int step = 0; *first + step <= *last; ++step) {
    within.know(key_of(formula.parts[0].parts[0]), *first + step);
    const auto summand = within.value(formula.parts[2]);
    if (!summand) {
      return std::nullopt;
    }
    sum += *summand;
  }
  return sum;
}

double base_units(std::string_view unit) {
  static const std::map<std::string_view, double> others{{"cm", 1e-2},
                                                         {"mm", 1e-3},
                                                         {"km", 1e3},
                                                         {"µm", 1e-6},
                                                         {"cm²", 1e-4},
                                                         {"mm²", 1e-6},
                                                         {"°", std::numbers::pi / 180},
                                                         {"%", 1e-2},
                                                         {"min", 60},
                                                         {"h", 3600},
                                                         {"kg", 1},
                                                         {"g", 1e-3}};
  static constexpr std::array bases{"F", "H",  "Hz",  "Ω", "Ohm", "W", "V", "A",  "s",
                                    "m", "VA", "VAR", "K", "J",   "S", "T", "Wb", "bit"};
  static const std::map<std::string_view, double> prefixes{
      {"p", 1e-12}, {"n", 1e-9}, {"µ", 1e-6}, {"u", 1e-6}, {"m", 1e-3},
      {"k", 1e3},   {"K", 1e3},  {"M", 1e6},  {"G", 1e9},  {"", 1}};
  if (const auto found = others.find(unit); found != others.end()) {
    return found->second;
  }
  for (const char* base : bases) {
    if (unit.ends_with(base)) {
      const auto prefix =
          prefixes.find(unit.substr(0, unit.size() - std::string_view{base}.size()));
      if (prefix != prefixes.end()) {
        return prefix->second;
      }
    }
  }
  ADD_FAILURE() << "no unit: " << unit;
  return 1;
}

}  // namespace eterlab::test
