#include "antennas/dipoles/wire_antennas.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// The length of a wire that is resonant on a number of half waves.
class frmlungharmonica final : public ui::Window {
  ui::Note Label1{this, "Label1",
                  "UN' ANTENNA IN ARMONICA E'  SEMPRE UN PO'  PIU' LUNGA DEL CORRISPONDENTE NUMERO "
                  "DI MEZZE ONDE CHE LA COMPONGONO. L' ALIMENTAZIONE DEVE AVVENIRE AD 1/4 LAMBDA"};
  ui::Label lblnumero{this, "lblnumero", "NUMERO DI MEZZE ONDE"};
  ui::TextBox txtn{this, "txtn"};
  ui::Label lblf{this, "lblf", "FREQUENZA IN MHz"};
  ui::TextBox txtf{this, "txtf"};
  ui::Result lbllunghezza{this, "lbllunghezza"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola", "CALCOLA", ui::tooltip("abilita il calcolo")};
  ui::DoorButton cmdesci{this, "cmdesci", ui::tooltip("chiude l'applicazione")};

 public:
  frmlungharmonica() : Window{"frmlungharmonica", "LUNGHEZZA DI UNA ANTENNA IN ARMONICA"} {
    arrange(ui::column(Label1, ui::form(field(lblnumero, txtn), field(lblf, txtf)), lbllunghezza,
                       ui::buttons(cmdcalcola, cmdesci)));

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtn = "3";
    txtf = "14.2";
    cmdcalcola.click();
  }

 private:
  void cmdcalcola_click() {
    const Real frequency_mhz = txtf.number();
    const Real half_waves = txtn.number();
    if (half_waves * frequency_mhz <= 0) {
      refuse(txtf);
      return;
    }
    lbllunghezza =
        "L'ANTENNA E' LUNGA  " + fixed(harmonic_wire_m(half_waves, frequency_mhz), 2) + " METRI";
  }
};

const ui::Registration<frmlungharmonica> registration{"frmlungharmonica"};

}  // namespace

}  // namespace eterlab::antennas
