#include <memory>
#include <span>
#include <vector>

#include "capacitors/ceramic_drift.h"
#include "common/number_text.h"
#include "ui/swatch.h"
#include "ui/ui.h"

namespace eterlab::capacitors {

namespace {

// How far a ceramic capacitor drifts with temperature, to choose one that compensates an
// oscillator.
class frmcoefftermicocondensatori final : public ui::Calculator {
  ui::List cmbcoefficiente{this, "cmbcoefficiente", "COEFFICIENTE"};
  ui::Input txtcapacita{this, "txtcapacita", "CAPACITA' INIZIALE in pF"};
  ui::Input txttemperatura{
      this, "txttemperatura", "VARIAZIONE DI TEMPERATURA in GRADI C", {.is_optional = true}};
  ui::Result lblcolore{this, "lblcolore"};
  ui::Result lblvariazione{this, "lblvariazione"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblderiva{this, "lblderiva"};
  ui::ResultTable table{this,
                        "table",
                        static_cast<int>(ceramic_characteristics().size()),
                        {{"lblcodice", "CODICE", ui::ResultTable::Kind::text},
                         {"lblppm", "PPM / GRADO C", ui::ResultTable::Kind::number},
                         {"lblmarcatura", "COLORE", ui::ResultTable::Kind::text}}};
  std::vector<std::unique_ptr<ui::Swatch>> swatches;

 public:
  frmcoefftermicocondensatori()
      : Calculator{"frmcoefftermicocondensatori",
                   "COEFFICIENTE TERMICO DEI CONDENSATORI CERAMICI"} {
    cmbcoefficiente.offer(ceramic_characteristics());
    for (int row = 0; const CeramicCharacteristic& characteristic : ceramic_characteristics()) {
      table.at(row, 0) = characteristic.name;
      table.at(row, 1) = plain(characteristic.ppm_per_degree);
      table.at(row, 2) = characteristic.marking;
      swatches.push_back(std::make_unique<ui::Swatch>(table, "swatch_" + std::to_string(row),
                                                      characteristic.marking));
      table.add_behind(row, *swatches.back());
      ++row;
    }
    cmbcoefficiente.choose("NP0");
    lay_out(ui::row(ui::column(ui::form(cmbcoefficiente, txtcapacita, txttemperatura), lblcolore,
                               lblvariazione, lblcapacita, lblderiva, ui::stretch()),
                    table));
  }

  void show_example() override {
    cmbcoefficiente.choose("N750");
    fill_in({"100", "20"});
  }

 private:
  void check() override {
    check_presence(txtcapacita);
    check_range(txtcapacita);
    const Real degrees = txttemperatura.value();
    require(degrees != 0, txttemperatura, "MANCANO DATI");
    require(abs(degrees) <= 200, txttemperatura, "LA VARIAZIONE NON PUO' SUPERARE 200 GRADI");
  }

  void compute() override {
    const CeramicCharacteristic& characteristic =
        cmbcoefficiente.chosen_of(ceramic_characteristics());
    const Real ppm_per_degree = characteristic.ppm_per_degree;
    const Real capacitance_pf = txtcapacita.value();
    const Real degrees = txttemperatura.value();
    const Real drift_pf = ceramic_drift(capacitance_pf, ppm_per_degree, degrees);
    table.mark(cmbcoefficiente.chosen());
    lblcolore = "COLORE: " + std::string{characteristic.marking};
    lblvariazione = "VARIAZIONE = " + sig(drift_pf, 4) + " pF";
    lblcapacita = "CAPACITA' = " + sig(capacitance_pf + drift_pf, 6) + " pF";
    lblderiva = "UN CIRCUITO ACCORDATO SI SPOSTA DI " +
                fixed(1e6 * tuning_drift(ppm_per_degree, degrees), 0) + " Hz PER OGNI MHz";
  }
};

const ui::Registration<frmcoefftermicocondensatori> registration{"frmcoefftermicocondensatori"};

}  // namespace

}  // namespace eterlab::capacitors
