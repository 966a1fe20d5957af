#include "common/number_text.h"
#include "transistors/matching_window.h"
#include "transistors/stage_matching.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::transistors {

namespace {

// The tuned collector of an oscillator coupled to the base of the next stage by two capacitors.
class frmoscill_preampl final : public MatchingWindow {
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA in MHz",
                         {.range = ui::Range{0.1, 1000}, .prompt_name = "Label1"}};
  ui::Input txtvce{this,
                   "txtvce",
                   "TENSIONE COLLETTORE-EMETTITORE in VOLT",
                   {.tooltip = "tensione continua ai capi del transistor oscillatore",
                    .range = ui::Range{1, 100},
                    .prompt_name = "Label2"}};
  ui::Input txtpotenza{this,
                       "txtpotenza",
                       "POTENZA DELL'OSCILLATORE in mW",
                       {.range = ui::Range{0.1, 10000}, .prompt_name = "Label3"}};
  ui::Input txtrb{this,
                  "txtrb",
                  "RESISTENZA DI INGRESSO DELL'AMPLIFICATORE in OHM",
                  {.tooltip = "tra base e massa, polarizzazione compresa",
                   .range = ui::Range{1, 10000},
                   .prompt_name = "Label4"}};
  ui::Input txtq{
      this,
      "txtq",
      "FATTORE Q A CARICO",
      {.tooltip = "in pratica da 5 a 15", .range = ui::Range{1, 100}, .prompt_name = "Label5"}};
  ui::Schematic drawing{this, "drawing", 68, 32};
  ui::Value lbll1{drawing, "lbll1"};
  ui::Value lblc1{drawing, "lblc1"};
  ui::Value lblc2{drawing, "lblc2"};
  ui::Result lblcarico{this, "lblcarico"};
  ui::Result lbltensione{this, "lbltensione"};
  ui::Result lblcommerciali{this, "lblcommerciali"};
  ui::Note Label6{this, "Label6",
                  "C1 FA ANCHE DA CONDENSATORE DI ACCOPPIAMENTO. UN COMPENSATORE IN PARALLELO A C1 "
                  "O A C2 SI REGOLA PER LA MASSIMA TENSIONE SULLA BASE"};

 public:
  frmoscill_preampl()
      : MatchingWindow{"frmoscill_preampl",
                       "ADATTAMENTO TRA STADIO OSCILLATORE E STADIO AMPLIFICATORE",
                       "Label7",
                       {180, 180}} {
    draw();
    lay_out_with_coils(ui::column(ui::form(txtfrequenza, txtvce, txtpotenza, txtrb, txtq), drawing,
                                  lblcarico, lbltensione, lblcommerciali, Label6),
                       width_for_standard_values);
  }

  void show_example() override { fill_in({"14", "9", "20", "50", "10"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr ui::At collector{14, 15.5};
    constexpr ui::At base{38, 15.5};
    constexpr ui::Transistor tr1{{13, 20.5}};
    constexpr ui::Transistor tr2{{55, 15.5}};
    constexpr double ground_y = 29;
    constexpr double feedback_x = 6;
    constexpr double feedback_y = 25;
    constexpr double feedback_end = 18;
    draw_supply(drawing, collector, "L1", lbll1, "10 nF");
    drawing.junction(collector)
        .wire({collector, tr1.collector})
        .npn(tr1)
        .named("TR1", Side::right)
        .wire({tr1.base, {8, tr1.base.y}, {8, feedback_y}})
        .wire({tr1.emitter, {tr1.emitter.x, feedback_y}})
        .dashed({{feedback_x, feedback_y},
                 {feedback_end, feedback_y},
                 {feedback_end, ground_y},
                 {feedback_x, ground_y},
                 {feedback_x, feedback_y}})
        .mark({(feedback_x + feedback_end) / 2, (feedback_y + ground_y) / 2}, "OSC")
        .ground({(feedback_x + feedback_end) / 2, ground_y});
    drawing.capacitor(collector, base)
        .named("C1", lblc1)
        .junction(base)
        .capacitor(base, {base.x, ground_y})
        .named("C2", lblc2)
        .ground({base.x, ground_y})
        .wire({base, tr2.base})
        .npn(tr2)
        .named("TR2", Side::right)
        .wire({tr2.collector, {tr2.collector.x, 9}})
        .terminal({tr2.collector.x, 9})
        .wire({tr2.emitter, {tr2.emitter.x, ground_y}})
        .ground({tr2.emitter.x, ground_y});
  }

  void compute() override {
    constexpr double saturation_v = 0.5;
    const Real frequency_hz = txtfrequenza.value() * 1e6;
    const Real power_w = txtpotenza.value() / 1000;
    const Real base_ohm = txtrb.value();
    const Real q = txtq.value();
    const Real load_ohm = collector_load_ohm(txtvce.value(), saturation_v, power_w);
    require(base_ohm < 0.99 * load_ohm, txtpotenza,
            "IL CARICO DELL'OSCILLATORE NON E' MAGGIORE DELLA RESISTENZA DI INGRESSO: DIMINUIRE LA "
            "POTENZA");
    require_q(other_q_squared(load_ohm, base_ohm, q) >= least_other_q_squared,
              least_q(load_ohm, base_ohm), txtq, txtpotenza);
    const TappedCapacitor exact = tapped_capacitor(load_ohm, base_ohm, q, frequency_hz);
    const TappedCapacitor standard = with_standard_values(exact, base_ohm, frequency_hz);
    lbll1 = eng(exact.inductance_h, "H");
    lblc1 = eng(exact.series_f, "F");
    lblc2 = eng(exact.shunt_f, "F");
    lblcarico = "CARICO DELL'OSCILLATORE = " + fixed(exact.load_ohm, 0) + " Ohm";
    lbltensione = "TENSIONE RF SULLA BASE = " + fixed(sqrt(power_w * base_ohm), 2) + " V EFF.";
    lblcommerciali = "CON VALORI COMMERCIALI: C1 = " + eng(standard.series_f, "F") +
                     "   C2 = " + eng(standard.shunt_f, "F") +
                     "   L1 = " + eng(standard.inductance_h, "H") +
                     "   CARICO = " + fixed(standard.load_ohm, 0) + " Ohm";
  }
};

const ui::Registration<frmoscill_preampl> registration{"frmoscill_preampl"};

}  // namespace

}  // namespace eterlab::transistors
