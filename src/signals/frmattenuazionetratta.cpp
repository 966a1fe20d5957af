#include "common/number_text.h"
#include "signals/free_space.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

// How much of a signal is lost on a path through free space.
class frmattenuazionetratta final : public ui::Window {
  ui::Label lbldistanza{this, "lbldistanza", "DISTANZA IN KM"};
  ui::TextBox txtdistanza{this, "txtdistanza"};
  ui::Label lblfrequenza{this, "lblfrequenza", "FREQUENZA DI LAVORO IN MHz"};
  ui::TextBox txtfrequenza{this, "txtfrequenza"};
  ui::Result lblattenuazione{this, "lblattenuazione"};
  ui::Note Label1{this, "Label1", "SEPARARE I DECIMALI CON IL PUNTO DEL TASTIERINO NUMERICO"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci", "C H I U D I"};

 public:
  frmattenuazionetratta()
      : Window{"frmattenuazionetratta",
               "CALCOLO ATTENUAZIONE DEL SEGNALE IN RELAZIONE ALLA DISTANZA"} {
    arrange(ui::column(ui::form(field(lbldistanza, txtdistanza), field(lblfrequenza, txtfrequenza)),
                       lblattenuazione, Label1, ui::buttons(cmdcalcola, cmdesci)),
            76);

    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtdistanza = "10";
    txtfrequenza = "145";
    cmdcalcola.click();
  }

 private:
  void cmdcalcola_click() {
    const Real frequency_mhz = txtfrequenza.number();
    const FreeSpacePath path = free_space_path(frequency_mhz, txtdistanza.number());
    lblattenuazione = "L'ATTENUAZIONE ALLA DISTANZA DI " + plain(path.distance_km) + " KM é " +
                      plain(path.attenuation_db) + " dB";
  }
};

const ui::Registration<frmattenuazionetratta> registration{"frmattenuazionetratta"};

}  // namespace

}  // namespace eterlab::signals
