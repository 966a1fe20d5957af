#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "common/regional_settings.h"
#include "ui/ui.h"
#include "units/si_prefixes.h"

namespace eterlab::units {

namespace {

std::string raised(int exponent) {
  constexpr std::string_view digits[] = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
  std::string text = exponent < 0 ? "⁻" : "";
  for (const char digit : std::to_string(std::abs(exponent))) {
    text += digits[digit - '0'];
  }
  return text;
}

/// Ten to a power written out, in threes from the separator: "1 000", "0,000 001".
std::string written_out(int exponent) {
  constexpr int in_group = 3;
  constexpr int furthest = 12;
  if (std::abs(exponent) > furthest) {
    return "";
  }
  if (exponent < 0) {
    std::string text = "0" + regional_settings().decimal_separator;
    for (int place = 1; place <= -exponent; ++place) {
      text += place == -exponent ? "1" : "0";
      text += place % in_group == 0 && place < -exponent ? " " : "";
    }
    return text;
  }
  std::string text = "1";
  for (int place = exponent; place > 0; --place) {
    text += place % in_group == 0 ? " 0" : "0";
  }
  return text;
}

// The prefixes of units, and a number turned from one to another as the user types and chooses.
class frmprefissi final : public ui::Calculator {
  ui::ResultTable table{this,
                        "table",
                        static_cast<int>(si_prefixes.size()),
                        {{"lblprefisso", "PREFISSO", ui::ResultTable::Kind::text},
                         {"lblsimbolo", "SIMBOLO", ui::ResultTable::Kind::text},
                         {"lblfattore", "FATTORE", ui::ResultTable::Kind::text},
                         {"lblnumero", "NUMERO", ui::ResultTable::Kind::number}}};
  ui::Frame Frame1{this, "Frame1", "DA UN PREFISSO ALL'ALTRO"};
  ui::Input txtinput{Frame1, "txtinput", "NUMERO CON PREFISSO", {.range = ui::Range{-1e12, 1e12}}};
  ui::List cmbda{Frame1, "cmbda", "DAL PREFISSO"};
  ui::List cmba{Frame1, "cmba", "AL PREFISSO"};
  ui::Result lbloutput{Frame1, "lbloutput"};

  /// In the order of the lists.
  std::vector<int> exponents_;

 public:
  frmprefissi() : Calculator{"frmprefissi", "PREFISSI MOLTIPLICATIVI", Computes::as_typed} {
    name_exit("cmdchiudi", "CHIUDI");
    for (int row = 0; const SiPrefix& prefix : si_prefixes) {
      table.at(row, 0) = prefix.name;
      table.at(row, 1) = prefix.symbol;
      table.at(row, 2) = "10" + raised(prefix.exponent);
      table.at(row, 3) = written_out(prefix.exponent);
      ++row;
    }
    add_to_lists();
    lay_out(ui::row(
        table, ui::column(Frame1.arrange(ui::column(ui::form(txtinput, cmbda, cmba), lbloutput)),
                          ui::stretch())));
  }

  void show_example() override {
    cmbda.choose("k");
    fill_in({"7100"});
  }

 private:
  void add_to_lists() {
    for (const SiPrefix& prefix : si_prefixes) {
      if (!exponents_.empty() && exponents_.back() > 0 && prefix.exponent < 0) {
        add_to_lists("-", 0);
      }
      add_to_lists(prefix.symbol, prefix.exponent);
    }
    cmbda.choose("-");
    cmba.choose("-");
  }

  void add_to_lists(std::string_view symbol, int exponent) {
    cmbda.add(symbol);
    cmba.add(symbol);
    exponents_.push_back(exponent);
  }

  [[nodiscard]] int exponent_in(const ui::List& list) const {
    return exponents_[static_cast<std::size_t>(list.chosen())];
  }

  void compute() override {
    if (const std::optional<Real> input = txtinput.usable(); input) {
      lbloutput = sig(with_other_prefix(*input, exponent_in(cmbda), exponent_in(cmba)), 12);
    }
  }
};

const ui::Registration<frmprefissi> registration{"frmprefissi"};

}  // namespace

}  // namespace eterlab::units
