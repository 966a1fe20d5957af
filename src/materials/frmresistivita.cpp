#include "common/number_text.h"
#include "materials/metals.h"
#include "materials/round_wire.h"
#include "ui/ui.h"

namespace eterlab::materials {

namespace {

// The catalogue of metals, and one of them in detail.
class frmresistivita final : public ui::Window {
  ui::List cmbmetallo{this, "cmbmetallo", "METALLO"};
  ui::Result lblresistivita{this, "lblresistivita"};
  ui::Result lblconducibilita{this, "lblconducibilita"};
  ui::Result lbliacs{this, "lbliacs"};
  ui::Result lblcoefficiente{this, "lblcoefficiente"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::ResultTable table{this,
                        "table",
                        static_cast<int>(metals().size()),
                        {{"lblmetallo", "METALLO", ui::ResultTable::Kind::text},
                         {"lblro", "Ohm mmq/mt.", ui::ResultTable::Kind::number},
                         {"lblalfa", "PER GRADO", ui::ResultTable::Kind::number}}};
  ui::ExitButton cmdchiudi{this, "cmdchiudi", "CHIUDI"};

 public:
  frmresistivita() : Window{"frmresistività", "RESISTIVITA' DEI METALLI"} {
    cmbmetallo.offer(metals());
    cmbmetallo.choose(copper.name);
    int row = 0;
    for (const Metal& metal : metals()) {
      table.at(row, 0) = metal.name;
      table.at(row, 1) = plain(metal.resistivity_ohm_mm2_per_m);
      table.at(row, 2) = fixed(metal.temperature_coefficient_per_k, 5);
      ++row;
    }
    arrange(
        ui::column(ui::row(ui::form(cmbmetallo), ui::stretch()), lblresistivita, lblconducibilita,
                   lbliacs, lblcoefficiente, lblfilo, table, ui::buttons(cmdchiudi)),
        70);
    cmbmetallo.on_choose([this] { show_metal(); });
  }

  void load() override { show_metal(); }

 private:
  void show_metal() {
    const Metal& metal = cmbmetallo.chosen_of(metals());
    const Real resistivity = metal.resistivity_ohm_mm2_per_m;
    const Real iacs_percent = 100 * copper.resistivity_ohm_mm2_per_m / resistivity;
    const Real wire_ohm = resistance_ohm(metal, round_section_mm2(1), 1);
    lblresistivita = "RESISTIVITA' A 20 GRADI = " + plain(resistivity) + " Ohm mmq/mt.";
    lblconducibilita = "CONDUCIBILITA' = " + sig(1 / resistivity, 4) + " MS/mt.";
    lbliacs = "RISPETTO AL RAME = " + fixed(iacs_percent, 1) + " % IACS";
    lblcoefficiente =
        "COEFFICIENTE DI TEMPERATURA = " + fixed(metal.temperature_coefficient_per_k, 5) +
        " PER GRADO";
    lblfilo = "FILO DA 1 mm LUNGO 1 mt. = " + eng(wire_ohm, "Ohm");
    table.mark(cmbmetallo.chosen());
  }
};

const ui::Registration<frmresistivita> registration{"frmresistività"};

}  // namespace

}  // namespace eterlab::materials
