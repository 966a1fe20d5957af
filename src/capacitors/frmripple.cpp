#include "capacitors/reservoir_capacitor.h"
#include "capacitors/working_voltage_text.h"
#include "common/number_text.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::capacitors {

namespace {

// The reservoir capacitor behind a rectifier.
class frmripple final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"PONTE (ONDA INTERA)", "UN DIODO (SEMIONDA)"}};
  ui::Input txtvolt{this, "txtvolt", "TENSIONE EFFICACE DEL SECONDARIO in VOLT"};
  ui::Input txtcorrente{this, "txtcorrente", "CORRENTE DEL CARICO in mA"};
  ui::Input txtripple{this,
                      "txtripple",
                      "RIPPLE AMMESSO in %",
                      {.tooltip = "da picco a picco, rispetto alla tensione a vuoto"}};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA DI RETE in Hz", {.holds = "50"}};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblcommerciale{this, "lblcommerciale"};
  ui::Result lblpicco{this, "lblpicco"};
  ui::Result lblmedia{this, "lblmedia"};
  ui::Result lblripple{this, "lblripple"};
  ui::Result lbllavoro{this, "lbllavoro"};
  ui::Schematic drawing{this, "drawing", 48, 19};
  ui::Value lblvalorecapacita{drawing, "lblvalorecapacita"};
  ui::Value lblvalorecarico{drawing, "lblvalorecarico"};
  ui::Plot plot{this, "plot", {.title = "TEMPO", .unit = "s"}, {.title = "TENSIONE", .unit = "V"},
                48,   28};

 public:
  frmripple() : Calculator{"frmripple", "CONDENSATORE DI FILTRO ANTI RIPPLE"} {
    Option1.preset(0);
    draw(chosen());
    lay_out(ui::row(
        ui::column(Option1, ui::form(txtvolt, txtcorrente, txtripple, txtfrequenza), lblcapacita,
                   lblcommerciale, lblpicco, lblmedia, lblripple, lbllavoro, ui::stretch()),
        ui::column(drawing, plot)));
    Option1.on_click([this](int /*index*/) { draw(chosen()); });
  }

  void show_example() override { fill_in({"12", "1000", "10", "50"}); }

 private:
  [[nodiscard]] Rectifier chosen() const {
    return Option1.selected() == 0 ? Rectifier::bridge : Rectifier::single_diode;
  }

  void draw(Rectifier rectifier) {
    using Side = ui::Schematic::Side;
    constexpr ui::Transformer mains{.place = {6, 9.5}, .core = ui::Transformer::Core::iron};
    constexpr double primary_x = 1.5;
    constexpr double top = 2;
    constexpr double bottom = 16;
    constexpr double capacitor_x = 23.2;
    constexpr double load_x = 37.5;
    drawing.clear();
    drawing.transformer(mains)
        .wire({{primary_x, mains.primary_top.y}, mains.primary_top})
        .terminal({primary_x, mains.primary_top.y})
        .wire({{primary_x, mains.primary_bottom.y}, mains.primary_bottom})
        .terminal({primary_x, mains.primary_bottom.y})
        .wire({mains.secondary_top, {mains.secondary_top.x, top}})
        .wire({mains.secondary_bottom, {mains.secondary_bottom.x, bottom}});
    if (rectifier == Rectifier::bridge) {
      draw_bridge(mains.secondary_top.x, top, bottom, capacitor_x);
    } else {
      drawing.diode({mains.secondary_top.x, top}, {capacitor_x, top})
          .wire({{mains.secondary_bottom.x, bottom}, {capacitor_x, bottom}});
    }
    drawing.electrolytic({capacitor_x, top}, {capacitor_x, bottom})
        .named_beside("C", lblvalorecapacita, Side::right)
        .junction({capacitor_x, top})
        .resistor({load_x, top}, {load_x, bottom})
        .named_beside("CARICO", lblvalorecarico, Side::right)
        .wire({{capacitor_x, top}, {load_x, top}})
        .wire({{capacitor_x, bottom}, {load_x, bottom}})
        .junction({capacitor_x, bottom});
    if (rectifier == Rectifier::bridge) {
      drawing.ground({capacitor_x, bottom});
    }
  }

  /// Between the ends of the winding; its negative pole goes to ground, past no other wire.
  void draw_bridge(double winding_x, double top, double bottom, double positive_x) {
    constexpr ui::At middle{15.5, 9};
    constexpr double radius = 4;
    constexpr ui::At upper{middle.x, middle.y - radius};
    constexpr ui::At lower{middle.x, middle.y + radius};
    constexpr ui::At negative{middle.x - radius, middle.y};
    constexpr ui::At positive{middle.x + radius, middle.y};
    const double rise_x = positive.x + 1;
    drawing.wire({{winding_x, top}, {upper.x, top}, upper})
        .wire({{winding_x, bottom}, {lower.x, bottom}, lower})
        .diode(negative, upper)
        .diode(negative, lower)
        .diode(upper, positive)
        .diode(lower, positive)
        .wire({negative, {negative.x - 1, negative.y}})
        .ground({negative.x - 1, negative.y})
        .wire({positive, {rise_x, positive.y}, {rise_x, top}, {positive_x, top}});
    for (const ui::At pole : {upper, lower, negative, positive}) {
      drawing.junction(pole);
    }
  }

  void compute() override {
    const Real rms_v = txtvolt.value();
    const Real ripple_percent = txtripple.value();
    const Real load_a = txtcorrente.value() / 1000;
    require(ripple_percent <= 50, txtripple, "IL RIPPLE NON PUO' SUPERARE IL 50 %");
    const RectifiedMains mains = rectified_mains(chosen(), rms_v, txtfrequenza.value());
    require(mains.peak_v > 0, txtvolt, "TENSIONE TROPPO BASSA PER I DIODI");
    const ReservoirCapacitor reservoir = reservoir_capacitor(mains, load_a, ripple_percent);
    lblcapacita = "CAPACITA' MINIMA = " + eng(reservoir.capacitance_f, "F");
    lblcommerciale = "VALORE COMMERCIALE = " + eng(reservoir.standard_capacitance_f, "F");
    lblpicco = "TENSIONE A VUOTO = " + fixed(mains.peak_v, 1) + " Volt";
    lblmedia = "TENSIONE MEDIA CON IL CARICO = " + fixed(reservoir.mean_v, 1) + " Volt";
    lblripple = "RIPPLE = " + eng(reservoir.ripple_v, "V") + " picco picco, " +
                eng(reservoir.effective_ripple_v, "V") + " efficaci";
    lbllavoro = "TENSIONE DI LAVORO = " + working_voltage_text(mains_working_voltage_v(rms_v));
    lblvalorecapacita = eng(reservoir.standard_capacitance_f, "F");
    lblvalorecarico = eng(load_a, "A");
    plot_voltages(mains, reservoir);
  }

  void plot_voltages(const RectifiedMains& mains, const ReservoirCapacitor& reservoir) {
    const Real end_s = 1.5 * reservoir.period_s;
    plot.curve([&](Real time_s) { return reservoir_voltage_v(mains, reservoir, time_s); }, 0, end_s,
               "CON IL CONDENSATORE")
        .marker(reservoir.period_s, "MASSIMO " + eng(mains.peak_v, "V"))
        .marker(reservoir.discharge_s, "MINIMO " + eng(mains.peak_v - reservoir.ripple_v, "V"))
        .curve([&](Real time_s) { return rectified_voltage_v(mains, time_s); }, 0, end_s, "SENZA");
  }
};

const ui::Registration<frmripple> registration{"frmripple"};

}  // namespace

}  // namespace eterlab::capacitors
