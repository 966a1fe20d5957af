#include "common/number_text.h"
#include "resistors/meter_range.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// The series resistor that makes a voltmeter of a meter.
class frmvoltmetro final : public ui::Calculator {
  ui::Input txtrint{this, "txtrint", "RESISTENZA INTERNA DELLO STRUMENTO in OHM"};
  ui::Input txtfondo{this, "txtfondo", "FONDO SCALA DELLO STRUMENTO in microA"};
  ui::Input txtportata{this, "txtportata", "PORTATA DA OTTENERE in VOLT"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lblsensibilita{this, "lblsensibilita"};
  ui::Result lblcommerciale{this, "lblcommerciale"};
  ui::Schematic drawing{this, "drawing", 43, 16};
  ui::Value lblvaloreserie{drawing, "lblvaloreserie"};
  ui::Value lblvalorefondo{drawing, "lblvalorefondo"};
  ui::Value lblvalorerint{drawing, "lblvalorerint"};
  ui::Value lblvaloreportata{drawing, "lblvaloreportata"};

 public:
  frmvoltmetro() : Calculator{"frmvoltmetro", "Resistenza in serie per voltmetro"} {
    draw();
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtrint, txtfondo, txtportata), ui::stretch()), drawing),
        lbloutput, lblpotenza, lblsensibilita, lblcommerciale));
  }

  void load() override {
    Calculator::load();
    centre_on_screen();
  }

  void show_example() override { fill_in({"1500", "100", "50"}); }

 private:
  void draw() {
    constexpr double in = 2.5;
    constexpr double meter = 16.5;
    constexpr double inner = 28;
    constexpr double out = 40.5;
    constexpr double y = 4;
    constexpr double voltage_y = 12;
    drawing.terminal({in, y})
        .resistor({in, y}, {meter, y})
        .named("Rs", lblvaloreserie)
        .meter({meter, y}, {inner, y}, "A")
        .named("Im", lblvalorefondo)
        .resistor({inner, y}, {out, y})
        .named("Ri", lblvalorerint)
        .terminal({out, y})
        .mark({in - 1.5, y}, "+")
        .mark({out + 1.5, y}, "-")
        .dashed({{in, y}, {in, voltage_y + 1}})
        .dashed({{out, y}, {out, voltage_y + 1}})
        .dimension({in, voltage_y}, {out, voltage_y})
        .mark({(in + out) / 2, voltage_y}, "U", ui::Schematic::Side::above)
        .label(lblvaloreportata, {(in + out) / 2, voltage_y}, ui::Schematic::Side::below);
  }

  void compute() override {
    const Real meter_ohm = txtrint.value();
    const Real full_scale_ua = txtfondo.value();
    const Real range_v = txtportata.value();
    constexpr double margin = 1 + 1e-9;
    require(range_v > full_scale_ua / 1e6 * meter_ohm * margin, txtportata,
            "LA PORTATA DEVE SUPERARE IL FONDO SCALA DELLO STRUMENTO");
    const MeterMultiplier multiplier = meter_multiplier(meter_ohm, full_scale_ua, range_v);
    const std::string series = eng(multiplier.resistance_ohm, "Ohm");
    lbloutput = "RESISTENZA IN SERIE = " + series;
    lblpotenza = "POTENZA DISSIPATA = " + eng(multiplier.power_w, "W");
    lblsensibilita = "SENSIBILITA' = " + eng(multiplier.sensitivity_ohm_per_v, "Ohm") + " PER VOLT";
    lblcommerciale = "VALORE E24 = " + eng(multiplier.preferred_resistance_ohm, "Ohm") +
                     " : FONDO SCALA " + sig(multiplier.preferred_range_v, 4) + " Volt";
    lblvaloreserie = series;
    lblvalorefondo = eng(full_scale_ua / 1e6, "A");
    lblvalorerint = eng(meter_ohm, "Ohm");
    lblvaloreportata = eng(range_v, "V");
  }
};

const ui::Registration<frmvoltmetro> registration{"frmvoltmetro"};

}  // namespace

}  // namespace eterlab::resistors
