#include "capacitors/back_to_back.h"
#include "capacitors/working_voltage_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::capacitors {

namespace {

// Two electrolytics in place of a capacitor without poles, to start a motor or feed a loudspeaker.
class frmelettrononpolarizzati final : public ui::Calculator {
  ui::Input txtcapacita{this, "txtcapacita", "CAPACITA' DA OTTENERE in microF"};
  ui::Input txtvolt{this, "txtvolt", "TENSIONE ALTERNATA EFFICACE in VOLT"};
  ui::Input txtfrequenza{this, "txtfrequenza", "FREQUENZA in Hz", {.holds = "50"}};
  ui::Result lblelettrolitici{this, "lblelettrolitici"};
  ui::Result lblcommerciale{this, "lblcommerciale"};
  ui::Result lbllavoro{this, "lbllavoro"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblcorrente{this, "lblcorrente"};
  ui::Note Label1{this, "Label1",
                  "I DIODI EVITANO CHE AI CONDENSATORI ARRIVI TENSIONE INVERSA. IL SISTEMA NON E' "
                  "ADATTO AL SERVIZIO CONTINUO CON FORTI CORRENTI"};
  ui::Schematic drawing{this, "drawing", 36, 14};
  ui::Value lblvalorec1{drawing, "lblvalorec1"};
  ui::Value lblvalorec2{drawing, "lblvalorec2"};

 public:
  frmelettrononpolarizzati()
      : Calculator{"frmelettrononpolarizzati",
                   "CONDENSATORE NON POLARIZZATO CON DUE ELETTROLITICI"} {
    draw();
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtcapacita, txtvolt, txtfrequenza), ui::stretch()), drawing),
        lblelettrolitici, lblcommerciale, lbllavoro, lblreattanza, lblcorrente, Label1));
  }

  void show_example() override { fill_in({"10", "12", "50"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double left = 4;
    constexpr double middle = 18;
    constexpr double right = 32;
    constexpr double diode_y = 4;
    constexpr double capacitor_y = 9.5;
    drawing.terminal({1, capacitor_y}).wire({{1, capacitor_y}, {left, capacitor_y}});
    drawing.terminal({35, capacitor_y}).wire({{right, capacitor_y}, {35, capacitor_y}});
    const auto half = [&](double pole, std::string_view capacitor, std::string_view diode,
                          ui::Label& value) {
      const double x = (pole + middle) / 2;
      drawing.electrolytic({pole, capacitor_y}, {middle, capacitor_y})
          .mark({x, capacitor_y - 1.5}, capacitor, Side::above)
          .label(value, {x, capacitor_y + 1.5}, Side::below)
          .diode({middle, diode_y}, {pole, diode_y})
          .named(diode)
          .wire({{pole, diode_y}, {pole, capacitor_y}})
          .junction({pole, capacitor_y});
    };
    half(left, "C1", "D1", lblvalorec1);
    half(right, "C2", "D2", lblvalorec2);
    drawing.wire({{middle, diode_y}, {middle, capacitor_y}})
        .junction({middle, diode_y})
        .junction({middle, capacitor_y});
  }

  void compute() override {
    const Real rms_v = txtvolt.value();
    const BackToBack pair = back_to_back(txtcapacita.value() * 1e-6, rms_v, txtfrequenza.value());
    const std::string standard = eng(pair.standard_each_f, "F");
    lblelettrolitici = "OCCORRONO DUE ELETTROLITICI DA " + eng(pair.each_f, "F");
    lblcommerciale =
        "CON IL VALORE COMMERCIALE DI " + standard + " SI OTTENGONO " + eng(pair.obtained_f, "F");
    lbllavoro =
        "TENSIONE DI LAVORO DI CIASCUNO = " + working_voltage_text(mains_working_voltage_v(rms_v));
    lblreattanza = "REATTANZA = " + eng(pair.reactance_ohm, "Ohm");
    lblcorrente = "CORRENTE = " + eng(pair.current_a, "A");
    lblvalorec1 = standard;
    lblvalorec2 = standard;
  }
};

const ui::Registration<frmelettrononpolarizzati> registration{"frmelettrononpolarizzati"};

}  // namespace

}  // namespace eterlab::capacitors
