#include "circuits/circuit_drawing.h"
#include "circuits/impedance.h"
#include "circuits/impedance_parts.h"
#include "circuits/resonance.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

// A real coil with a capacitor across it.
class frmRLC final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", frequency_prompt, {.range = frequency_range}};
  ui::Input txtohm{this, "txtohm", "RESISTENZA DELLA BOBINA in OHM"};
  ui::Input txtinduttanza{this, "txtinduttanza", inductance_prompt};
  ui::Input txtcapacita{this, "txtcapacita", capacitance_prompt};
  ImpedanceResult impedance{this};
  ui::Result lblrisonanza{this, "lblrisonanza"};
  ui::Result lblimprisonanza{this, "lblimprisonanza"};
  CircuitDrawing drawing{this, "drawing", {{}, {{part_r, part_l}, {part_c}}}};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "COSTRUZIONE BOBINE", {"frmbobine", {400, 300}, {4100, 2800}}};

 public:
  frmRLC() : Calculator{"frmRLC", "R E L IN SERIE CON CAPACITA' IN PARALLELO"} {
    lay_out(
        ui::column(ui::row(ui::column(ui::form(txtfrequenza, txtohm, txtinduttanza, txtcapacita),
                                      ui::stretch()),
                           drawing),
                   impedance, lblrisonanza, lblimprisonanza),
        {&cmdchiamabobine});
  }

  void show_example() override { fill_in({"5", "5", "10", "100"}); }

 private:
  void compute() override {
    const Real frequency_hz = hertz(txtfrequenza);
    const Real coil_resistance_ohm = txtohm.value();
    const Real inductance_h = henry(txtinduttanza);
    const Real capacitance_f = farad(txtcapacita);
    impedance = parallel(coil_resistance_ohm + inductor_ohm(frequency_hz, inductance_h),
                         capacitor_ohm(frequency_hz, capacitance_f));
    if (const auto resonance =
            lossy_coil_resonance(coil_resistance_ohm, inductance_h, capacitance_f)) {
      lblrisonanza = "RISUONA A " + eng(resonance->frequency_hz, "Hz");
      lblimprisonanza = "IMPEDENZA ALLA RISONANZA = " + eng(resonance->resistance_ohm, "Ohm");
    } else {
      lblrisonanza = "IL CIRCUITO NON RISUONA";
    }
    drawing.show(frequency_hz, {coil_resistance_ohm, inductance_h, capacitance_f});
  }
};

const ui::Registration<frmRLC> registration{"frmRLC"};

}  // namespace

}  // namespace eterlab::circuits
