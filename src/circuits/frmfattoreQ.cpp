#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "circuits/impedance_parts.h"
#include "circuits/quality_factor.h"
#include "common/number_text.h"
#include "ui/plot.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

constexpr double weakest_db = -20;  // shown of the curve
constexpr double sharpest_q = 1e5;  // shown as a curve
constexpr ui::Range megahertz_range{0.001, 3000};
constexpr ui::Range q_range{1, 100'000};

enum Mode : int { of_a_coil, of_a_measured_band, under_load };

ui::Axis frequency_axis(std::optional<ui::Interval> range = {}) {
  return {.title = "FREQUENZA", .unit = "MHz", .range = range};
}

ui::Axis response_axis() {
  return {.title = "RISPOSTA", .unit = "dB", .range = ui::Interval{weakest_db, 0}, .step = 3};
}

// The Q of a coil or a circuit, and what a resonator loses for its band.
class frmfattoreQ final : public ui::Calculator {
  ui::OptionArray Option1{
      this,
      "Option1",
      {"Q DI UNA BOBINA", "Q DALLA BANDA MISURATA", "BANDA E PERDITA SOTTO CARICO"}};
  ui::Input txt1{this, "txt1", "", {.range = megahertz_range, .prompt_name = "lblinput1"}};
  ui::Input txt2{this, "txt2", "", {.prompt_name = "lblinput2"}};
  ui::Input txt3{this, "txt3", "", {.prompt_name = "lblinput3"}};
  ui::Result lbloutput1{this, "lbloutput1"};
  ui::Result lbloutput2{this, "lbloutput2"};
  ui::Result lbloutput3{this, "lbloutput3"};
  ui::Result lbloutput4{this, "lbloutput4"};
  ui::Plot plot{this, "plot", frequency_axis(), response_axis(), 46, 34};
  ui::Note Label6{this, "Label6",
                  "LA RESISTENZA SERIE E' QUELLA IN ALTA FREQUENZA, MAGGIORE DI QUELLA MISURATA IN "
                  "CONTINUA."};

 public:
  frmfattoreQ() : Calculator{"frmfattoreQ", "FATTORE DI MERITO Q E BANDA PASSANTE"} {
    Option1.preset(of_a_coil);
    ask();
    lay_out(
        ui::column(ui::row(ui::column(Option1, ui::form(txt1, txt2, txt3), ui::stretch()), plot),
                   lbloutput1, lbloutput2, lbloutput3, lbloutput4, Label6));

    Option1.on_click([this](int) {
      for (ui::Input* box : {&txt1, &txt2, &txt3}) {
        *box = "";
      }
      ask();
    });
  }

  void show_example() override { fill_in({"7.05", "4", "1.5"}); }

 private:
  void ask() {
    switch (Option1.selected()) {
      case of_a_coil:
        txt1.ask(frequency_prompt);
        txt2.ask(inductance_prompt, {0.001, 100'000});
        txt3.ask("RESISTENZA SERIE in OHM", {0.001, 10'000});
        break;
      case of_a_measured_band:
        txt1.ask("FREQUENZA INFERIORE A -3 dB in MHz");
        txt2.ask("FREQUENZA SUPERIORE A -3 dB in MHz", megahertz_range);
        txt3.hide();
        break;
      default:
        txt1.ask(frequency_prompt);
        txt2.ask("Q A VUOTO", q_range);
        txt3.ask("Q SOTTO CARICO", q_range);
    }
  }

  void compute() override {
    switch (Option1.selected()) {
      case of_a_coil:
        return show_coil();
      case of_a_measured_band:
        return show_measured();
      default:
        return show_loaded();
    }
  }

  void show_coil() {
    const Real frequency_hz = hertz(txt1);
    const LossyCoil coil = lossy_coil(frequency_hz, henry(txt2), txt3.value());
    advise(coil.quality_factor >= 1, txt3, "Q MINORE DI 1: RIDURRE LA RESISTENZA");
    lbloutput1 = "XL = " + fixed(coil.reactance_ohm, 2) + " Ohm";
    lbloutput2 = "Q = " + fixed(coil.quality_factor, 1);
    lbloutput3 = band_text("BANDA PASSANTE", coil.bandwidth_hz);
    lbloutput4 = "RESISTENZA PARALLELA EQUIVALENTE = " + fixed(coil.parallel_ohm, 0) + " Ohm";
    show_curve({frequency_hz, coil.quality_factor, coil.bandwidth_hz});
  }

  void show_measured() {
    const Real lower_hz = hertz(txt1);
    const Real upper_hz = hertz(txt2);
    require(upper_hz > lower_hz, txt2,
            "LA FREQUENZA SUPERIORE DEVE ESSERE MAGGIORE DELLA INFERIORE");
    const Selectivity circuit = selectivity_between(lower_hz, upper_hz);
    lbloutput1 = "FREQUENZA CENTRALE = " + fixed(circuit.frequency_hz / 1e6, 4) + " MHz";
    lbloutput2 = "Q = " + fixed(circuit.quality_factor, 1);
    lbloutput3 = band_text("BANDA PASSANTE", circuit.bandwidth_hz);
    show_curve(circuit);
  }

  void show_loaded() {
    const Real frequency_hz = hertz(txt1);
    const Real unloaded_q = txt2.value();
    const Real loaded_q = txt3.value();
    require(loaded_q < unloaded_q, txt3, "IL Q SOTTO CARICO DEVE ESSERE MINORE DEL Q A VUOTO");
    const LoadedResonator resonator = loaded_resonator(unloaded_q, loaded_q);
    const Real loaded_band_hz = frequency_hz / loaded_q;
    lbloutput1 = band_text("BANDA PASSANTE A VUOTO", frequency_hz / unloaded_q);
    lbloutput2 = band_text("BANDA PASSANTE SOTTO CARICO", loaded_band_hz);
    lbloutput3 = "PERDITA DI INSERZIONE = " + fixed(resonator.loss_db, 2) + " dB";
    lbloutput4 = "RENDIMENTO = " + fixed(100 * resonator.efficiency, 1) + " %";
    show_curve({frequency_hz, loaded_q, loaded_band_hz});
  }

  static std::string band_text(std::string_view what, Real bandwidth_hz) {
    return std::string{what} + " = " + kilohertz_text(bandwidth_hz);
  }

  void show_curve(const Selectivity& circuit) {
    if (circuit.quality_factor > sharpest_q) {
      return;
    }
    const Real from_hz =
        std::max(circuit.frequency_hz - 3 * circuit.bandwidth_hz, circuit.frequency_hz / 10);
    const Real to_hz = circuit.frequency_hz + 3 * circuit.bandwidth_hz;
    const Real from_mhz = from_hz / 1e6;
    const Real to_mhz = to_hz / 1e6;
    const auto response = [circuit](Real mhz) { return resonance_response_db(circuit, mhz * 1e6); };
    plot.axes(frequency_axis(ui::Interval{from_mhz.value(), to_mhz.value()}), response_axis())
        .curve(response, from_mhz, to_mhz);
    const HalfPower edges = half_power(circuit);
    for (const Real edge_hz : {edges.lower_hz, edges.upper_hz}) {
      if (edge_hz >= from_hz) {
        plot.marker(edge_hz / 1e6, sig(edge_hz / 1e6, 6) + " MHz");
      }
    }
  }
};

const ui::Registration<frmfattoreQ> registration{"frmfattoreQ"};

}  // namespace

}  // namespace eterlab::circuits
