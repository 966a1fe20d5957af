#include <optional>
#include <vector>

#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// The dimensions of a proven antenna for another frequency.
class frmridimensiona final : public ui::Calculator {
  ui::Input txtf1{this, "txtf1", "FREQUENZA DELL'ANTENNA ORIGINALE in MHz"};
  ui::Input txtf2{this, "txtf2", "NUOVA FREQUENZA in MHz"};
  ui::Result lblfattore{this, "lblfattore"};
  ui::Label Label1{this, "Label1", "ORIGINALE"};
  ui::Label Label2{this, "Label2", "NUOVA"};
  ui::InputArray txtmisura{this,
                           "txtmisura",
                           {"MISURA 1 :", "MISURA 2 :", "MISURA 3 :", "MISURA 4 :", "MISURA 5 :",
                            "MISURA 6 :", "MISURA 7 :", "MISURA 8 :", "MISURA 9 :", "MISURA 10 :"},
                           {.prompt_name = "lblnome"}};
  ui::ControlArray<ui::Result> lblmisura{this, "lblmisura", txtmisura.size()};
  ui::Note Label3{
      this, "Label3",
      "ANCHE I DIAMETRI DEGLI ELEMENTI VANNO VARIATI NELLA STESSA PROPORZIONE. LE MISURE "
      "RESTANO NELLA STESSA UNITA'"};
  ui::Label corner{this, ""};  // over the names

 public:
  frmridimensiona()
      : Calculator{"frmridimensiona", "RIDIMENSIONA UN'ANTENNA PER UN'ALTRA FREQUENZA",
                   Computes::as_typed} {
    ui::Fields rows{{&corner, &Label1, &Label2}};
    for (int row = 0; row < txtmisura.size(); ++row) {
      ui::Field line = txtmisura[row];
      line.unit = &lblmisura[row];
      rows.push_back(line);
    }
    lay_out(ui::column(ui::form(txtf1, txtf2), lblfattore, ui::form(rows), Label3));
  }

  void show_example() override {
    fill_in({"145", "435", "101", "98.5", "", "", "", "", "", "", "", ""});
  }

 private:
  void compute() override {
    const std::optional<Real> original_mhz = txtf1.usable();
    const std::optional<Real> new_mhz = txtf2.usable();
    if (!original_mhz || !new_mhz) {
      return;
    }
    constexpr int digits = 5;
    const Real factor = *original_mhz / *new_mhz;
    lblfattore = "FATTORE DI SCALA = " + sig(factor, digits);
    for (int row = 0; row < txtmisura.size(); ++row) {
      if (const std::optional<Real> length = txtmisura[row].usable()) {
        lblmisura[row] = sig(*length * factor, digits);
      }
    }
  }
};

const ui::Registration<frmridimensiona> registration{"frmridimensiona"};

}  // namespace

}  // namespace eterlab::antennas
