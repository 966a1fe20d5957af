#include <algorithm>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "transformers/winding_text.h"
#include "transformers/winding_wire.h"
#include "ui/scrolled_table.h"
#include "ui/ui.h"

namespace eterlab::transformers {

namespace {

constexpr int rows_in_sight = 18;

/// So many significant figures, trailing zeros among them, and whole numbers above that.
std::string with_figures(Real x, int figures) {
  const int exponent = static_cast<int>(floor(log10(x)).value());
  return fixed(x, std::max(0, figures - 1 - exponent));
}

std::vector<ui::ScrolledTable::Row> rows() {
  std::vector<ui::ScrolledTable::Row> rows;
  for (const WindingWire& wire : winding_wires()) {
    rows.push_back({fixed(wire.diameter_mm, 3), with_figures(wire.section_mm2(), 4),
                    with_figures(1000 * wire.resistance_ohm_per_m(), 4),
                    with_figures(wire.weight_g_per_m(), 3), fixed(wire.turns_per_cm(), 1),
                    with_figures(wire.turns_per_cm2(), 3), with_figures(wire.current_a(), 3)});
  }
  return rows;
}

// The table of winding wires, and the one for a current.
class frmuniel final : public ui::Calculator {
  ui::Input txtcorrente{this, "txtcorrente", "CORRENTE in A", {.prompt_name = "Label1"}};
  ui::Result lblfilo{this, "lblfilo"};
  ui::ScrolledTable tabella{this,
                            "tabella",
                            {"DIAMETRO mm", "SEZIONE mmq", "OHM/km", "PESO kg/km", "SPIRE PER cm",
                             "SPIRE PER cmq", "CORRENTE A"},
                            rows(),
                            rows_in_sight};
  ui::Note Label2{this, "Label2",
                  "SPIRE SERRATE CON FILO DI GRADO 1 NEL DIAMETRO ESTERNO MASSIMO; CORRENTE A 2,5 "
                  "A/mmq; PESO SENZA LO SMALTO; RESISTENZA A 20 GRADI"};

 public:
  frmuniel()
      : Calculator{"frmuniel", "FILI DI RAME SMALTATO PER AVVOLGIMENTI", Computes::as_typed} {
    name_hint("Label3");
    name_exit("cmdchiudi", "CHIUDI");
    lay_out(ui::column(ui::form(txtcorrente), lblfilo, tabella, Label2));
  }

  void show_example() override { fill_in({"0.5"}); }

 private:
  void compute() override {
    const Real current_a = txtcorrente.value();
    const WindingWire* wire = current_a > 0 ? thinnest_wire_for(current_a) : nullptr;
    tabella.select(wire == nullptr ? -1 : static_cast<int>(wire - winding_wires().data()));
    if (current_a <= 0) {
      return;
    }
    lblfilo = wire != nullptr ? "FILO DA " + wire_text(*wire)
                              : "OLTRE " + fixed(winding_wires().back().current_a(), 1) +
                                    " A: AVVOLGERE PIU' FILI IN PARALLELO";
  }
};

const ui::Registration<frmuniel> registration{"frmuniel"};

}  // namespace

}  // namespace eterlab::transformers
