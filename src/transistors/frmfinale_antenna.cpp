#include "common/number_text.h"
#include "transistors/matching_window.h"
#include "transistors/stage_matching.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::transistors {

namespace {

// A power transistor, whose collector wants a few ohm, matched to its antenna by two trimmers.
class frmfinale_antenna final : public MatchingWindow {
  ui::Input txtfrequenza{this,
                         "txtfrequenza",
                         "FREQUENZA in MHz",
                         {.range = ui::Range{0.1, 1000}, .prompt_name = "Label1"}};
  ui::Input txtvcc{this,
                   "txtvcc",
                   "TENSIONE DI ALIMENTAZIONE in VOLT",
                   {.range = ui::Range{3, 150}, .prompt_name = "Label2"}};
  ui::Input txtpotenza{this,
                       "txtpotenza",
                       "POTENZA DI USCITA in WATT",
                       {.range = ui::Range{0.1, 2000}, .prompt_name = "Label3"}};
  ui::Input txtcout{this,
                    "txtcout",
                    "CAPACITA' DI USCITA DEL TRANSISTOR in pF",
                    {.tooltip = "COB dei dati del costruttore; vuoto se non nota",
                     .range = ui::Range{0, 10000},
                     .is_optional = true,
                     .prompt_name = "Label4"}};
  ui::Input txtza{this,
                  "txtza",
                  "IMPEDENZA DELL'ANTENNA in OHM",
                  {.holds = "50", .range = ui::Range{5, 1000}, .prompt_name = "Label5"}};
  ui::Input txtq{this,
                 "txtq",
                 "FATTORE Q DELLA RETE",
                 {.tooltip = "il minore possibile: meno perdite, banda piu' larga",
                  .range = ui::Range{1, 50},
                  .prompt_name = "Label6"}};
  ui::Schematic drawing{this, "drawing", 70, 31};
  ui::Value lblzrf{drawing, "lblzrf"};
  ui::Value lbll1{drawing, "lbll1"};
  ui::Value lblc1{drawing, "lblc1"};
  ui::Value lblc2{drawing, "lblc2"};
  ui::Result lblcarico{this, "lblcarico"};
  ui::Result lblassorbita{this, "lblassorbita"};
  ui::Result lblbobina{this, "lblbobina"};
  ui::Result lbltensione{this, "lbltensione"};
  ui::Note Label7{this, "Label7",
                  "C1 E C2 SONO COMPENSATORI DI VALORE MASSIMO CIRCA DOPPIO. TRA C2 E ANTENNA "
                  "INSERIRE SEMPRE UN FILTRO PASSA BASSO"};

 public:
  frmfinale_antenna()
      : MatchingWindow{"frmfinale_antenna",
                       "ADATTAMENTO TRA STADIO FINALE DI POTENZA E ANTENNA",
                       "Label8",
                       {180, 180}} {
    draw();
    lay_out_with_coils(ui::column(ui::form(txtfrequenza, txtvcc, txtpotenza, txtcout, txtza, txtq),
                                  drawing, lblcarico, lblassorbita, lblbobina, lbltensione,
                                  Label7));
  }

  void show_example() override { fill_in({"145", "12.5", "25", "90", "50", "6"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double line_y = 15.5;
    constexpr double shunt_y = line_y + 4;
    constexpr double ground_y = 28;
    constexpr double plates_y = (shunt_y + ground_y) / 2;
    constexpr ui::At collector{11, line_y};
    constexpr ui::At output_capacitance{20, line_y};
    constexpr ui::At shunt{42, line_y};
    constexpr ui::At antenna{64, line_y};
    draw_supply(drawing, collector, "Z RF", lblzrf, "");
    draw_final_stage(drawing, collector, ground_y);
    // Dashed: it is inside the transistor.
    drawing.wire({collector, output_capacitance})
        .junction(output_capacitance)
        .dashed({output_capacitance, {output_capacitance.x, plates_y - 0.35}})
        .dashed({{output_capacitance.x, plates_y + 0.35}, {output_capacitance.x, ground_y}})
        .capacitor({output_capacitance.x, plates_y - 0.35}, {output_capacitance.x, plates_y + 0.35})
        .named("C OUT", Side::right)
        .ground({output_capacitance.x, ground_y});
    drawing.inductor(output_capacitance, shunt)
        .named("L1", lbll1)
        .junction(shunt)
        .wire({shunt, {shunt.x, shunt_y}})
        .trimmer_capacitor({shunt.x, shunt_y}, {shunt.x, ground_y})
        .named("C1", lblc1)
        .ground({shunt.x, ground_y})
        .trimmer_capacitor(shunt, {58, line_y})
        .named("C2", lblc2)
        .wire({{58, line_y}, antenna})
        .antenna(antenna);
  }

  void compute() override {
    constexpr double saturation_v = 1;
    const Real frequency_hz = txtfrequenza.value() * 1e6;
    const Real supply_v = txtvcc.value();
    const Real power_w = txtpotenza.value();
    const Real antenna_ohm = txtza.value();
    const Real q = txtq.value();
    const Real load_ohm = collector_load_ohm(supply_v, saturation_v, power_w);
    const SeriesImpedance collector =
        seen_past_output_capacitance(load_ohm, txtcout.value() * 1e-12, frequency_hz);
    require(collector.resistance_ohm < 0.99 * antenna_ohm, txtpotenza,
            "IL CARICO DI COLLETTORE NON E' MINORE DELL'IMPEDENZA D'ANTENNA: USARE LO STADIO "
            "FINALE QRP");
    require_q(other_q_squared(antenna_ohm, collector.resistance_ohm, q) >= least_other_q_squared,
              least_q(antenna_ohm, collector.resistance_ohm), txtq, txtpotenza);
    const CoilAndTrimmers network =
        coil_and_trimmers(collector, antenna_ohm, q, frequency_hz, power_w);
    lbll1 = eng(network.inductance_h, "H");
    lblc1 = eng(network.shunt_f, "F");
    lblc2 = eng(network.series_f, "F");
    lblzrf = eng(feed_choke_h(load_ohm, frequency_hz), "H");
    lblcarico = "CARICO DI COLLETTORE = " + fixed(load_ohm, 2) + " Ohm";
    lblassorbita = "CORRENTE ASSORBITA IN CLASSE B = " +
                   fixed(class_b_current_a(supply_v, saturation_v, load_ohm), 2) + " A";
    lblbobina = "CORRENTE RF IN L1 = " + fixed(network.coil_current_a, 2) + " A EFF.";
    lbltensione = "TENSIONE RF DI PICCO SU C1 = " + fixed(network.shunt_peak_v, 0) + " VOLT";
  }
};

const ui::Registration<frmfinale_antenna> registration{"frmfinale_antenna"};

}  // namespace

}  // namespace eterlab::transistors
