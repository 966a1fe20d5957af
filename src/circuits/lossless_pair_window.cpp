#include "circuits/lossless_pair_window.h"

#include "circuits/resonance.h"
#include "common/number_text.h"

namespace eterlab::circuits {

LosslessPairWindow::LosslessPairWindow(const Connection& connection)
    : Calculator{connection.window, connection.title},
      connection_{connection},
      drawing{this, "drawing", connection.circuit} {
  lay_out(ui::column(
              ui::row(ui::column(ui::form(txtfrequenza, txtinduttanza, txtcapacita), ui::stretch()),
                      drawing),
              lblxl, lblxc, lblreattanza, lblequivale, lblrisonanza),
          {&cmdchiamabobine});
}

void LosslessPairWindow::compute() {
  const Real frequency_hz = hertz(txtfrequenza);
  const Real inductance_h = henry(txtinduttanza);
  const Real capacitance_f = farad(txtcapacita);
  const LosslessPair pair = connection_.pair(frequency_hz, inductance_h, capacitance_f);
  lblxl = "XL = " + eng(pair.inductive_ohm, "Ohm");
  lblxc = "XC = " + eng(pair.capacitive_ohm, "Ohm");
  if (!pair.reactance_ohm) {
    lblreattanza = connection_.at_resonance;
  } else {
    const Real reactance_ohm = abs(*pair.reactance_ohm);
    const bool is_inductive = *pair.reactance_ohm > 0;
    lblreattanza =
        "REATTANZA = " + eng(reactance_ohm, "Ohm") + (is_inductive ? " INDUTTIVA" : " CAPACITIVA");
    lblequivale =
        "EQUIVALE A " + (is_inductive
                             ? eng(inductance_of_reactance_h(frequency_hz, reactance_ohm), "H")
                             : eng(capacitance_of_reactance_f(frequency_hz, reactance_ohm), "F"));
  }
  lblrisonanza = "FREQUENZA DI RISONANZA = " +
                 eng(tuned_circuit(inductance_h, capacitance_f).frequency_hz, "Hz");
  drawing.show(frequency_hz, {inductance_h, capacitance_f});
}

}  // namespace eterlab::circuits
