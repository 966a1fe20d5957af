#include "circuits/circuit_drawing.h"
#include "circuits/impedance.h"
#include "circuits/impedance_parts.h"
#include "circuits/resonance.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

// A series trap across a resistance: a load with a notch.
class frmCircuitiRLC final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", frequency_prompt, {.range = frequency_range}};
  ui::Input txtcapacita{this, "txtcapacita", capacitance_prompt};
  ui::Input txtinduttanza{this, "txtinduttanza", inductance_prompt};
  ui::Input txtohm{this, "txtohm", resistance_prompt};
  ui::Result lblrisonanza{this, "lblrisonanza"};
  ImpedanceResult impedance{this};
  CircuitDrawing drawing{this, "drawing", {{}, {{part_c, part_l}, {part_r}}}};

 public:
  frmCircuitiRLC() : Calculator{"frmCircuitiRLC", "C E L IN SERIE CON RESISTENZA IN PARALLELO"} {
    lay_out(ui::column(
        ui::row(
            ui::column(ui::form(txtfrequenza, txtcapacita, txtinduttanza, txtohm), ui::stretch()),
            drawing),
        lblrisonanza, impedance));
  }

  void load() override {
    centre_on_screen();
    Calculator::load();
  }

  void show_example() override { fill_in({"5", "100", "10", "50"}); }

 private:
  void compute() override {
    const Real frequency_hz = hertz(txtfrequenza);
    const Real capacitance_f = farad(txtcapacita);
    const Real inductance_h = henry(txtinduttanza);
    const Real resistance_ohm = txtohm.value();
    lblrisonanza = "FREQUENZA DI RISONANZA = " +
                   eng(tuned_circuit(inductance_h, capacitance_f).frequency_hz, "Hz");
    impedance = parallel(trap_ohm(frequency_hz, inductance_h, capacitance_f), resistance_ohm);
    drawing.show(frequency_hz, {capacitance_f, inductance_h, resistance_ohm});
  }
};

const ui::Registration<frmCircuitiRLC> registration{"frmCircuitiRLC"};

}  // namespace

}  // namespace eterlab::circuits
