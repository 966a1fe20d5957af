#include "common/number_text.h"
#include "resistors/voltmeter_probe.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::resistors {

namespace {

// A probe that multiplies the range of an electronic voltmeter.
class frmsondecc final : public ui::Calculator {
  ui::Input txtrint{
      this, "txtrint", "RESISTENZA D'INGRESSO DELLO STRUMENTO in MEGAOHM", {.holds = "10"}};
  ui::Input txtrapporto{
      this, "txtrapporto", "RAPPORTO DI DIVISIONE", {.tooltip = "per esempio 10, 100 o 1000"}};
  ui::Input txtvolt{this, "txtvolt", "TENSIONE MASSIMA DA MISURARE in VOLT"};
  ui::Schematic drawing{this, "drawing", 71, 20};
  ui::Value lblvalorevolt{drawing, "lblvalorevolt"};
  ui::Value lblvalorers{drawing, "lblvalorers"};
  ui::Value lblvalorestrumento{drawing, "lblvalorestrumento"};
  ui::Value lblvalorerint{drawing, "lblvalorerint"};
  ui::Result lblserie{this, "lblserie"};
  ui::Result lblstrumento{this, "lblstrumento"};
  ui::Result lblcorrente{this, "lblcorrente"};
  ui::Result lblpotenza{this, "lblpotenza"};
  ui::Result lblnumero{this, "lblnumero"};
  ui::Note Label1{this, "Label1",
                  "SOPRA I 50 VOLT C'E' PERICOLO: USARE RESISTENZE PER ALTA TENSIONE E UN PUNTALE "
                  "ISOLATO"};

 public:
  frmsondecc() : Calculator{"frmsondecc", "SONDE PER MISURE IN CORRENTE CONTINUA"} {
    draw();
    lay_out(ui::column(ui::form(txtrint, txtrapporto, txtvolt), drawing, lblserie, lblstrumento,
                       lblcorrente, lblpotenza, lblnumero, Label1));
  }

  void show_example() override { fill_in({"10", "10", "3000"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double left = 6;
    constexpr double chain_end = 34;
    constexpr double chain_middle = (left + chain_end) / 2;
    constexpr double meter = 39;
    constexpr double inner = 55;
    constexpr double housing = 35.5;
    constexpr double right = 70;
    constexpr double top = 6;
    constexpr double bottom = 16;
    drawing.terminal({left, top})
        .named("+", Side::left)
        .terminal({left, bottom})
        .named("-", Side::left)
        .label(lblvalorevolt, {left, (top + bottom) / 2})
        .resistor({left, top}, {left + 9, top})
        .dashed({{left + 9, top}, {chain_end - 9, top}})
        .resistor({chain_end - 9, top}, {chain_end, top})
        .mark({chain_middle, top}, "Rs", Side::above)
        .label(lblvalorers, {chain_middle, top}, Side::below)
        .wire({{chain_end, top}, {inner, top}})
        .wire({{left, bottom}, {inner, bottom}})
        .meter({meter, top}, {meter, bottom}, "V")
        .named(lblvalorestrumento)
        .junction({meter, top})
        .junction({meter, bottom})
        .resistor({inner, top}, {inner, bottom})
        .named("Ri", lblvalorerint)
        .dashed({{housing, top - 2},
                 {right, top - 2},
                 {right, bottom + 2},
                 {housing, bottom + 2},
                 {housing, top - 2}})
        .mark({(housing + right) / 2, top - 2}, "STRUMENTO", Side::above);
  }

  void compute() override {
    constexpr double ohm_in_megaohm = 1e6;
    const Real division_ratio = txtrapporto.value();
    const Real highest_v = txtvolt.value();
    const Real meter_ohm = txtrint.value() * ohm_in_megaohm;
    require(division_ratio > 1, txtrapporto, "IL RAPPORTO DEVE ESSERE MAGGIORE DI 1");
    const VoltmeterProbe probe = voltmeter_probe(meter_ohm, division_ratio, highest_v);
    lblserie = "RESISTENZA IN SERIE = " + eng(probe.series_ohm, "Ohm");
    lblstrumento = "LO STRUMENTO LEGGE FINO A " + sig(probe.meter_v, 4) + " Volt";
    lblcorrente = "CORRENTE ASSORBITA = " + eng(probe.current_a, "A");
    lblpotenza = "POTENZA SULLA SONDA = " + eng(probe.power_w, "W");
    lblnumero = probe.resistors == 1
                    ? "BASTA UNA SOLA RESISTENZA"
                    : "USARE ALMENO " + plain(probe.resistors) + " RESISTENZE IN SERIE DA " +
                          eng(probe.resistor_ohm, "Ohm");
    lblvalorevolt = eng(highest_v, "V");
    lblvalorers = eng(probe.series_ohm, "Ohm");
    lblvalorestrumento = eng(probe.meter_v, "V");
    lblvalorerint = eng(meter_ohm, "Ohm");
  }
};

const ui::Registration<frmsondecc> registration{"frmsondecc"};

}  // namespace

}  // namespace eterlab::resistors
