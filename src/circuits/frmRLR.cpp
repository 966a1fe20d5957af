#include "circuits/circuit_drawing.h"
#include "circuits/impedance.h"
#include "circuits/impedance_parts.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

constexpr CircuitPart part_r1{CircuitPart::Kind::resistor, "R1"};
constexpr CircuitPart part_r2{CircuitPart::Kind::resistor, "R2"};

// A real coil damped by a resistor.
class frmRLR final : public ui::Calculator {
  ui::Input txtfrequenza{this, "txtfrequenza", frequency_prompt, {.range = frequency_range}};
  ui::Input txtohm{this, "txtohm", "RESISTENZA DELLA BOBINA in OHM"};
  ui::Input txtinduttanza{this, "txtinduttanza", inductance_prompt};
  ui::Input txtohm2{this, "txtohm2", "RESISTENZA IN PARALLELO in OHM"};
  ImpedanceResult impedance{this};
  CircuitDrawing drawing{this, "drawing", {{}, {{part_r1, part_l}, {part_r2}}}};

 public:
  frmRLR() : Calculator{"frmRLR", "R E L IN SERIE CON RESISTENZA IN PARALLELO"} {
    lay_out(ui::column(
        ui::row(ui::column(ui::form(txtfrequenza, txtohm, txtinduttanza, txtohm2), ui::stretch()),
                drawing),
        impedance));
  }

  void show_example() override { fill_in({"5", "5", "10", "1000"}); }

 private:
  void compute() override {
    const Real frequency_hz = hertz(txtfrequenza);
    const Real coil_resistance_ohm = txtohm.value();
    const Real inductance_h = henry(txtinduttanza);
    const Real damping_ohm = txtohm2.value();
    impedance =
        parallel(coil_resistance_ohm + inductor_ohm(frequency_hz, inductance_h), damping_ohm);
    drawing.show(frequency_hz, {coil_resistance_ohm, inductance_h, damping_ohm});
  }
};

const ui::Registration<frmRLR> registration{"frmRLR"};

}  // namespace

}  // namespace eterlab::circuits
