#include "coils/toroids/toroid_cores.h"
#include "coils/toroids/toroid_picker.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::coils {

namespace {

// The catalogue of toroidal cores, and the turns that give an inductance on one of them.
class frmamidon final : public ui::Window {
  ToroidPicker picker{this, "SELEZIONARE IL TOROIDE"};
  ui::Note lblhelp2{
      this, "lblhelp2",
      "PER TROVARE IL NUMERO DELLE SPIRE INSERIRE IL VALORE DELL'INDUTTANZA IN microHENRY. IL "
      "RISULTATO E' TEORICO IN QUANTO LA PIU' O MENO OMOGENEA DISTRIBUZIONE DELLE SPIRE MODIFICA  "
      "L' INDUTTANZA E GLI STESSI  PRODUTTORI DICHIARANO UNA TOLLERANZA DEL 20 % DELLA "
      "PERMEABILITA'"};
  ui::TextBox txtinduttanza{this, "txtinduttanza", ui::tooltip("INDUTTANZA IN microHENRY")};
  ui::Result lblspire{this, "lblspire"};
  ui::Note lblpunto{this, "lblpunto", "GLI EVENTUALI DECIMALI DEVONO ESSERE SEPARATI CON IL PUNTO"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmamidon() : Window{"frmamidon", "NUCLEI TOROIDALI IN POLVERE DI FERRO   SERIE T"} {
    lblhelp2.hide();
    txtinduttanza.hide();
    lblpunto.hide();
    cmdcalcola.hide();
    arrange(ui::column(ui::row(picker.list(), ui::stretch()), picker.core(), lblhelp2,
                       ui::row(txtinduttanza, lblspire), lblpunto,
                       ui::buttons(cmdcalcola, cmdesci)));

    picker.on_choose([this] { cmbnucleo_click(); });
    blank_on_change({&txtinduttanza}, {&lblspire});
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    picker.choose("T-50/ 2");
    txtinduttanza = "10";
    cmdcalcola.click();
  }

 private:
  void cmbnucleo_click() {
    lblspire = "";
    cmdcalcola.show();
    txtinduttanza.show();
    lblhelp2.show();
    lblpunto.show();
  }

  void cmdcalcola_click() {
    const Real inductance_uh = txtinduttanza.number();
    if (inductance_uh == 0) {
      lblspire = "INSERIRE INDUTTANZA";
      txtinduttanza.setFocus();
      return;
    }
    lblspire = "OCCORRONO " + fixed(toroid_turns(inductance_uh, picker.inductance_index_uh()), 1) +
               " SPIRE";
  }
};

const ui::Registration<frmamidon> registration{"frmamidon"};

}  // namespace

}  // namespace eterlab::coils
