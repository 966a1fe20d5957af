#include "common/number_text.h"
#include "signals/radio_horizon.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

// How far an antenna at a height reaches by direct wave, as the user types.
class frmondadiretta final : public ui::Window {
  ui::Note Label1{this, "Label1",
                  "CONOSCENDO L'ALTEZZA DELL'ANTENNA SUL LIVELLO DEL MARE , SI PUO' CALCOLARE IN "
                  "VIA TEORICA LA DISTANZA COPERTA PER ONDA DIRETTA OPERANDO IN IN VHF - UHF"};
  ui::Label Label2{this, "Label2", "ALTEZZA IN MT. SUL LIVELLO DEL MARE"};
  ui::TextBox txtaltezza{this, "txtaltezza"};
  ui::Result lbldistanza{this, "lbldistanza"};
  ui::ExitButton cmdesci{this, "cmdesci", "C H I U D I"};

 public:
  frmondadiretta() : Window{"frmondadiretta", "DISTANZA DI COLLEGAMENTO PER ONDA DIRETTA"} {
    arrange(
        ui::column(Label1, ui::form(field(Label2, txtaltezza)), lbldistanza, ui::buttons(cmdesci)));

    txtaltezza.on_change([this] { txtaltezza_change(); });
  }

  void show_example() override { txtaltezza = "100"; }

 private:
  void txtaltezza_change() {
    constexpr double greatest_height_m = 5000;
    const Real height_m = txtaltezza.number();
    if (height_m == 0) {
      return;
    }
    if (height_m < 0) {
      refuse(txtaltezza, "MANCA DATO");
      return;
    }
    if (height_m > greatest_height_m) {
      refuse(txtaltezza, "ALTEZZA ECCESSIVA");
      return;
    }
    lbldistanza = "LA POSSIBILE DISTANZA E' DI KM: " + plain(radio_horizon_km(height_m));
  }
};

const ui::Registration<frmondadiretta> registration{"frmondadiretta"};

}  // namespace

}  // namespace eterlab::signals
