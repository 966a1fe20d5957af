#include "common/number_text.h"
#include "materials/feed_cable.h"
#include "ui/ui.h"

namespace eterlab::materials {

namespace {

// The cable that feeds a load of low voltage.
class frmconduttori final : public ui::Calculator {
  ui::Input txtcorrente{this, "txtcorrente", "CORRENTE in AMPERE"};
  ui::Input txtlunghezza{this, "txtlunghezza", "LUNGHEZZA DELLA LINEA (SOLA ANDATA) in mt."};
  ui::Input txtvolt{this, "txtvolt", "TENSIONE in VOLT", {.holds = "13.8"}};
  ui::Input txtcaduta{this, "txtcaduta", "CADUTA AMMESSA in %", {.holds = "3"}};
  ui::Result lblsezione{this, "lblsezione"};
  ui::Result lblcommerciale{this, "lblcommerciale"};
  ui::Result lblcaduta{this, "lblcaduta"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lblportata{this, "lblportata"};
  ui::ResultTable table{this,
                        "table",
                        static_cast<int>(cable_sections().size()),
                        {{"lblsez", "SEZIONE", ui::ResultTable::Kind::number},
                         {"lblamp", "PORTATA", ui::ResultTable::Kind::number}}};
  ui::Note Label1{
      this, "Label1",
      "PORTATE PER UNA SOLA LINEA IN VISTA A 30 GRADI: IN TUBO O IN FASCIO SONO MINORI"};

 public:
  frmconduttori()
      : Calculator{"frmconduttori", "CONDUTTORI: SEZIONE, CADUTA DI TENSIONE E PORTATA"} {
    int row = 0;
    for (const CableSection& cable : cable_sections()) {
      table.at(row, 0) = plain(cable.section_mm2) + " mmq";
      table.at(row, 1) = plain(cable.ampacity_a) + " A";
      ++row;
    }
    for (ui::Input* input : {&txtcorrente, &txtlunghezza, &txtvolt, &txtcaduta}) {
      input->on_change([this] { table.mark(-1); });
    }
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtcorrente, txtlunghezza, txtvolt, txtcaduta), lblsezione,
                           lblcommerciale, lblcaduta, lblpotenza, lblportata, ui::stretch()),
                table),
        Label1));
  }

  void show_example() override { fill_in({"22", "3", "13.8", "3"}); }

 private:
  void compute() override {
    const Real current_a = txtcorrente.value();
    const Real one_way_m = txtlunghezza.value();
    const Real supply_v = txtvolt.value();
    const Real drop_percent = txtcaduta.value();
    require(drop_percent <= 50, txtcaduta, "LA CADUTA NON PUO' SUPERARE IL 50 %");
    const Real section_mm2 =
        section_for_drop_mm2(current_a, one_way_m, supply_v * drop_percent / 100);
    lblsezione = "SEZIONE CALCOLATA = " + sig(section_mm2, 3) + " mmq";
    const CableSection* cable = smallest_cable(section_mm2, current_a);
    if (cable == nullptr) {
      lblcommerciale = current_a > cable_sections().back().ampacity_a
                           ? "OCCORRE PIU' DI 95 mmq: DIVIDERE IL CARICO SU PIU' LINEE"
                           : "OCCORRE PIU' DI 95 mmq: ACCORCIARE LA LINEA O AUMENTARE LA TENSIONE";
      return;
    }
    const Real drop_v = cable_drop_v(current_a, one_way_m, cable->section_mm2);
    lblcommerciale = "SEZIONE COMMERCIALE = " + sig(cable->section_mm2, 4) + " mmq";
    lblcaduta =
        "CADUTA = " + fixed(drop_v, 2) + " Volt, " + fixed(100 * drop_v / supply_v, 1) + " %";
    lblpotenza = "POTENZA PERSA NEI CAVI = " + eng(drop_v * current_a, "W");
    lblportata = "PORTATA DEL CAVO = " + sig(cable->ampacity_a, 4) + " A";
    table.mark(static_cast<int>(cable - cable_sections().data()));
  }
};

const ui::Registration<frmconduttori> registration{"frmconduttori"};

}  // namespace

}  // namespace eterlab::materials
