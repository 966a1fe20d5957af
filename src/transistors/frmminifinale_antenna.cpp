#include "common/number_text.h"
#include "transistors/matching_window.h"
#include "transistors/stage_matching.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::transistors {

namespace {

// The pi network between the final transistor of a small transmitter and its antenna.
class frmminifinale_antenna final : public MatchingWindow {
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA in MHz",
                         {.range = ui::Range{0.1, 1000}, .prompt_name = "Label1"}};
  ui::Input txtvcc{this,
                   "txtvcc",
                   "TENSIONE DI ALIMENTAZIONE in VOLT",
                   {.range = ui::Range{1, 100}, .prompt_name = "Label2"}};
  ui::Input txtpotenza{this,
                       "txtpotenza",
                       "POTENZA DI USCITA in WATT",
                       {.range = ui::Range{0.01, 20}, .prompt_name = "Label3"}};
  ui::Input txtza{this,
                  "txtza",
                  "IMPEDENZA DELL'ANTENNA in OHM",
                  {.holds = "50", .range = ui::Range{5, 1000}, .prompt_name = "Label4"}};
  ui::Input txtq{this,
                 "txtq",
                 "FATTORE Q DELLA RETE",
                 {.tooltip = "riferito al lato di resistenza maggiore; in pratica da 2 a 5",
                  .range = ui::Range{0.5, 20},
                  .prompt_name = "Label5"}};
  ui::Schematic drawing{this, "drawing", 66, 30};
  ui::Value lblzrf{drawing, "lblzrf"};
  ui::Value lblc3{drawing, "lblc3"};
  ui::Value lblc1{drawing, "lblc1"};
  ui::Value lbll1{drawing, "lbll1"};
  ui::Value lblc2{drawing, "lblc2"};
  ui::Result lblcarico{this, "lblcarico"};
  ui::Result lblassorbita{this, "lblassorbita"};
  ui::Result lblbobina{this, "lblbobina"};
  ui::Result lblarmonica{this, "lblarmonica"};
  ui::Result lblcommerciali{this, "lblcommerciali"};
  ui::Note Label6{
      this, "Label6",
      "C1 COMPRENDE LA CAPACITA' DI USCITA DEL TRANSISTOR. L1 SI RITOCCA PER LA MASSIMA "
      "USCITA. SE L'ATTENUAZIONE DELLA SECONDA ARMONICA E' BASSA AUMENTARE Q; UN "
      "FILTRO PASSA BASSO VERSO L'ANTENNA OCCORRE SEMPRE"};

 public:
  frmminifinale_antenna()
      : MatchingWindow{"frmminifinale_antenna",
                       "ADATTAMENTO TRA STADIO FINALE QRP E ANTENNA",
                       "Label7",
                       {400, 300}} {
    draw();
    lay_out_with_coils(
        ui::column(ui::form(txtfrequenza, txtvcc, txtpotenza, txtza, txtq), drawing, lblcarico,
                   lblassorbita, lblbobina, lblarmonica, lblcommerciali, Label6),
        width_for_standard_values);
  }

  void show_example() override { fill_in({"7.03", "12", "2", "50", "3"}); }

 private:
  void draw() {
    constexpr double line_y = 15.5;
    constexpr double shunt_y = line_y + 3;
    constexpr double ground_y = 27;
    constexpr ui::At collector{11, line_y};
    constexpr ui::At input{27, line_y};
    constexpr ui::At output{44, line_y};
    constexpr ui::At antenna{60, line_y};
    draw_supply(drawing, collector, "Z RF", lblzrf, "100 nF");
    draw_final_stage(drawing, collector, ground_y);
    drawing.capacitor(collector, input)
        .named("C3", lblc3)
        .junction(input)
        .wire({input, {input.x, shunt_y}})
        .capacitor({input.x, shunt_y}, {input.x, ground_y})
        .named("C1", lblc1)
        .ground({input.x, ground_y})
        .inductor(input, output)
        .named("L1", lbll1)
        .junction(output)
        .wire({output, {output.x, shunt_y}})
        .capacitor({output.x, shunt_y}, {output.x, ground_y})
        .named("C2", lblc2)
        .ground({output.x, ground_y})
        .wire({output, antenna})
        .antenna(antenna);
  }

  void compute() override {
    constexpr double saturation_v = 0.5;
    const Real supply_v = txtvcc.value();
    const Real power_w = txtpotenza.value();
    const Real q = txtq.value();
    const Real load_ohm = collector_load_ohm(supply_v, saturation_v, power_w);
    const circuits::PiTerminations ends{load_ohm, txtza.value(), txtfrequenza.value() * 1e6};
    require_q(other_q_squared(ends.higher_ohm(), ends.lower_ohm(), q) >= least_other_q_squared,
              least_q(ends.higher_ohm(), ends.lower_ohm()), txtq, txtpotenza);
    const circuits::PiNetwork exact = pi_network(ends, q);
    const StandardPiNetwork standard = with_standard_values(ends, exact);
    lblc1 = eng(exact.input_f, "F");
    lbll1 = eng(exact.inductance_h, "H");
    lblc2 = eng(exact.output_f, "F");
    lblzrf = eng(feed_choke_h(load_ohm, ends.frequency_hz), "H");
    lblc3 = eng(blocking_capacitor_f(load_ohm, ends.frequency_hz), "F");
    lblcarico = "CARICO DI COLLETTORE = " + fixed(load_ohm, 1) + " Ohm";
    lblassorbita = "CORRENTE ASSORBITA IN CLASSE B = " +
                   fixed(1000 * class_b_current_a(supply_v, saturation_v, load_ohm), 0) + " mA";
    lblbobina = "CORRENTE RF IN L1 = " + fixed(pi_coil_current_a(ends, q, power_w), 2) + " A EFF.";
    lblarmonica = "ATTENUAZIONE DELLA SECONDA ARMONICA = " +
                  fixed(second_harmonic_attenuation_db(ends, exact), 1) + " dB";
    lblcommerciali = "CON VALORI COMMERCIALI: C1 = " + eng(standard.parts.input_f, "F") +
                     "   C2 = " + eng(standard.parts.output_f, "F") +
                     "   L1 = " + eng(standard.parts.inductance_h, "H") +
                     "   ROS = " + fixed(standard.standing_wave_ratio, 2);
  }
};

const ui::Registration<frmminifinale_antenna> registration{"frmminifinale_antenna"};

}  // namespace

}  // namespace eterlab::transistors
