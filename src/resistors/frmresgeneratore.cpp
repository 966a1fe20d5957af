#include "common/number_text.h"
#include "resistors/source_resistance.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// The inner resistance of a battery, supply or generator from its voltage without and with a load.
class frmresgeneratore final : public ui::Calculator {
  ui::Input txtvuoto{this, "txtvuoto", "TENSIONE A VUOTO in VOLT"};
  ui::Input txtcarico{this, "txtcarico", "TENSIONE CON IL CARICO in VOLT"};
  ui::Input txtohm{this, "txtohm", "RESISTENZA DI CARICO in OHM"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblcorto{this, "lblcorto"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Schematic drawing{this, "drawing", 36, 18};
  ui::Value lblvalorevuoto{drawing, "lblvalorevuoto"};
  ui::Value lblvaloreri{drawing, "lblvaloreri"};
  ui::Value lblvalorecarico{drawing, "lblvalorecarico"};

 public:
  frmresgeneratore() : Calculator{"frmresgeneratore", "RESISTENZA INTERNA DI UN GENERATORE"} {
    draw();
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtvuoto, txtcarico, txtohm), ui::stretch()), drawing),
        lbloutput, lblcorto, lblpotenza));
  }

  void show_example() override { fill_in({"12.8", "12.2", "10"}); }

 private:
  void draw() {
    constexpr double left = 9;
    constexpr double right = 26;
    constexpr double top = 4;
    constexpr double bottom = 16;
    drawing.battery({left, top}, {left, bottom})
        .named("U0", lblvalorevuoto)
        .resistor({left, top}, {right, top})
        .named("Ri", lblvaloreri)
        .resistor({right, top}, {right, bottom})
        .named("RL", lblvalorecarico)
        .wire({{left, bottom}, {right, bottom}});
  }

  void compute() override {
    const Real open_circuit_v = txtvuoto.value();
    const Real loaded_v = txtcarico.value();
    const Real load_ohm = txtohm.value();
    require(loaded_v < open_circuit_v, txtcarico,
            "LA TENSIONE CON IL CARICO DEVE ESSERE MINORE DI QUELLA A VUOTO");
    const SourceResistance source = source_resistance(open_circuit_v, loaded_v, load_ohm);
    lbloutput = "RESISTENZA INTERNA = " + eng(source.resistance_ohm, "Ohm");
    lblcorto = "CORRENTE DI CORTO CIRCUITO = " + eng(source.short_circuit_current_a, "A");
    lblpotenza = "MASSIMA POTENZA EROGABILE = " + eng(source.greatest_power_w, "W");
    lblvalorevuoto = eng(open_circuit_v, "V");
    lblvaloreri = eng(source.resistance_ohm, "Ohm");
    lblvalorecarico = eng(load_ohm, "Ohm");
  }
};

const ui::Registration<frmresgeneratore> registration{"frmresgeneratore"};

}  // namespace

}  // namespace eterlab::resistors
