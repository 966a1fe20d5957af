#include "circuits/handbook_resonance.h"
#include "common/number_text.h"
#include "ui/fixed_area.h"
#include "ui/ui.h"

namespace eterlab::circuits {

namespace {

constexpr ui::TwipsSize client_area{8100, 4350};
constexpr ui::TwipsPoint results_corner{360, 2000};

// Frequency, wavelength and reactance at which an inductor and a capacitor resonate. An explanation
// stands where the results will be.
class frmrisonanza final : public ui::Window {
  ui::FixedArea area{this, "area", client_area};
  ui::Label lblinduttanza{area, "lblinduttanza", "Induttanza in microHenry"};
  ui::TextBox txtinduttanza{area, "txtinduttanza"};
  ui::Label lblcapacita{area, "lblcapacità", "capacità in picoFarad"};
  ui::TextBox txtcapacita{area, "txtcapacità"};
  ui::Result lbloutputfrequenza{area, "lbloutputfrequenza"};
  ui::Result lbloutputmetri{area, "lbloutputmetri"};
  ui::Result lbloutputreattanza{area, "lbloutputreattanza"};
  ui::Note lblfantasma{area, "lblfantasma",
                       "COME RISULTATO DEL CALCOLO AVREMO LA FREQUENZA IN KHz , LA LUNGHEZZA "
                       "D'ONDA IN METRI E LA REATTANZA XL = XC IN Ohm"};
  ui::ComputeButton cmdcalcola{area, "cmdcalcola"};
  ui::CompanionButton cmdchiamabobine{
      *this, "cmdchiamabobine", "DATI COSTRUZIONE BOBINE", {"frmbobine", {180, 180}, {4100, 2800}}};
  ui::ExitButton cdmesci{area, "cdmesci", "ESCI"};

 public:
  frmrisonanza() : Window{"frmrisonanza", "RISONANZA"} {
    area.place(ui::form(field(lblinduttanza, txtinduttanza), field(lblcapacita, txtcapacita)),
               {360, 720});
    area.place(ui::column(lbloutputfrequenza, lbloutputmetri, lbloutputreattanza), results_corner);
    area.place(ui::buttons(cmdcalcola, cmdchiamabobine, cdmesci), {360, 3600}, {7380, 0});
    arrange(area);

    blank_on_change({&txtinduttanza, &txtcapacita},
                    {&lbloutputfrequenza, &lbloutputmetri, &lbloutputreattanza});
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void load() override {
    area.place(lblfantasma, results_corner);
    lblfantasma.show();
  }

  void show_example() override {
    txtinduttanza = "10";
    txtcapacita = "100";
    cmdcalcola.click();
  }

 private:
  void cmdcalcola_click() {
    const Real inductance_uh = txtinduttanza.number();
    const Real capacitance_pf = txtcapacita.number();
    const Real product = inductance_uh * capacitance_pf;
    if (product == 0) {
      refuse(txtinduttanza);
      return;
    }
    if (product < 0) {
      return;
    }
    const HandbookResonance at = handbook_resonance(inductance_uh, capacitance_pf);
    lbloutputfrequenza = "Frequenza in Khz  :  " + fixed(at.frequency_khz, 3);
    lbloutputmetri = "Lunghezza d'onda in mt. : " + fixed(at.wavelength_m, 3);
    lbloutputreattanza = "Reattanza XL=XC = " + fixed(at.reactance_ohm) + " Ohm ";
    lblfantasma.hide();
  }
};

const ui::Registration<frmrisonanza> registration{"frmrisonanza"};

}  // namespace

}  // namespace eterlab::circuits
