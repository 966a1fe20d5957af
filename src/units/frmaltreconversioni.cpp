#include <optional>

#include "common/number_text.h"
#include "ui/ui.h"
#include "units/measures.h"

namespace eterlab::units {

namespace {

// Other quantities than length, in every unit at once, as the user types.
class frmaltreconversioni final : public ui::Calculator {
  ui::List cmbgrandezza{this, "cmbgrandezza", "GRANDEZZA"};
  ui::List cmbunita{this, "cmbunita", "UNITA'"};
  ui::Input txtinput{this, "txtinput", "VALORE", {.range = ui::Range{1e-12, 1e15}}};
  ui::ResultTable table{
      this,
      "table",
      static_cast<int>(quantities().front().units.size()),
      {{"lblunita", "UNITA'", ui::ResultTable::Kind::text}, {"lblvalore", "VALORE"}}};

 public:
  frmaltreconversioni()
      : Calculator{"frmaltreconversioni", "ALTRE CONVERSIONI DI MISURE INGLESI",
                   Computes::as_typed} {
    cmbgrandezza.offer(quantities());
    table.reserve(0, "CENTIMETRI QUADRATI");
    table.reserve(1, "8,680556E-05");
    list_units();
    lay_out(ui::column(ui::row(ui::form(cmbgrandezza, cmbunita, txtinput), ui::stretch()), table));
    cmbgrandezza.on_choose([this] {
      list_units();
      txtinput = "";
    });
  }

  void show_example() override { fill_in({"10"}); }

 private:
  [[nodiscard]] std::span<const Unit> listed() const {
    return cmbgrandezza.chosen_of(quantities()).units;
  }

  void list_units() {
    cmbunita.offer(listed());
    int row = 0;
    for (const Unit& unit : listed()) {
      table.at(row++, 0) = unit.name;
    }
  }

  void compute() override {
    table.mark(cmbunita.chosen());
    const std::optional<Real> value = txtinput.usable();
    if (!value) {
      return;
    }
    const Unit& from = cmbunita.chosen_of(listed());
    int row = 0;
    for (const Unit& to : listed()) {
      table.at(row++, 1) = sig(converted(*value, from, to), 7);
    }
  }
};

const ui::Registration<frmaltreconversioni> registration{"frmaltreconversioni"};

}  // namespace

}  // namespace eterlab::units
