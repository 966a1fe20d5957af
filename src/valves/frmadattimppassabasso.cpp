#include <string>

#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"
#include "valves/pi_network.h"

namespace eterlab::valves {

namespace {

constexpr double greatest_quality_factor = 100;

// The pi network between a transmitter's valve and the antenna.
class frmadattimppassabasso final : public ui::Calculator {
  ui::Input txtra{this,
                  "txtra",
                  "IMPEDENZA ANODICA in Ohm",
                  {.range = ui::Range{10, 50000}, .prompt_name = "Label1"}};
  ui::Input txtz{this,
                 "txtz",
                 "IMPEDENZA DI ANTENNA in Ohm",
                 {.holds = "50", .range = ui::Range{1, 5000}, .prompt_name = "Label2"}};
  ui::Input txtf{
      this, "txtf", "FREQUENZA in MHz", {.range = ui::Range{0.1, 500}, .prompt_name = "Label3"}};
  ui::Input txtq{this,
                 "txtq",
                 "Q A CARICO",
                 {.tooltip = "di solito da 10 a 15",
                  .holds = "12",
                  .range = ui::Range{1, greatest_quality_factor},
                  .prompt_name = "Label4"}};
  ui::Input txtcv{this,
                  "txtcv",
                  "CAPACITA' DELLA VALVOLA in pF (FACOLTATIVA)",
                  {.tooltip = "capacita' anodica piu' quella dei collegamenti: si toglie da C1",
                   .range = ui::Range{0, 1000},
                   .is_optional = true,
                   .prompt_name = "Label5"}};
  ui::Input txtp{this,
                 "txtp",
                 "POTENZA in W (FACOLTATIVA)",
                 {.range = ui::Range{0, 10000}, .is_optional = true, .prompt_name = "Label6"}};
  ui::Result lblc1{this, "lblc1"};
  ui::Result lbll{this, "lbll"};
  ui::Result lblc2{this, "lblc2"};
  ui::Result lblarmonica{this, "lblarmonica"};
  ui::Result lblv1{this, "lblv1"};
  ui::Result lblv2{this, "lblv2"};
  ui::Result lblcorrente{this, "lblcorrente"};
  ui::Schematic drawing{this, "drawing", 98, 25};
  ui::Value lbldisra{drawing, "lbldisra"};
  ui::Value lbldisc1{drawing, "lbldisc1", "C1"};
  ui::Value lbldisl{drawing, "lbldisl", "L"};
  ui::Value lbldisc2{drawing, "lbldisc2", "C2"};
  ui::Value lbldisz{drawing, "lbldisz"};
  ui::Note Label7{
      this, "Label7",
      "TRA ANODO E RETE OCCORRE SEMPRE UN CONDENSATORE DI BLOCCO; PER SICUREZZA METTERE "
      "UN'IMPEDENZA RF TRA USCITA E MASSA"};
  ui::CompanionButton cmdchiamabobine{
      *this,
      "cmdchiamabobine",
      "DATI COSTRUZIONE BOBINE",
      {.window = "frmbobine", .caller_corner = {180, 180}, .corner = {4100, 2800}}};
  ui::CompanionButton cmdchiamaimpanodica{
      *this,
      "cmdchiamaimpanodica",
      "CALCOLO IMPEDENZA ANODICA",
      {.window = "frmimpanodica", .caller_corner = {180, 180}, .corner = {4100, 2800}}};

 public:
  frmadattimppassabasso()
      : Calculator{"frmadattimppassabasso", "ADATTATORE A PI-GRECO TRA VALVOLA E ANTENNA"} {
    name_hint("Label8");
    draw();
    lay_out(ui::column(
                ui::row(ui::column(ui::form(txtra, txtz, txtf, txtq, txtcv, txtp), ui::stretch()),
                        ui::column(lblc1, lbll, lblc2, lblarmonica, lblv1, lblv2, lblcorrente,
                                   ui::stretch())),
                drawing, Label7),
            {&cmdchiamabobine, &cmdchiamaimpanodica}, 114);
  }

  void show_example() override { fill_in({"2846", "50", "7.05", "12", "8", "50"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double line = 7;
    constexpr double ground = 19.5;
    constexpr ui::At valve{12, 14};
    constexpr double valve_radius = 4.9;
    constexpr double stray_x = 22;
    constexpr double stray_y = 12;
    constexpr double c1_x = 40;
    constexpr double c2_x = 63;
    constexpr double antenna_x = 71;
    drawing.circle(valve, valve_radius)
        .mark(valve, "VALVOLA")
        .wire({{valve.x, valve.y - valve_radius}, {valve.x, line}, {stray_x, line}})
        .wire({{valve.x, valve.y + valve_radius}, {valve.x, ground}})
        .ground({valve.x, ground})
        .label(lbldisra, {valve.x + 3, line}, Side::above);
    drawing.dashed({{stray_x, line}, {stray_x, stray_y}})
        .capacitor({stray_x, stray_y}, {stray_x, stray_y + 0.7})
        .named("Cv", Side::right)
        .dashed({{stray_x, stray_y + 0.7}, {stray_x, ground}})
        .ground({stray_x, ground})
        .junction({stray_x, line});
    drawing.capacitor({stray_x, line}, {c1_x, line})
        .named("C BLOCCO", Side::below)
        .junction({c1_x, line})
        .variable_capacitor({c1_x, line}, {c1_x, ground})
        .named(lbldisc1)
        .ground({c1_x, ground})
        .inductor({c1_x, line}, {c2_x, line})
        .named(lbldisl)
        .junction({c2_x, line})
        .variable_capacitor({c2_x, line}, {c2_x, ground})
        .named(lbldisc2)
        .ground({c2_x, ground})
        .wire({{c2_x, line}, {antenna_x, line}})
        .antenna({antenna_x, line})
        .label(lbldisz, {antenna_x + 1, line}, Side::right);
  }

  void compute() override {
    constexpr double pico = 1e-12;
    const PiNetworkTask task{txtra.value(), txtz.value(), 1e6 * txtf.value(), txtq.value()};
    if (!can_match(task)) {
      const Real least = least_quality_factor(task.anode_ohm, task.antenna_ohm);
      require(least > greatest_quality_factor, txtq,
              "Q TROPPO BASSO: USARE ALMENO " + fixed(least, 0));
      require(false, txtra, "RAPPORTO TRA LE IMPEDENZE TROPPO GRANDE PER UNA SOLA RETE");
    }
    const circuits::PiNetwork network = pi_network(task);
    const Real mounted_f = network.input_f - pico * txtcv.value();
    require(mounted_f > 0, txtq, "LA CAPACITA' DELLA VALVOLA SUPERA C1: AUMENTARE IL Q");
    lbldisra = plain(task.anode_ohm) + " Ohm";
    lbldisc1 = eng(mounted_f, "F");
    lbldisl = eng(network.inductance_h, "H");
    lbldisc2 = eng(network.output_f, "F");
    lbldisz = plain(task.antenna_ohm) + " Ohm";
    lblc1 = "C1 = " + lbldisc1.content();
    lbll = "L = " + lbldisl.content();
    lblc2 = "C2 = " + lbldisc2.content();
    lblarmonica =
        "ATTENUAZIONE 2a ARMONICA = " + fixed(second_harmonic_attenuation_db(task), 1) + " dB";
    if (const Real power_w = txtp.value(); power_w > 0) {
      const PiNetworkStress stress = pi_network_stress(task, power_w);
      lblv1 = "TENSIONE DI PICCO SU C1 = " + fixed(stress.anode_peak_v, 0) + " V";
      lblv2 = "TENSIONE DI PICCO SU C2 = " + fixed(stress.antenna_peak_v, 0) + " V";
      lblcorrente = "CORRENTE NELLA BOBINA = " + fixed(stress.coil_a, 2) + " A";
    }
  }
};

const ui::Registration<frmadattimppassabasso> registration{"frmadattimppassabasso"};

}  // namespace

}  // namespace eterlab::valves
