#include <optional>
#include <string>

#include "common/number_text.h"
#include "common/physics.h"
#include "power/rectifier.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::power {

namespace {

using Side = ui::Schematic::Side;

ui::Axis time_axis() { return {.title = "TEMPO", .unit = "ms"}; }
ui::Axis voltage_axis(std::optional<Real> highest_v = {}) {
  ui::Axis axis{.title = "TENSIONE", .unit = "V"};
  if (highest_v) {
    axis.range = {0, highest_v->value()};
  }
  return axis;
}

// A mains supply with a reservoir capacitor: its output, and the stress of all its parts.
class frmrettificatori final : public ui::Calculator {
  ui::Frame Frame1{this, "Frame1", "CIRCUITO"};
  ui::OptionArray Option1{
      Frame1, "Option1", {"SEMIONDA", "ONDA INTERA CON PRESA CENTRALE", "PONTE DI GRAETZ"}};
  ui::Input txtveff{this, "txtveff", "", {.range = ui::Range{2, 1000}, .prompt_name = "lblveff"}};
  ui::Input txtrs{this,
                  "txtrs",
                  "RESISTENZA DEL TRASFORMATORE in OHM",
                  {.tooltip = "secondario + primario x (Vsec / Vprim) al quadrato; con presa "
                              "centrale di mezzo secondario",
                   .range = ui::Range{0.01, 1000},
                   .prompt_name = "Label2"}};
  ui::Input txtcorrente{this,
                        "txtcorrente",
                        "CORRENTE DI CARICO in A",
                        {.range = ui::Range{0.001, 50}, .prompt_name = "Label3"}};
  ui::Input txtcond{this,
                    "txtcond",
                    "CONDENSATORE in microF",
                    {.range = ui::Range{1, 1000000}, .prompt_name = "Label4"}};
  ui::Schematic drawing{this, "drawing", 46, 27};
  ui::Result lblvuoto{this, "lblvuoto"};
  ui::Result lblvmedia{this, "lblvmedia"};
  ui::Result lblvmin{this, "lblvmin"};
  ui::Result lblripple{this, "lblripple"};
  ui::Result lblpiv{this, "lblpiv"};
  ui::Result lbldiodo{this, "lbldiodo"};
  ui::Result lbltipo{this, "lbltipo"};
  ui::Result lblsecondario{this, "lblsecondario"};
  ui::Result lblicond{this, "lblicond"};
  ui::Plot plot{this, "plot", time_axis(), voltage_axis(), 54, 27};
  ui::Note Label5{this, "Label5",
                  "RESISTENZA DEL TRASFORMATORE, SE NON NOTA: VOLT / AMPERE NOMINALI DEL "
                  "SECONDARIO x 0,2 (FINO A 20 VA), x 0,1 (100 VA)"};
  ui::Note Label6{this, "Label6",
                  "SENZA CONDENSATORE LA TENSIONE MEDIA E' 0,45 VOLTE (SEMIONDA) O 0,90 VOLTE "
                  "QUELLA EFFICACE, MENO LA CADUTA DEI DIODI. CON LA RETE AL +10 % LE TENSIONI "
                  "AUMENTANO DEL 10 %"};

 public:
  frmrettificatori() : Calculator{"frmrettificatori", "CIRCUITI CON DIODI RETTIFICATORI"} {
    name_hint("Label7");
    Option1.preset(2);
    show_circuit();
    lay_out(ui::column(
        ui::row(Frame1.arrange(Option1),
                ui::column(ui::form(txtveff, txtrs, txtcorrente, txtcond), ui::stretch())),
        ui::row(drawing, plot),
        ui::row(ui::column(lblvuoto, lblvmedia, lblvmin, lblripple, ui::stretch()),
                ui::column(lblpiv, lbltipo, lblsecondario, ui::stretch())),
        lblicond, lbldiodo, Label5, Label6));
    Option1.on_click([this](int /*index*/) { show_circuit(); });
  }

  void show_example() override { fill_in({"13.8", "0.9", "1", "2200"}); }

 private:
  [[nodiscard]] RectifierCircuit circuit() const {
    return static_cast<RectifierCircuit>(Option1.selected());
  }

  void show_circuit() {
    txtveff.ask(circuit() == RectifierCircuit::centre_tap
                    ? "TENSIONE A VUOTO DI MEZZO SECONDARIO in VOLT EFF."
                    : "TENSIONE A VUOTO DEL SECONDARIO in VOLT EFF.");
    drawing.clear();
    drawing.transformer(mains)
        .wire({mains.primary_top, {1, mains.primary_top.y}})
        .terminal({1, mains.primary_top.y})
        .wire({mains.primary_bottom, {1, mains.primary_bottom.y}})
        .terminal({1, mains.primary_bottom.y});
    switch (circuit()) {
      case RectifierCircuit::half_wave:
        draw_half_wave();
        break;
      case RectifierCircuit::centre_tap:
        draw_centre_tap();
        break;
      case RectifierCircuit::bridge:
        draw_bridge();
        break;
    }
    draw_load();
  }

  static constexpr ui::Transformer mains{.place = {5, 13}, .core = ui::Transformer::Core::iron};
  static constexpr double winding_x = mains.secondary_top.x;
  static constexpr double plus_y = 3.5;
  static constexpr double minus_y = 25;
  static constexpr double capacitor_x = 32;
  static constexpr double load_x = 37;
  static constexpr double output_x = 43;

  void draw_half_wave() {
    drawing.wire({mains.secondary_top, {winding_x, plus_y}})
        .diode({winding_x, plus_y}, {capacitor_x, plus_y})
        .named("D", Side::above)
        .wire({mains.secondary_bottom, {winding_x, minus_y}, {capacitor_x, minus_y}});
  }

  void draw_centre_tap() {
    constexpr double second_y = 20;
    constexpr double joint_x = 20;
    constexpr double tap_x = 25;
    drawing.wire({mains.secondary_top, {winding_x, plus_y}})
        .diode({winding_x, plus_y}, {joint_x, plus_y})
        .named("D1", Side::above)
        .wire({mains.secondary_bottom, {winding_x, second_y}})
        .diode({winding_x, second_y}, {joint_x, second_y})
        .named("D2", Side::above)
        .wire({{joint_x, second_y}, {joint_x, plus_y}})
        .junction({joint_x, plus_y})
        .wire({{joint_x, plus_y}, {capacitor_x, plus_y}})
        .wire({mains.secondary_tap,
               {tap_x, mains.secondary_tap.y},
               {tap_x, minus_y},
               {capacitor_x, minus_y}});
  }

  void draw_bridge() {
    constexpr double middle_y = mains.place.y;
    constexpr double reach = 6;
    constexpr ui::At upper{18.5, middle_y - reach};
    constexpr ui::At lower{18.5, middle_y + reach};
    constexpr ui::At minus{18.5 - reach, middle_y};
    constexpr ui::At plus{18.5 + reach, middle_y};
    constexpr double out_x = 26.5;
    constexpr double back_x = 10;
    constexpr double lower_y = 22;
    for (const ui::At& winding_end : {upper, lower}) {
      drawing.diode(minus, winding_end).diode(winding_end, plus).junction(winding_end);
    }
    drawing.junction(minus)
        .junction(plus)
        .wire({mains.secondary_top, {winding_x, plus_y}, {upper.x, plus_y}, upper})
        .wire({mains.secondary_bottom, {winding_x, lower_y}, {lower.x, lower_y}, lower})
        .wire({plus, {out_x, middle_y}, {out_x, plus_y}, {capacitor_x, plus_y}})
        .wire({minus, {back_x, middle_y}, {back_x, minus_y}, {capacitor_x, minus_y}});
  }

  void draw_load() {
    drawing.electrolytic({capacitor_x, plus_y}, {capacitor_x, minus_y})
        .named("C", Side::left)
        .resistor({load_x, plus_y}, {load_x, minus_y})
        .named("CARICO", Side::right);
    for (const double y : {plus_y, minus_y}) {
      drawing.wire({{capacitor_x, y}, {output_x, y}})
          .junction({capacitor_x, y})
          .junction({load_x, y})
          .terminal({output_x, y})
          .named(y == plus_y ? "+" : "-", Side::above);
    }
  }

  void compute() override {
    const std::optional<Rectifier> steady = Rectifier::in_steady_state(
        {circuit(), txtveff.value(), txtrs.value(), txtcorrente.value(), txtcond.value() * 1e-6});
    require(steady.has_value(), txtcorrente,
            "LA TENSIONE SCENDE A ZERO: DIMINUIRE LA CORRENTE O AUMENTARE IL CONDENSATORE");
    const Rectifier& rectifier = *steady;
    lblvuoto = "TENSIONE A VUOTO = " + fixed(rectifier.no_load_v(), 1) + " V";
    lblvmedia = "TENSIONE MEDIA SOTTO CARICO = " + fixed(rectifier.mean_v(), 1) + " V";
    lblvmin = "TENSIONE MINIMA = " + fixed(rectifier.lowest_v(), 1) + " V";
    lblripple = "RIPPLE = " + fixed(rectifier.highest_v() - rectifier.lowest_v(), 2) +
                " V PICCO-PICCO A " + fixed(rectifier.ripple_hz(), 0) + " Hz";
    lblpiv = "TENSIONE INVERSA SU OGNI DIODO = " + fixed(rectifier.inverse_v(), 0) + " V";
    lbldiodo = "CORRENTE IN OGNI DIODO: MEDIA " + fixed(rectifier.diode_mean_a(), 2) +
               " A   DI PICCO " + fixed(rectifier.pulse_peak_a(), 2) + " A   ALL'ACCENSIONE " +
               fixed(rectifier.switch_on_a(), 0) + " A";
    lbltipo = told(suitable_diodes(rectifier));
    lblsecondario = "SECONDARIO: " + fixed(rectifier.winding_rms_a(), 2) + " A EFF.   " +
                    fixed(rectifier.winding_va(), 0) + " VA";
    lblicond = "CORRENTE DI RIPPLE NEL CONDENSATORE = " + fixed(rectifier.capacitor_rms_a(), 2) +
               " A EFF.";
    show_curves(rectifier);
  }

  static std::string told(const RectifierDiodes& diodes) {
    return diodes.type ? "DIODI ADATTI: " + *diodes.type
                       : "DIODI DA ALMENO " + fixed(diodes.least_current_a, 0) + " A  " +
                             fixed(diodes.least_inverse_v, 0) + " V";
  }

  void show_curves(const Rectifier& rectifier) {
    constexpr double end_ms = 20;
    const auto angle = [](Real time_ms) { return 2 * pi * time_ms / end_ms; };
    const Real mean_v = rectifier.mean_v();
    const Real lowest_v = rectifier.lowest_v();
    plot.axes(time_axis(), voltage_axis(rectifier.no_load_v()));
    plot.curve([&](Real time_ms) { return rectifier.output_v(angle(time_ms)); }, 0, end_ms,
               "USCITA")
        .curve([&](Real time_ms) { return rectifier.rectified_v(angle(time_ms)); }, 0, end_ms,
               "SENZA C")
        .curve([&](Real) { return mean_v; }, 0, end_ms, "MEDIA")
        .curve([&](Real) { return lowest_v; }, 0, end_ms, "MINIMA");
  }
};

const ui::Registration<frmrettificatori> registration{"frmrettificatori"};

}  // namespace

}  // namespace eterlab::power
