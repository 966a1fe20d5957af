#include "common/number_text.h"
#include "resistors/meter_range.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// The shunt that makes an ammeter of a meter.
class frmshunt final : public ui::Calculator {
  ui::Input txtrint{this, "txtrint", "RESISTENZA INTERNA DELLO STRUMENTO in OHM"};
  ui::Input txtfondo{this, "txtfondo", "FONDO SCALA DELLO STRUMENTO in mA"};
  ui::Input txtportata{this, "txtportata", "PORTATA DA OTTENERE in AMPERE"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblcorrente{this, "lblcorrente"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lblcaduta{this, "lblcaduta"};
  ui::Result lblfilo{this, "lblfilo"};
  ui::Note Label1{this, "Label1",
                  "I FILI DELLO STRUMENTO VANNO COLLEGATI DIRETTAMENTE AI CAPI DELLO SHUNT"};
  ui::Schematic drawing{this, "drawing", 44, 17};
  ui::Value lblvaloreportata{drawing, "lblvaloreportata"};
  ui::Value lblvalorefondo{drawing, "lblvalorefondo"};
  ui::Value lblvalorerint{drawing, "lblvalorerint"};
  ui::Value lblvaloreshunt{drawing, "lblvaloreshunt"};

 public:
  frmshunt() : Calculator{"frmshunt", "SHUNT PER AMPEROMETRO"} {
    draw();
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtrint, txtfondo, txtportata), ui::stretch()), drawing),
        lbloutput, lblcorrente, lblpotenza, lblcaduta, lblfilo, Label1));
  }

  void show_example() override { fill_in({"100", "1", "10"}); }

 private:
  void draw() {
    constexpr double in = 2;
    constexpr double left = 11;
    constexpr double right = 38;
    constexpr double out = 42;
    constexpr double meter_y = 5;
    constexpr double shunt_y = 12;
    constexpr double between = 24;
    drawing.terminal({in, shunt_y})
        .wire({{in, shunt_y}, {left, shunt_y}})
        .arrow({in + 2, shunt_y - 1}, {left - 2, shunt_y - 1})
        .mark({(in + left) / 2, shunt_y - 1}, "I", ui::Schematic::Side::above)
        .label(lblvaloreportata, {(in + left) / 2, shunt_y}, ui::Schematic::Side::below)
        .wire({{left, shunt_y}, {left, meter_y}})
        .meter({left, meter_y}, {between, meter_y}, "A")
        .named("Im", lblvalorefondo)
        .resistor({between, meter_y}, {right, meter_y})
        .named("Ri", lblvalorerint)
        .wire({{right, meter_y}, {right, shunt_y}})
        .resistor({left, shunt_y}, {right, shunt_y})
        .named("Rs", lblvaloreshunt)
        .junction({left, shunt_y})
        .junction({right, shunt_y})
        .wire({{right, shunt_y}, {out, shunt_y}})
        .terminal({out, shunt_y});
  }

  void compute() override {
    const Real full_scale_ma = txtfondo.value();
    const Real range_a = txtportata.value();
    constexpr double margin = 1 + 1e-9;
    require(range_a * 1000 > full_scale_ma * margin, txtportata,
            "LA PORTATA DEVE SUPERARE IL FONDO SCALA DELLO STRUMENTO");
    const MeterShunt shunt = meter_shunt(txtrint.value(), full_scale_ma, range_a);
    lbloutput = "SHUNT = " + eng(shunt.resistance_ohm, "Ohm");
    lblcorrente = "CORRENTE NELLO SHUNT = " + eng(shunt.current_a, "A");
    lblpotenza = "POTENZA DISSIPATA = " + eng(shunt.power_w, "W");
    lblcaduta = "CADUTA DI TENSIONE = " + eng(shunt.voltage_drop_v, "V");
    lblfilo = "FILO DI COSTANTANA: DIAMETRO " + fixed(shunt.wire_diameter_mm, 1) +
              " mm, LUNGHEZZA " + sig(shunt.wire_length_m * 100, 3) + " cm.";
    lblvaloreportata = eng(range_a, "A");
    lblvalorefondo = eng(full_scale_ma / 1000, "A");
    lblvalorerint = eng(txtrint.value(), "Ohm");
    lblvaloreshunt = eng(shunt.resistance_ohm, "Ohm");
  }
};

const ui::Registration<frmshunt> registration{"frmshunt"};

}  // namespace

}  // namespace eterlab::resistors
