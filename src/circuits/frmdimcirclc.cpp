#include "circuits/proportioned_tank.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

// A well-proportioned coil and capacitor for a short-wave frequency, as the user types.
class frmdimcirclc final : public ui::Window {
  ui::Note Label1{this, "Label1",
                  "IN UN CIRCUITO RISONANTE ESISTONO INFINITE COMBINAZIONI DI VALORI L /C CHE "
                  "CONSENTONO DI OTTENERE UNA DETERMINATA FREQUENZA "};
  ui::Note Label2{
      this, "Label2",
      "IN TEORIA PUO'  ESSERE ADOTTATA QUALSIASI COMBINAZIONE MA PER IL MIGLIOR "
      "RENDIMENTO E' BENE MANTENERE UNA CERTA PROPORZIONE TRA  INDUTTANZA E CAPACITA'."};
  ui::Note Label4{
      this, "Label4",
      "IMPOSTATA LA FREQUENZA VERRANNO CALCOLATI I VALORI DI CAPACITA'  E INDUTTANZA. "};
  ui::Label Label3{this, "Label3", "FREQUENZA in MHz"};
  ui::TextBox txtfrequenza{this, "txtfrequenza", ui::tooltip("separare i decimali con il punto")};
  ui::Result lblcapacita{this, "lblcapacita"};
  ui::Result lblinduttanza{this, "lblinduttanza"};
  ui::Note Label5{this, "Label5", "LA VALIDITA' DEL CALCOLO E' LIMITATA ALLE H.F."};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmdimcirclc() : Window{"frmdimcirclc", "DIMENSIONAMENTO DEL CIRCUITO ACCORDATO L C"} {
    arrange(ui::column(Label1, Label2, Label4, ui::form(field(Label3, txtfrequenza)), lblcapacita,
                       lblinduttanza, Label5, ui::buttons(cmdesci)));
    txtfrequenza.on_change([this] { txtfrequenza_change(); });
  }

  void show_example() override { txtfrequenza = "7"; }

 private:
  void txtfrequenza_change() {
    const Real frequency_mhz = txtfrequenza.number();
    if (frequency_mhz == 0) {
      lblcapacita = "";
      lblinduttanza = "";
      return;
    }
    const Tank tank = proportioned_tank(frequency_mhz);
    lblcapacita = "LA CAPACITA' OTTIMALE E'  CIRCA pF " + fixed(tank.capacitance_pf, 1);
    lblinduttanza = "L'INDUTTANZA IN QUESTO CASO E' µH " + fixed(tank.inductance_uh, 1);
  }
};

const ui::Registration<frmdimcirclc> registration{"frmdimcirclc"};

}  // namespace

}  // namespace eterlab::circuits
