#include "common/number_text.h"
#include "materials/metals.h"
#include "materials/round_wire.h"
#include "ui/ui.h"

namespace eterlab::materials {

namespace {

// The resistance of a round wire in direct current and at low frequencies.
class frmresistenzakm final : public ui::Calculator {
  ui::List cmbmetallo{this, "cmbmetallo", "METALLO"};
  ui::Input txtdiametro{this, "txtdiametro", "DIAMETRO DEL FILO in mm"};
  ui::Input txtlunghezza{this, "txtlunghezza", "LUNGHEZZA in mt."};
  ui::Input txttemperatura{this,
                           "txttemperatura",
                           "TEMPERATURA in GRADI C",
                           {.holds = "20", .range = ui::Range{-200, 500}, .is_optional = true}};
  ui::Result lblsezione{this, "lblsezione"};
  ui::Result lblkm{this, "lblkm"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Note Label1{this, "Label1", "A 20 KHz VALE, PER IL RAME, FINO A CIRCA 0,9 mm DI DIAMETRO"};

 public:
  frmresistenzakm()
      : Calculator{"frmresistenzakm", "RESISTENZA DI UN FILO IN CORRENTE CONTINUA E IN BF"} {
    cmbmetallo.offer(metals());
    cmbmetallo.choose(copper.name);
    lay_out(ui::column(
        ui::row(ui::form(cmbmetallo, txtdiametro, txtlunghezza, txttemperatura), ui::stretch()),
        lblsezione, lblkm, lbloutput, Label1));
  }

  void show_example() override { fill_in({"1", "100", "20"}); }

 private:
  void compute() override {
    const Metal& metal = cmbmetallo.chosen_of(metals());
    const Real factor = temperature_factor(metal, txttemperatura.value());
    require(factor > 1e-9, txttemperatura, "TEMPERATURA TROPPO BASSA PER QUESTO METALLO");
    constexpr double km = 1000;
    const Real section_mm2 = round_section_mm2(txtdiametro.value());
    const Real per_km_ohm = resistance_ohm(metal, section_mm2, km) * factor;
    const Real wire_ohm = resistance_ohm(metal, section_mm2, txtlunghezza.value()) * factor;
    lblsezione = "SEZIONE = " + sig(section_mm2, 4) + " mmq";
    lblkm = "RESISTENZA AL Km = " + eng(per_km_ohm, "Ohm");
    lbloutput = "RESISTENZA DEL FILO = " + eng(wire_ohm, "Ohm");
  }
};

const ui::Registration<frmresistenzakm> registration{"frmresistenzakm"};

}  // namespace

}  // namespace eterlab::materials
