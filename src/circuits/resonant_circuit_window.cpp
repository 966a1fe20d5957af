#include "circuits/resonant_circuit_window.h"

#include "common/number_text.h"

namespace eterlab::circuits {

ResonantCircuitWindow::ResonantCircuitWindow(const ResonantCircuit& circuit)
    : Calculator{circuit.window, circuit.title},
      circuit_{circuit},
      drawing{this, "drawing", circuit.circuit} {
  lblrisonanza.reserve("FREQUENZA DI RISONANZA = 999,9 MHz");
  lay_out(ui::column(
      ui::row(ui::column(ui::form(txtfrequenza, txtinduttanza, txtcapacita, txtohm), ui::stretch()),
              drawing),
      ui::row(ui::column(impedance, lblrisonanza, lblq, lblbanda, ui::stretch()), plot)));
}

void ResonantCircuitWindow::compute() {
  const Real frequency_hz = hertz(txtfrequenza);
  const Real inductance_h = henry(txtinduttanza);
  const Real capacitance_f = farad(txtcapacita);
  const Real resistance_ohm = txtohm.value();
  const auto impedance_ohm = [=, this](Real at_hz) {
    return circuit_.impedance_ohm(at_hz, inductance_h, capacitance_f, resistance_ohm);
  };
  impedance = impedance_ohm(frequency_hz);
  const Selectivity tank = circuit_.selectivity(inductance_h, capacitance_f, resistance_ohm);
  lblrisonanza = "FREQUENZA DI RISONANZA = " + eng(tank.frequency_hz, "Hz");
  lblq = "Q = " + sig(tank.quality_factor, 4);
  lblbanda = "BANDA PASSANTE = " + eng(tank.bandwidth_hz, "Hz");
  drawing.show(frequency_hz, {inductance_h, capacitance_f, resistance_ohm});

  const Real from_hz = tank.frequency_hz / 3;
  const Real to_hz = tank.frequency_hz * 3;
  plot.curve([impedance_ohm](Real at_hz) { return abs(impedance_ohm(at_hz)); }, from_hz, to_hz);
  if (frequency_hz >= from_hz && frequency_hz <= to_hz) {
    plot.marker(frequency_hz, eng(frequency_hz, "Hz"));
  }
}

}  // namespace eterlab::circuits
