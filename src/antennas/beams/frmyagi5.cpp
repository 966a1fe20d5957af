#include "antennas/beams/yagi.h"
#include "antennas/beams/yagi_drawing.h"
#include "common/number_text.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::antennas {

namespace {

// A Yagi beam of five elements for a frequency, dimensioned as the user types.
class frmyagi5 final : public ui::Window {
  ui::Label Label1{this, "Label1", "FREQUENZA in MHz"};
  ui::TextBox txtfrequenza{this, "txtfrequenza", ui::tooltip("DA 27 A 50 MHz")};
  ui::Schematic disegno{this, "disegno", yagi_columns, 36};
  ui::Label Label2{disegno, "Label2", "RIFLETTORE"};
  ui::Label Label3{disegno, "Label3", "RADIATORE"};
  ui::Label Label4{disegno, "Label4", "1 DIRETTORE"};
  ui::Label Label5{disegno, "Label5", "2 DIRETTORE"};
  ui::Label Label6{disegno, "Label6", "3 DIRETTORE"};
  ui::Label lblspazriflettore{disegno, "lblspazriflettore"};
  ui::Label lblspaz1direttore{disegno, "lblspaz1direttore"};
  ui::Label lblspaz2direttore{disegno, "lblspaz2direttore"};
  ui::Label lblspaz3direttore{disegno, "lblspaz3direttore"};
  ui::Frame Frame1{this, "Frame1"};
  ui::Result lblriflettore{Frame1, "lblriflettore", "lblriflettore"};
  ui::Result lblradiatore{Frame1, "lblradiatore", "lblradiatore"};
  ui::Result lbl1direttore{Frame1, "lbl1direttore", "lbl1direttore"};
  ui::Result lbl2direttore{Frame1, "lbl2direttore", "lbl2direttore"};
  ui::Result lbl3direttore{Frame1, "lbl3direttore", "lbl3direttore"};
  ui::Note Label7{this, "Label7",
                  "OCCORRE UN ADATTATORE DEL TIPO A GAMMA MATCH.   TUTTI GLI ELEMENTI SONO A MASSA "
                  "NEL PUNTO CENTRALE .   ADOTTANDO UN RADIATORE COSTITUITO DA DUE SEMIDIPOLI "
                  "ISOLATI DAL BOOM L'ANTENNA ANDRA'   ALIMENTATA CON  HAIRPIN E RELATIVO BALUN"};
  ui::Button cmdgamma{this, "cmdgamma", "GAMMA MATCH"};
  ui::ExitButton cmdesci{this, "cmdesci", "C H I U D I"};

 public:
  frmyagi5()
      : Window{
            "frmyagi5",
            "YAGI  5 ELEMENTI    DA  30  A  145  MHz         guadagno 9  dB rispetto al dipolo"} {
    draw_yagi(disegno, five_element_yagi(30), {&Label2, &Label3, &Label4, &Label5, &Label6},
              {&lblspazriflettore, &lblspaz1direttore, &lblspaz2direttore, &lblspaz3direttore});
    hide_results();
    arrange(ui::column(ui::form(field(Label1, txtfrequenza)),
                       ui::row(disegno, ui::column(Frame1.arrange(ui::column(
                                                       lblriflettore, lblradiatore, lbl1direttore,
                                                       lbl2direttore, lbl3direttore)),
                                                   ui::stretch())),
                       Label7, ui::buttons(cmdgamma, cmdesci)),
            108);

    txtfrequenza.on_change([this] { txtfrequenza_change(); });
    cmdgamma.on_click([this] { cmdgamma_click(); });
  }

  void show_example() override { txtfrequenza = "144.5"; }

 private:
  void txtfrequenza_change() {
    const Real frequency_mhz = txtfrequenza.number();
    if (frequency_mhz <= 0) {
      hide_results();
      return;
    }
    const auto [reflector, radiator, director1, director2, director3] =
        five_element_yagi(frequency_mhz);
    lblriflettore = "IL RIFLETTORE E' LUNGO  " + fixed(reflector.length_cm, 0) + " cm.";
    lblradiatore = "IL RADIATORE E' LUNGO  " + fixed(radiator.length_cm, 0) + " cm.";
    lbl1direttore = "IL 1 DIRETTORE E' LUNGO  " + fixed(director1.length_cm, 0) + " cm.";
    lbl2direttore = "IL 2 DIRETTORE E' LUNGO  " + fixed(director2.length_cm, 0) + " cm.";
    lbl3direttore = "IL 3 DIRETTORE E' LUNGO  " + plain(director3.length_cm) + " cm.";
    lblspazriflettore = fixed(radiator.spacing_cm, 0) + " cm.";
    lblspaz1direttore = fixed(director1.spacing_cm, 0) + " cm.";
    lblspaz2direttore = fixed(director2.spacing_cm, 0) + " cm.";
    lblspaz3direttore = plain(director3.spacing_cm) + " cm.";
    Frame1.show();
    lblspazriflettore.show();
    lblspaz1direttore.show();
    lblspaz2direttore.show();
    lblspaz3direttore.show();
  }

  void hide_results() {
    Frame1.hide();
    lblspazriflettore.hide();
    lblspaz1direttore.hide();
    lblspaz2direttore.hide();
    lblspaz3direttore.hide();
  }

  void cmdgamma_click() {
    move_to({200, 200});
    open("frmgammamatch");
    place("frmgammamatch", {8000, 8000});
  }
};

const ui::Registration<frmyagi5> registration{"frmyagi5"};

}  // namespace

}  // namespace eterlab::antennas
