#include <string_view>

#include "circuits/impedance_parts.h"
#include "circuits/quality_factor.h"
#include "circuits/resonance.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

constexpr double least_q = 1.1;
constexpr std::string_view q_prompt = "FATTORE DI MERITO Q";
constexpr ui::Range q_range{least_q, 5000};

// What a tank is at resonance, in parallel and in series.
class frmimprisonanza final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"E' NOTO IL Q DELLA BOBINA", "E' NOTA LA RESISTENZA SERIE DELLA BOBINA"}};
  ui::Input txtinduttanza{
      this, "txtinduttanza", inductance_prompt, {.range = ui::Range{0.001, 1'000'000}}};
  ui::Input txtcapacita{
      this, "txtcapacita", capacitance_prompt, {.range = ui::Range{0.1, 10'000'000}}};
  ui::Input txtinput{this, "txtinput", q_prompt, {.range = q_range, .prompt_name = "lblinput"}};
  ui::Schematic drawing{this, "drawing", 54, 20};
  ui::Value lblzp{drawing, "lblzp"};
  ui::Value lblzs{drawing, "lblzs"};
  ui::Result lblfrequenza{this, "lblfrequenza"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lblparallelo{this, "lblparallelo"};
  ui::Result lblserie{this, "lblserie"};
  ui::Result lblbanda{this, "lblbanda"};

 public:
  frmimprisonanza() : Calculator{"frmimprisonanza", "IMPEDENZA DI UN CIRCUITO L C ALLA RISONANZA"} {
    Option1.preset(0);
    draw();
    lay_out(ui::column(
        ui::row(ui::column(Option1, ui::form(txtinduttanza, txtcapacita, txtinput), ui::stretch()),
                drawing),
        lblfrequenza, lblreattanza, lblparallelo, lblserie, lblbanda));

    Option1.on_click([this](int) {
      if (is_q_known()) {
        txtinput.ask_anew(q_prompt, q_range);
      } else {
        txtinput.ask_anew("RESISTENZA SERIE in OHM", {0.0001, 100'000});
      }
    });
  }

  void show_example() override { fill_in({"2", "100", "120"}); }

 private:
  [[nodiscard]] bool is_q_known() const { return Option1.selected() == 0; }

  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double top = 4;
    constexpr double bottom = 14;
    constexpr double middle = (top + bottom) / 2;
    constexpr double beside = 1.8;  // a capacitor
    constexpr double terminal = 10;
    constexpr double coil = 15;
    constexpr double capacitor = 22;
    drawing.terminal({terminal, top})
        .terminal({terminal, bottom})
        .wire({{terminal, top}, {capacitor, top}})
        .wire({{terminal, bottom}, {capacitor, bottom}})
        .inductor({coil, top}, {coil, bottom})
        .named("L", Side::right)
        .capacitor({capacitor, top}, {capacitor, bottom})
        .mark({capacitor + beside, middle}, "C", Side::right)
        .junction({coil, top})
        .junction({coil, bottom})
        .label(lblzp, {(terminal + capacitor) / 2, bottom + 2.5}, Side::below);

    constexpr double start = 37;
    constexpr double end = 47;
    drawing.terminal({start, top})
        .terminal({start, bottom})
        .inductor({start, top}, {end, top})
        .named("L", Side::above)
        .capacitor({end, top}, {end, bottom})
        .mark({end + beside, middle}, "C", Side::right)
        .wire({{end, bottom}, {start, bottom}})
        .label(lblzs, {(start + end) / 2, bottom + 2.5}, Side::below);
  }

  void compute() override {
    const TunedCircuit circuit = tuned_circuit(henry(txtinduttanza), farad(txtcapacita));
    const Real quality_factor =
        is_q_known() ? txtinput.value() : circuit.reactance_ohm / txtinput.value();
    advise(quality_factor >= least_q, txtinput, "RESISTENZA TROPPO ALTA: IL CIRCUITO NON RISUONA");
    const TankResistance tank = tank_resistance(circuit.reactance_ohm, quality_factor);

    lblzp = fixed(tank.parallel_ohm, 0) + " Ohm";
    lblzs = fixed(tank.series_ohm, 3) + " Ohm";
    lblfrequenza = "FREQUENZA DI RISONANZA = " + kilohertz_text(circuit.frequency_hz);
    lblreattanza = "XL = XC = " + fixed(circuit.reactance_ohm, 2) + " Ohm";
    lblparallelo = "IMPEDENZA DEL CIRCUITO PARALLELO = " + lblzp.content();
    lblserie = "IMPEDENZA DEL CIRCUITO SERIE = " + lblzs.content();
    lblbanda = "BANDA PASSANTE = " + kilohertz_text(circuit.frequency_hz / quality_factor) +
               "  (Q = " + fixed(quality_factor, 1) + ")";
  }
};

const ui::Registration<frmimprisonanza> registration{"frmimprisonanza"};

}  // namespace

}  // namespace eterlab::circuits
