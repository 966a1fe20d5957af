#include <string>

#include "circuits/impedance_parts.h"
#include "circuits/resonance.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

enum Mode : int { find_inductance, find_capacitance, find_frequency };

// What tunes a circuit: the third of frequency, inductance and capacitance.
class frmvalinduttanza final : public ui::Calculator {
  ui::OptionArray Option1{
      this, "Option1", {"TROVARE L'INDUTTANZA", "TROVARE LA CAPACITA'", "TROVARE LA FREQUENZA"}};
  ui::InputArray txtinput{this, "txtinput", {"", ""}, {.prompt_name = "lblinput"}};
  ui::Result lbloutput{this, "lbloutput"};
  ui::Result lblreattanza{this, "lblreattanza"};
  ui::Result lbllambda{this, "lbllambda"};
  ui::Schematic drawing{this, "drawing", 34, 14};
  ui::Value lblvaloref{drawing, "lblvaloref"};
  ui::Value lblvalorel{drawing, "lblvalorel"};
  ui::Value lblvalorec{drawing, "lblvalorec"};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINE", {"frmbobine", {180, 180}, {4100, 2800}}};
  ui::CompanionButton cmdchiamatoroidi{*this,
                                       "cmdchiamatoroidi",
                                       "NUCLEI TOROIDALI  AMIDON",
                                       {"frmamidon", {180, 180}, {4100, 2800}}};

 public:
  frmvalinduttanza() : Calculator{"frmvalinduttanza", "SINTONIA DI UN CIRCUITO L C"} {
    Option1.preset(find_inductance);
    ask();
    draw();
    lay_out(ui::column(ui::row(ui::column(Option1, ui::form(txtinput), ui::stretch()), drawing),
                       lbloutput, lblreattanza, lbllambda),
            {&cmdchiamabobine, &cmdchiamatoroidi});
    Option1.on_click([this](int /*index*/) {
      ask();
      txtinput.clear();
    });
  }

  void show_example() override { fill_in({"7.1", "100"}); }

 private:
  void ask() {
    const bool knows_frequency = Option1.selected() != find_frequency;
    if (knows_frequency) {
      txtinput[0].ask("FREQUENZA in MHz :", frequency_range);
    } else {
      txtinput[0].ask("INDUTTANZA in uH :", ui::Range{});
    }
    const bool knows_inductance = Option1.selected() == find_capacitance;
    txtinput[1].ask(knows_inductance ? "INDUTTANZA in uH :" : "CAPACITA' in pF :");
  }

  void draw() {
    constexpr double left = 5;
    constexpr double right = 21;
    constexpr double top = 4;
    constexpr double bottom = 13;
    drawing.inductor({left, top}, {left, bottom})
        .named("L", lblvalorel)
        .capacitor({right, top}, {right, bottom})
        .named("C", lblvalorec)
        .wire({{left, top}, {right, top}})
        .wire({{left, bottom}, {right, bottom}})
        .label(lblvaloref, {(left + right) / 2, top}, ui::Schematic::Side::above);
  }

  [[nodiscard]] TunedCircuit tuned() const {
    switch (Option1.selected()) {
      case find_inductance:
        return tuned_by_inductance(hertz(txtinput[0]), farad(txtinput[1]));
      case find_capacitance:
        return tuned_by_capacitance(hertz(txtinput[0]), henry(txtinput[1]));
      default:
        return tuned_circuit(henry(txtinput[0]), farad(txtinput[1]));
    }
  }

  void compute() override {
    const TunedCircuit circuit = tuned();
    const std::string frequency = eng(circuit.frequency_hz, "Hz");
    const std::string inductance = eng(circuit.inductance_h, "H");
    const std::string capacitance = eng(circuit.capacitance_f, "F");
    switch (Option1.selected()) {
      case find_inductance:
        lbloutput = "INDUTTANZA = " + inductance;
        break;
      case find_capacitance:
        lbloutput = "CAPACITA' = " + capacitance;
        break;
      default:
        lbloutput = "FREQUENZA = " + frequency;
    }
    lblreattanza = "REATTANZA ALLA RISONANZA = " + eng(circuit.reactance_ohm, "Ohm");
    lbllambda = "LUNGHEZZA D'ONDA = " + sig(circuit.wavelength_m, 4) + " mt.";
    lblvaloref = "f = " + frequency;
    lblvalorel = inductance;
    lblvalorec = capacitance;
  }
};

const ui::Registration<frmvalinduttanza> registration{"frmvalinduttanza"};

}  // namespace

}  // namespace eterlab::circuits
