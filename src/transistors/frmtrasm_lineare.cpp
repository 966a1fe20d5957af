#include <algorithm>
#include <string>

#include "common/number_text.h"
#include "lines/standing_wave.h"
#include "transistors/matching_window.h"
#include "transistors/stage_matching.h"
#include "ui/plot.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::transistors {

namespace {

ui::Axis ratio_axis() { return {.title = "ROS", .range = ui::Interval{1, 5}}; }
ui::Axis frequency_axis() { return {.title = "FREQUENZA", .unit = "MHz"}; }

// The network from a transmitter to the base of a transistor linear, and how it holds off
// frequency.
class frmtrasm_lineare final : public MatchingWindow {
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA in MHz",
                         {.range = ui::Range{0.1, 1000}, .prompt_name = "Label1"}};
  ui::Input txtpotenza{this,
                       "txtpotenza",
                       "POTENZA DEL TRASMETTITORE in WATT",
                       {.range = ui::Range{0.01, 1000}, .prompt_name = "Label2"}};
  ui::Input txtztx{this,
                   "txtztx",
                   "IMPEDENZA DEL TRASMETTITORE in OHM",
                   {.holds = "50", .range = ui::Range{5, 1000}, .prompt_name = "Label3"}};
  ui::Input txtr{this,
                 "txtr",
                 "RESISTENZA DI INGRESSO DEL LINEARE in OHM",
                 {.tooltip = "parte reale dell'impedenza serie di ingresso",
                  .range = ui::Range{0.1, 1000},
                  .prompt_name = "Label4"}};
  ui::Input txtx{this,
                 "txtx",
                 "REATTANZA DI INGRESSO in OHM",
                 {.tooltip = "negativa se capacitiva; vuoto se nulla",
                  .range = ui::Range{-1000, 1000},
                  .is_optional = true,
                  .prompt_name = "Label5"}};
  ui::Input txtq{
      this, "txtq", "FATTORE Q DELLA RETE", {.range = ui::Range{1, 50}, .prompt_name = "Label6"}};
  ui::Schematic drawing{this, "drawing", 68, 29};
  ui::Value lblc1{drawing, "lblc1"};
  ui::Value lblc2{drawing, "lblc2"};
  ui::Value lbll1{drawing, "lbll1"};
  ui::Plot plot{this, "plot", frequency_axis(), ratio_axis(), 44, 25};
  ui::Result lblros{this, "lblros"};
  ui::Result lblbanda{this, "lblbanda"};
  ui::Result lblcorrente{this, "lblcorrente"};
  ui::Result lbltensione{this, "lbltensione"};
  ui::Note Label7{this, "Label7",
                  "C1 E C2 SONO COMPENSATORI DI VALORE MASSIMO CIRCA DOPPIO: SI REGOLANO PER IL "
                  "MINIMO ROS VERSO IL TRASMETTITORE"};

 public:
  frmtrasm_lineare()
      : MatchingWindow{"frmtrasm_lineare",
                       "ADATTAMENTO TRA TRASMETTITORE E AMPLIFICATORE LINEARE",
                       "Label8",
                       {180, 180}} {
    draw();
    lay_out_with_coils(ui::column(
        ui::row(
            ui::column(ui::form(txtfrequenza, txtpotenza, txtztx, txtr, txtx, txtq), ui::stretch()),
            plot),
        drawing, lblros, lblbanda, lblcorrente, lbltensione, Label7));
  }

  void show_example() override { fill_in({"145", "3", "50", "1.5", "1", "8"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double line_y = 13;
    constexpr double shunt_y = line_y + 4;
    constexpr double ground_y = 26;
    constexpr ui::At output{9, line_y};
    constexpr ui::At shunt{26, line_y};
    constexpr ui::At base{44, line_y};
    constexpr ui::Transistor linear{{51, line_y}};
    constexpr ui::At to_linear{linear.collector.x, 7};
    drawing.box({2, line_y - 3}, {output.x, line_y + 3})
        .mark({5.5, line_y}, "TX")
        .wire({{5.5, line_y + 3}, {5.5, ground_y}})
        .ground({5.5, ground_y})
        .trimmer_capacitor(output, shunt)
        .named("C1", lblc1)
        .junction(shunt)
        .wire({shunt, {shunt.x, shunt_y}})
        .trimmer_capacitor({shunt.x, shunt_y}, {shunt.x, ground_y})
        .named("C2", lblc2)
        .ground({shunt.x, ground_y})
        .inductor(shunt, base)
        .named("L1", lbll1)
        .junction(base);
    drawing.inductor({base.x, 4}, base)
        .terminal({base.x, 4})
        .named("POLARIZZAZIONE", Side::above)
        .wire({base, linear.base})
        .npn(linear)
        .wire({linear.collector, to_linear})
        .arrow(to_linear, {to_linear.x + 5, to_linear.y})
        .mark({to_linear.x + 5, to_linear.y}, "LINEARE", Side::right)
        .wire({linear.emitter, {linear.emitter.x, ground_y}})
        .ground({linear.emitter.x, ground_y});
  }

  void compute() override {
    const Real frequency_mhz = txtfrequenza.value();
    const Real frequency_hz = frequency_mhz * 1e6;
    const Real power_w = txtpotenza.value();
    const Real transmitter_ohm = txtztx.value();
    const SeriesImpedance base{txtr.value(), txtx.value()};
    const Real q = txtq.value();
    require(base.resistance_ohm < 0.99 * transmitter_ohm, txtr,
            "LA RESISTENZA DI INGRESSO DEVE ESSERE MINORE DELL'IMPEDENZA DEL TRASMETTITORE");
    require_q(other_q_squared(transmitter_ohm, base.resistance_ohm, q) >= least_other_q_squared &&
                  q * base.resistance_ohm > base.reactance_ohm,
              std::max(least_q(transmitter_ohm, base.resistance_ohm),
                       base.reactance_ohm / base.resistance_ohm),
              txtq, txtr);
    const CoilAndTrimmers network = coil_and_trimmers({base.resistance_ohm, -base.reactance_ohm},
                                                      transmitter_ohm, q, frequency_hz, power_w);
    const auto ratio_at = [=](Real at_mhz) {
      return lines::standing_wave_ratio(
          impedance_towards_base_ohm(network, base, frequency_hz, at_mhz * 1e6), transmitter_ohm);
    };
    const auto told_at = [&](Real at_mhz) {
      return "ROS A " + fixed(at_mhz, 3) + " MHz = " + fixed(ratio_at(at_mhz), 2);
    };
    lblc1 = eng(network.series_f, "F");
    lblc2 = eng(network.shunt_f, "F");
    lbll1 = eng(network.inductance_h, "H");
    lblros = "ROS SENZA ADATTAMENTO = " +
             fixed(lines::standing_wave_ratio({base.resistance_ohm, base.reactance_ohm},
                                              transmitter_ohm),
                   1);
    lblbanda = told_at(0.98 * frequency_mhz) + "   -   " + told_at(1.02 * frequency_mhz);
    lblcorrente = "CORRENTE RF IN BASE = " + fixed(network.coil_current_a, 2) + " A EFF.";
    lbltensione = "TENSIONE RF DI PICCO SU C2 = " + fixed(network.shunt_peak_v, 0) + " VOLT";
    plot.curve(ratio_at, 0.95 * frequency_mhz, 1.05 * frequency_mhz)
        .marker(frequency_mhz, plain(frequency_mhz) + " MHz");
  }
};

const ui::Registration<frmtrasm_lineare> registration{"frmtrasm_lineare"};

}  // namespace

}  // namespace eterlab::transistors
