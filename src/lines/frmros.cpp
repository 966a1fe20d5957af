#include "common/number_text.h"
#include "lines/standing_wave.h"
#include "ui/ui.h"

namespace eterlab::lines {

namespace {

// What a standing-wave ratio on a 50 ohm system says of the antenna, as the user types.
class frmros final : public ui::Window {
  ui::Note Label1{
      this, "Label1",
      "NOTO IL RAPPORTO DI ONDE STAZIONARIE E SUPPONENDO CHE LE IMPEDENZE DEL TX E DEL  "
      "CAVO SIANO  = 50 Ohm, SI DETERMINA L'IMPEDENZA DELL'ANTENNA ( CHE PUO' ESSERE "
      "PIU' ALTA O PIU' BASSA DI 50 ohm) E L'ENERGIA RIFLESSA E IRRADIATA."};
  ui::Label Label2{this, "Label2", "RAPPORTO DI ONDE STAZIONARIE :"};
  ui::TextBox txtros{this, "txtros", ui::tooltip("inserisci il ROS")};
  ui::Frame Frame1{this, "Frame1"};
  ui::Result lblimpedenza{Frame1, "lblimpedenza"};
  ui::Result lblwattriflessi{Frame1, "lblwattriflessi"};
  ui::Result lblwattirradiati{Frame1, "lblwattirradiati"};
  ui::Result lblcoeffriflessione{Frame1, "lblcoeffriflessione"};
  ui::Result lblreturnloss{Frame1, "lblreturnloss"};
  ui::Note lblpuntovirgola{this, "lblpuntovirgola",
                           "USARE IL PUNTO DEL TASTIERINO NUMERICO PER SEPARARE I DECIMALI"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmros()
      : Window{"frmros",
               "R.O.S  -  RETURN LOSS  -  IMPEDENZA E ENERGIA IRRADIATA IN RAPPORTO AL ROS"} {
    arrange(ui::column(Label1, ui::form(field(Label2, txtros)), lblpuntovirgola,
                       Frame1.arrange(ui::column(lblimpedenza, lblwattriflessi, lblwattirradiati,
                                                 lblcoeffriflessione, lblreturnloss)),
                       ui::buttons(cmdesci)),
            88);

    txtros.on_change([this] { txtros_change(); });
  }

  void show_example() override { txtros = "1.5"; }

 private:
  void txtros_change() {
    const Real standing_wave_ratio = txtros.number();
    if (standing_wave_ratio < 1) {
      Frame1.hide();
      return;
    }
    const Mismatch mismatch = mismatch_of(standing_wave_ratio);
    lblimpedenza = "IMPEDENZA DELL'ANTENNA =  " + fixed(mismatch.high_impedance_ohm, 1) + " o " +
                   fixed(mismatch.low_impedance_ohm, 1) + " ohm";
    lblwattriflessi =
        "PERCENTUALE DELL'ENERGIA RIFLESSA =  " + fixed(mismatch.reflected_percent, 1) + " %";
    lblwattirradiati =
        "PERCENTUALE DELL'ENERGIA IRRADIATA =  " + fixed(mismatch.radiated_percent, 2) + " %";
    lblcoeffriflessione =
        "COEFFICIENTE DI RIFLESSIONE = " + fixed(mismatch.reflection_coefficient, 2);
    lblreturnloss = mismatch.return_loss_db ? "RETURN LOSS = " + fixed(*mismatch.return_loss_db, 2)
                                            : "RETURN LOSS TENDENTE A INFINITO";
    Frame1.show();
  }
};

const ui::Registration<frmros> registration{"frmros"};

}  // namespace

}  // namespace eterlab::lines
