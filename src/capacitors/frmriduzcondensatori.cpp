#include "capacitors/series_capacitor.h"
#include "common/number_text.h"
#include "ui/ui.h"

namespace eterlab::capacitors {

namespace {

// The capacitor in series that reduces another one.
class frmriduzcondensatori final : public ui::Window {
  ui::Note Label2{this, "Label2",
                  "PER RIDURRE LA CAPACITA' DI UN CONDENSATORE OCCORRE COLLEGARNE UN ALTRO IN "
                  "SERIE IL CUI VALORE PUO' ESSERE ESATTAMENTE CALCOLATO "};
  ui::Label lblc1{this, "lblc1", "CAPACITA' in pF DEL  CONDENSATORE :"};
  ui::TextBox txtc1{this, "txtc1"};
  ui::Label lblR2{this, "lblR2", "CAPACITA' in pF CHE SI VUOLE OTTENERE :"};
  ui::TextBox txtc2{this, "txtc2"};
  ui::Result lblriduzione{this, "lblriduzione"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola", "CALCOLA", ui::tooltip("abilita il calcolo")};
  ui::ExitButton cmdesci{this, "cmdesci", "E S C I", ui::tooltip("chiude l'applicazione")};

 public:
  frmriduzcondensatori()
      : Window{"frmriduzcondensatori", "RIDUZIONE DELLA CAPACITA' DI UN CONDENSATORE"} {
    arrange(ui::column(Label2, ui::form(field(lblc1, txtc1), field(lblR2, txtc2)), lblriduzione,
                       ui::buttons(cmdcalcola, cmdesci)));
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtc1 = "470";
    txtc2 = "150";
    cmdcalcola.click();
  }

 private:
  void cmdcalcola_click() {
    const Real given_pf = txtc1.number();
    const Real wanted_pf = txtc2.number();
    if (given_pf * wanted_pf <= 0) {
      refuse(txtc1);
      return;
    }
    if (given_pf <= wanted_pf) {
      refuse(txtc1, "IL PRIMO COND.RE HA SEMPRE LA CAPACITA' MAGGIORE", "STAI ATTENTO");
      return;
    }
    const Real series_pf = series_capacitor_pf(given_pf, wanted_pf);
    const bool in_picofarad = series_pf < 1001;
    lblriduzione = "CAPACITA' DA APPLICARE IN SERIE =  " +
                   fixed(in_picofarad ? series_pf : series_pf / 1000, 1) + "  " +
                   (in_picofarad ? "picoF" : "nanoF");
  }
};

const ui::Registration<frmriduzcondensatori> registration{"frmriduzcondensatori"};

}  // namespace

}  // namespace eterlab::capacitors
