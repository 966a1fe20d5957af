#include <algorithm>

#include "circuits/time_constant.h"
#include "common/number_text.h"
#include "common/preferred_values.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

constexpr double kilohm = 1e3;
constexpr double microfarad = 1e-6;
constexpr int columns = 55;
constexpr std::string_view resistance_prompt = "RESISTENZA in kOhm :";
constexpr std::string_view capacitance_prompt = "CAPACITA' in microF :";
constexpr std::string_view delay_prompt = "RITARDO in SECONDI :";

enum Mode : int { find_delay, find_resistance, find_capacitance };

ui::Axis time_axis() { return {.title = "TEMPO", .unit = "s"}; }
ui::Axis voltage_axis() { return {.title = "TENSIONE", .unit = "V"}; }

// A relay that comes late, or a reset at power-on: a capacitor is charged up to a threshold.
class frmesempiocostempo final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"TROVARE IL RITARDO", "TROVARE LA RESISTENZA", "TROVARE LA CAPACITA'"}};
  ui::InputArray txtinput{
      this, "txtinput", {resistance_prompt, capacitance_prompt}, {.prompt_name = "lblinput"}};
  ui::Input txtvolt{this, "txtvolt", "TENSIONE DI ALIMENTAZIONE in VOLT"};
  ui::Input txtsoglia{this, "txtsoglia", "TENSIONE DI SOGLIA in VOLT"};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblcommerciale{this, "lblcommerciale"};
  ui::Note Label1{this, "Label1",
                  "LO STADIO DI SOGLIA DEVE ASSORBIRE MOLTO MENO DI QUANTO PASSA IN R"};
  ui::Schematic drawing{this, "drawing", columns, 22};
  ui::Value lblvaloretensione{drawing, "lblvaloretensione"};
  ui::Value lblvaloreresistenza{drawing, "lblvaloreresistenza"};
  ui::Value lblvalorecapacita{drawing, "lblvalorecapacita"};
  ui::Value lblvaloresoglia{drawing, "lblvaloresoglia"};
  ui::Plot plot{this, "plot", time_axis(), voltage_axis(), columns, 32};

 public:
  frmesempiocostempo()
      : Calculator{"frmesempiocostempo", "ESEMPIO PRATICO: RITARDO CON UN CIRCUITO R C"} {
    Option1.preset(find_delay);
    draw();
    lay_out(ui::column(ui::row(ui::column(Option1, ui::form(txtinput, txtvolt, txtsoglia),
                                          lbloutput, lblcommerciale, ui::stretch()),
                               ui::column(drawing, plot)),
                       Label1));

    Option1.on_click([this](int index) {
      txtinput[0].ask(index == find_delay ? resistance_prompt : delay_prompt);
      txtinput[1].ask(index == find_capacitance ? resistance_prompt : capacitance_prompt);
      txtinput.clear();
    });
  }

  void show_example() override { fill_in({"100", "47", "12", "8"}); }

 private:
  void draw() {
    constexpr double supply = 3;
    constexpr double common = 19;
    constexpr double battery = 4.5;
    constexpr double charged = 18;
    constexpr double node = (supply + common) / 2;
    constexpr double stage_left = 31;
    constexpr double stage_right = 41;
    constexpr double stage_middle = (stage_left + stage_right) / 2;
    constexpr double stage_top = 7;
    constexpr double stage_bottom = 15;
    constexpr double relay = 45.5;
    constexpr double relay_top = 5.5;
    constexpr double relay_bottom = 8.5;
    drawing.battery({battery, supply}, {battery, common})
        .named("U", lblvaloretensione)
        .open_contact({battery, supply}, {charged, supply})
        .resistor({charged, supply}, {charged, node})
        .named("R", lblvaloreresistenza)
        .capacitor({charged, node}, {charged, common})
        .named("C", lblvalorecapacita)
        .junction({charged, supply})
        .junction({charged, node})
        .junction({charged, common});
    drawing.box({stage_left, stage_top}, {stage_right, stage_bottom})
        .mark({stage_middle, node - 1.1}, "SOGLIA")
        .label(lblvaloresoglia, {stage_middle, node + 1.1})
        .wire({{charged, node}, {stage_left, node}})
        .wire({{stage_middle, supply}, {stage_middle, stage_top}})
        .wire({{stage_middle, stage_bottom}, {stage_middle, common}})
        .junction({stage_middle, supply});
    drawing.box({relay - 2, relay_top}, {relay + 2, relay_bottom})
        .named("RELE'", ui::Schematic::Side::right)
        .wire({{charged, supply}, {relay, supply}, {relay, relay_top}})
        .wire({{relay, relay_bottom}, {relay, node}, {stage_right, node}})
        .wire({{battery, common}, {stage_middle, common}});
  }

  struct Parts {
    Real resistance_ohm;
    Real capacitance_f;
  };
  /// The delay is so many time constants.
  [[nodiscard]] Parts parts(Real time_constants) const {
    const Real first = txtinput[0].value();
    const Real second = txtinput[1].value();
    switch (Option1.selected()) {
      case find_resistance:
        return {first / time_constants / (microfarad * second), microfarad * second};
      case find_capacitance:
        return {kilohm * second, first / time_constants / (kilohm * second)};
      default:
        return {kilohm * first, microfarad * second};
    }
  }

  void compute() override {
    const Real supply_v = txtvolt.value();
    const Real threshold_v = txtsoglia.value();
    require(threshold_v < supply_v, txtsoglia, "LA SOGLIA DEVE ESSERE MINORE DELLA TENSIONE");
    const Real time_constants = time_constants_until(threshold_v, supply_v);
    const auto [resistance_ohm, capacitance_f] = parts(time_constants);
    const auto delay_s = [time_constants](Real ohm, Real farad) {
      return rc_time_constant_s(ohm, farad) * time_constants;
    };
    lblvaloretensione = eng(supply_v, "V");
    lblvaloreresistenza = eng(resistance_ohm, "Ohm");
    lblvalorecapacita = eng(capacitance_f, "F");
    lblvaloresoglia = eng(threshold_v, "V");
    switch (Option1.selected()) {
      case find_resistance: {
        const Real preferred_ohm = nearest_preferred(resistance_ohm, Series::e24);
        lbloutput = "RESISTENZA = " + lblvaloreresistenza.content();
        lblcommerciale = "CON " + eng(preferred_ohm, "Ohm") + " (E24) IL RITARDO E' " +
                         eng(delay_s(preferred_ohm, capacitance_f), "s");
        break;
      }
      case find_capacitance: {
        const Real preferred_f = nearest_preferred(capacitance_f, Series::e12);
        lbloutput = "CAPACITA' = " + lblvalorecapacita.content();
        lblcommerciale = "CON " + eng(preferred_f, "F") + " (E12) IL RITARDO E' " +
                         eng(delay_s(resistance_ohm, preferred_f), "s");
        break;
      }
      default:
        lbloutput = "RITARDO = " + eng(delay_s(resistance_ohm, capacitance_f), "s");
    }
    plot_charge(supply_v, threshold_v, delay_s(resistance_ohm, capacitance_f), time_constants);
  }

  void plot_charge(Real supply_v, Real threshold_v, Real delay_s, Real time_constants) {
    constexpr double beyond_delay = 1.25;
    const Real tau_s = delay_s / time_constants;
    const Real end_s = std::max(5 * tau_s, beyond_delay * delay_s);
    ui::Axis voltage = voltage_axis();
    voltage.range = {0, supply_v.value()};
    plot.axes(time_axis(), voltage)
        .curve([supply_v, tau_s](Real time_s) { return risen_to(supply_v, time_s, tau_s); }, 0,
               end_s, "CARICA")
        .marker(delay_s, eng(delay_s, "s"))
        .curve([threshold_v](Real /*time_s*/) { return threshold_v; }, 0, end_s,
               "SOGLIA " + eng(threshold_v, "V"));
  }
};

const ui::Registration<frmesempiocostempo> registration{"frmesempiocostempo"};

}  // namespace

}  // namespace eterlab::circuits
