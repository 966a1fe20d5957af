#include <string>

#include "common/number_text.h"
#include "common/preferred_values.h"
#include "common/rounding.h"
#include "power/voltage_doubler.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::power {

namespace {

using Side = ui::Schematic::Side;

/// The least that a part must stand, in whole volts.
std::string at_least(Real voltage_v) { return fixed_up(voltage_v, 0) + " Volt"; }

// The capacitors of a voltage doubler, and the voltages of its parts.
class frmduplicatori final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"AD ONDA INTERA (SIMMETRICO)", "A MEZZA ONDA (MASSA COMUNE)"}};
  ui::Input txtvolt{this, "txtvolt", "TENSIONE EFFICACE DEL SECONDARIO in VOLT"};
  ui::Input txtcorrente{this, "txtcorrente", "CORRENTE DEL CARICO in mA"};
  ui::Input txtripple{this,
                      "txtripple",
                      "RIPPLE AMMESSO in %",
                      {.tooltip = "rispetto alla tensione a vuoto, da picco a picco"}};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA DI RETE in Hz", {.holds = "50"}};
  ui::Result lblvuoto{this, "lblvuoto"};
  ui::Result lblcarico{this, "lblcarico"};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblripple{this, "lblripple"};
  ui::Result lbllavoro{this, "lbllavoro"};
  ui::Result lbldiodi{this, "lbldiodi"};
  ui::Schematic drawing{this, "drawing", 46, 32};
  ui::Value lblvalorec1{drawing, "lblvalorec1"};
  ui::Value lblvalorec2{drawing, "lblvalorec2"};
  ui::Value lblvaloreuscita{drawing, "lblvaloreuscita"};

 public:
  frmduplicatori() : Calculator{"frmduplicatori", "DUPLICATORI DI TENSIONE"} {
    Option1.preset(0);
    draw_full_wave();
    lay_out(ui::column(
        ui::row(ui::column(Option1, ui::form(txtvolt, txtcorrente, txtripple, txtfrequenza),
                           ui::stretch()),
                drawing),
        lblvuoto, lblcarico, lblcapacita, lblripple, lbllavoro, lbldiodi));
    Option1.on_click([this](int index) {
      drawing.clear();
      index == 0 ? draw_full_wave() : draw_half_wave();
    });
  }

  void show_example() override { fill_in({"220", "150", "2", "50"}); }

 private:
  static constexpr double top = 5.5;
  static constexpr double bottom = 29.5;
  static constexpr double load_x = 33;
  static constexpr ui::Transformer mains{{4, 14.5}, ui::Transformer::Core::iron};

  void draw_full_wave() {
    constexpr double diodes_x = 11;
    constexpr double capacitors_x = 19.5;
    constexpr double input_y = mains.secondary_top.y;
    constexpr double middle_y = mains.secondary_bottom.y;
    drawing.transformer(mains)
        .wire({mains.secondary_top, {diodes_x, input_y}})
        .junction({diodes_x, input_y})
        .diode({diodes_x, input_y}, {diodes_x, top})
        .named("D1", Side::left)
        .wire({{diodes_x, input_y}, {diodes_x, middle_y}})
        .diode({diodes_x, bottom}, {diodes_x, middle_y})
        .named("D2", Side::left)
        .wire({mains.secondary_bottom, {capacitors_x, middle_y}})
        .junction({capacitors_x, middle_y});
    drawing.wire({{diodes_x, top}, {load_x, top}})
        .wire({{diodes_x, bottom}, {load_x, bottom}})
        .electrolytic({capacitors_x, top}, {capacitors_x, middle_y})
        .named("C1", lblvalorec1)
        .electrolytic({capacitors_x, middle_y}, {capacitors_x, bottom})
        .named("C2", lblvalorec2)
        .junction({capacitors_x, top})
        .junction({capacitors_x, bottom});
    draw_load();
  }

  void draw_half_wave() {
    constexpr double diode_x = 13;
    constexpr double capacitor_x = 20;
    drawing.transformer(mains)
        .wire({mains.secondary_top, {mains.secondary_top.x, top}})
        .electrolytic({diode_x, top}, {mains.secondary_top.x, top})
        .named_beside("C1", lblvalorec1, Side::above)
        .junction({diode_x, top})
        .diode({diode_x, bottom}, {diode_x, top})
        .named("D1", Side::left)
        .diode({diode_x, top}, {capacitor_x, top})
        .named("D2", Side::above);
    drawing.wire({mains.secondary_bottom, {mains.secondary_bottom.x, bottom}, {load_x, bottom}})
        .wire({{capacitor_x, top}, {load_x, top}})
        .electrolytic({capacitor_x, top}, {capacitor_x, bottom})
        .named("C2", lblvalorec2)
        .junction({diode_x, bottom})
        .junction({capacitor_x, top})
        .junction({capacitor_x, bottom});
    draw_load();
  }

  void draw_load() {
    drawing.resistor({load_x, top}, {load_x, bottom})
        .named_beside("RL", lblvaloreuscita, Side::right);
  }

  void compute() override {
    const Real winding_v = txtvolt.value();
    constexpr double greatest_ripple_percent = 20;
    require(txtripple.value() <= greatest_ripple_percent, txtripple,
            "IL RIPPLE NON PUO' SUPERARE IL 20 %");
    require(rectified_peak_v(winding_v) > 0, txtvolt, "TENSIONE TROPPO BASSA PER I DIODI");
    const bool is_full_wave = Option1.selected() == 0;
    const auto circuit = is_full_wave ? VoltageDoubler::full_wave : VoltageDoubler::half_wave;
    const DoublerDesign design = voltage_doubler(circuit, winding_v, txtcorrente.value() / 1000,
                                                 txtripple.value() / 100, txtfrequenza.value());
    const std::string capacitance = eng(design.capacitance_f, "F");
    const std::string loaded = fixed(design.mean_v, 1) + " Volt";
    lblvuoto = "TENSIONE A VUOTO = " + fixed(design.no_load_v, 1) + " Volt";
    lblcarico = "TENSIONE CON IL CARICO = " + loaded;
    lblcapacita = "OGNI CONDENSATORE = " + capacitance + ", E6 " +
                  eng(next_preferred_up(design.capacitance_f, Series::e6), "F");
    lblripple = "RIPPLE = " + eng(design.ripple_v, "V") + " picco picco a " +
                sig(design.ripple_hz, 6) + " Hz";
    lbllavoro = "TENSIONE DI LAVORO: " +
                (is_full_wave ? "C1 E C2 ALMENO " + at_least(design.first_capacitor_v)
                              : "C1 ALMENO " + at_least(design.first_capacitor_v) + ", C2 ALMENO " +
                                    at_least(design.second_capacitor_v));
    lbldiodi = "TENSIONE INVERSA DEI DIODI ALMENO " + at_least(design.diode_reverse_v);
    lblvalorec1 = capacitance;
    lblvalorec2 = capacitance;
    lblvaloreuscita = loaded;
  }
};

const ui::Registration<frmduplicatori> registration{"frmduplicatori"};

}  // namespace

}  // namespace eterlab::power
