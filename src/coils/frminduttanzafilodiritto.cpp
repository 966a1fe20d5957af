#include "coils/straight_wire.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

constexpr std::string_view hint = "SEPARARE GLI EVENTUALI DECIMALI CON IL PUNTO";

// The inductance of a straight wire.
class frminduttanzafilodiritto final : public ui::Window {
  ui::Label lbldiametro{this, "lbldiametro", "DIAMETRO DEL CONDUTTORE IN MILLIMETRI"};
  ui::TextBox txtdiametro{this, "txtdiametro"};
  ui::Label lbllunghezza{this, "lbllunghezza", "LUNGHEZZA DEL CONDUTTORE IN METRI"};
  ui::TextBox txtlunghezza{this, "txtlunghezza"};
  ui::Result lblinduttanza{this, "lblinduttanza", hint};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cdmesci{this, "cdmesci"};

 public:
  frminduttanzafilodiritto()
      : Window{"frminduttanzafilodiritto", "CALCOLO DELL' INDUTTANZA DI UN CONDUTTORE RETTILINEO"} {
    arrange(ui::column(ui::form(field(lbldiametro, txtdiametro), field(lbllunghezza, txtlunghezza)),
                       lblinduttanza, ui::buttons(cmdcalcola, cdmesci)));
    show_hint();

    txtdiametro.on_change([this] { show_hint(); });
    txtlunghezza.on_change([this] { show_hint(); });
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtdiametro = "1";
    txtlunghezza = "0.05";
    cmdcalcola.click();
  }

 private:
  // One label for both: quiet as a hint, strong as a result.
  void show_hint() {
    lblinduttanza.set_role(ui::Label::Role::note);
    lblinduttanza = hint;
  }

  void cmdcalcola_click() {
    const Real diameter_mm = txtdiametro.number();
    const Real length_m = txtlunghezza.number();
    if (diameter_mm * length_m <= 0) {
      refuse(txtlunghezza);
      return;
    }
    const Real inductance_uh = straight_wire_inductance_uh(diameter_mm, length_m);
    lblinduttanza.set_role(ui::Label::Role::result);
    if (inductance_uh < 1) {
      lblinduttanza = "L'INDUTTANZA DEL FILO E' nanoHenry " + fixed(inductance_uh * 1000, 3);
    } else {
      lblinduttanza = "L'INDUTTANZA DEL FILO E' microHenry " + fixed(inductance_uh, 3);
    }
  }
};

const ui::Registration<frminduttanzafilodiritto> registration{"frminduttanzafilodiritto"};

}  // namespace

}  // namespace eterlab::coils
