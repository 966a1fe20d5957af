#include <optional>

#include "common/number_text.h"
#include "ui/ui.h"
#include "units/measures.h"

namespace eterlab::units {

namespace {

// A length in every unit at once, as the user types.
class frmmisureinglesi final : public ui::Calculator {
  ui::List cmbunita{this, "cmbunita", "UNITA'"};
  ui::Input txtinput{this, "txtinput", "VALORE", {.range = ui::Range{1e-12, 1e15}}};
  ui::ResultTable table{
      this,
      "table",
      static_cast<int>(length_units().size()),
      {{"lblunita", "UNITA'", ui::ResultTable::Kind::text}, {"lblvalore", "VALORE"}}};
  ui::Note Label1{this, "Label1", "1 POLLICE = 25,4 mm ESATTI"};
  ui::CompanionButton cmdaltreconversioni{
      *this,
      "cmdaltreconversioni",
      "ALTRE CONVERSIONI",
      {.window = "frmaltreconversioni", .caller_corner = {180, 180}, .corner = {4100, 2800}}};

 public:
  frmmisureinglesi()
      : Calculator{"frmmisureinglesi", "MISURE INGLESI E METRICHE DI LUNGHEZZA",
                   Computes::as_typed} {
    cmbunita.offer(length_units());
    table.reserve(1, "8,6805556E-05");
    int row = 0;
    for (const Unit& unit : length_units()) {
      table.at(row++, 0) = unit.name;
    }
    lay_out(ui::column(ui::row(ui::form(cmbunita, txtinput), ui::stretch()), table, Label1),
            {&cmdaltreconversioni}, 56);
  }

  void show_example() override { fill_in({"5.5"}); }

 private:
  void compute() override {
    table.mark(cmbunita.chosen());
    const std::optional<Real> value = txtinput.usable();
    if (!value) {
      return;
    }
    const Unit& from = cmbunita.chosen_of(length_units());
    int row = 0;
    for (const Unit& to : length_units()) {
      table.at(row++, 1) = sig(converted(*value, from, to), 8);
    }
  }
};

const ui::Registration<frmmisureinglesi> registration{"frmmisureinglesi"};

}  // namespace

}  // namespace eterlab::units
