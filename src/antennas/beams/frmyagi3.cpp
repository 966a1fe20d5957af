#include "antennas/beams/yagi.h"
#include "antennas/beams/yagi_drawing.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A Yagi beam of three elements for a frequency, dimensioned as the user types.
class frmyagi3 final : public ui::Window {
  ui::Label Label1{this, "Label1", "FREQUENZA in MHz"};
  ui::TextBox txtfrequenza{this, "txtfrequenza", ui::tooltip("DA 27 A 50 MHz")};
  ui::Schematic disegno{this, "disegno", yagi_columns, 19};
  ui::Label Label2{disegno, "Label2", "RIFLETTORE"};
  ui::Label Label3{disegno, "Label3", "RADIATORE"};
  ui::Label Label4{disegno, "Label4", "DIRETTORE"};
  ui::Label lblspazriflettore{disegno, "lblspazriflettore"};
  ui::Label lblspazdirettore{disegno, "lblspazdirettore"};
  ui::Frame Frame1{this, "Frame1"};
  ui::Result lblriflettore{Frame1, "lblriflettore", "lblriflettore"};
  ui::Result lblradiatore{Frame1, "lblradiatore", "lblradiatore"};
  ui::Result lbldirettore{Frame1, "lbldirettore", "lbldirettore"};
  ui::Note Label5{this, "Label5",
                  "TUTTI GLI ELEMENTI SONO A MASSA NEL PUNTO CENTRALE . E'  STATA ADOTTATA UNA "
                  "SPAZIATURA DI RISPETTIVAMENTE  0.2  E  0.1  LAMBDA   L'IMPEDENZA E'  CIRCA  15 "
                  "OHM  QUINDI OCCORRE UN ADATTATORE DEL TIPO A GAMMA MATCH. VOLENDO  ALIMENTARE "
                  "L'ANTENNA CON BALUN 4:1 E HAIRPIN IL RADIATORE DEVE ESSERE COSTITUITO DA DUE "
                  "SEMIDIPOLI  ISOLATI DAL BOOM E LEGGERMENTE ACCORCIATI"};
  ui::Button cmdgamma{this, "cmdgamma", "GAMMA MATCH"};
  ui::ExitButton cmdesci{this, "cmdesci", "C H I U D I"};

 public:
  frmyagi3()
      : Window{"frmyagi3",
               "YAGI  3 ELEMENTI    DA  27 A 50 MHz         guadagno 6 - 7 dB rispetto al dipolo"} {
    draw_yagi(disegno, three_element_yagi(30), {&Label2, &Label3, &Label4},
              {&lblspazriflettore, &lblspazdirettore});
    hide_results();
    arrange(ui::column(ui::form(field(Label1, txtfrequenza)),
                       ui::row(disegno, ui::column(Frame1.arrange(ui::column(
                                                       lblriflettore, lblradiatore, lbldirettore)),
                                                   ui::stretch())),
                       Label5, ui::buttons(cmdgamma, cmdesci)),
            108);

    txtfrequenza.on_change([this] { txtfrequenza_change(); });
    cmdgamma.on_click([this] { cmdgamma_click(); });
  }

  void show_example() override { txtfrequenza = "28.5"; }

 private:
  void txtfrequenza_change() {
    const Real frequency_mhz = txtfrequenza.number();
    if (frequency_mhz <= 0) {
      hide_results();
      return;
    }
    const auto [reflector, radiator, director] = three_element_yagi(frequency_mhz);
    lblriflettore = "IL RIFLETTORE E' LUNGO  " + fixed(reflector.length_cm, 0) + " cm.";
    lblradiatore = "IL RADIATORE E' LUNGO  " + fixed(radiator.length_cm, 0) + " cm.";
    lbldirettore = "IL DIRETTORE E' LUNGO  " + fixed(director.length_cm, 0) + " cm.";
    lblspazriflettore = fixed(radiator.spacing_cm, 0) + " cm.";
    lblspazdirettore = plain(director.spacing_cm) + " cm.";
    Frame1.show();
    lblspazriflettore.show();
    lblspazdirettore.show();
  }

  void hide_results() {
    Frame1.hide();
    lblspazriflettore.hide();
    lblspazdirettore.hide();
  }

  void cmdgamma_click() {
    move_to({350, 350});
    open("frmgammamatch");
    place("frmgammamatch", {8000, 8000});
  }
};

const ui::Registration<frmyagi3> registration{"frmyagi3"};

}  // namespace

}  // namespace eterlab::antennas
