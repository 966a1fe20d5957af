#include "common/number_text.h"
#include "materials/copper_wire.h"
#include "ui/ui.h"

namespace eterlab::materials {

namespace {

// Length, largest current and resistance of a copper wire from its diameter and weight.
class frmlunghezzafilo final : public ui::Window {
  ui::Note Label1{this, "Label1",
                  "CONOSCENDO LO SPESSORE E IL PESO DI UN CONDUTTORE SI CALCOLA LA SEZIONE, LA "
                  "LUNGHEZZA , LA CORRENTE AMMESSA E LA RESISTENZA"};
  ui::Label Label2{this, "Label2", "DIAMETRO DEL FILO in mm"};
  ui::TextBox txtd{this, "txtd"};
  ui::Label Label4{this, "Label4", "PESO in GRAMMI"};
  ui::TextBox txtgrammi{this, "txtgrammi"};
  ui::Frame Frame1{this, "Frame1"};
  ui::Result lblsezione{Frame1, "lblsezione"};
  ui::Result lbllunghezza{Frame1, "lbllunghezza"};
  ui::Result lblimax{Frame1, "lblimax", "imax"};
  ui::Result lblrtot{Frame1, "lblrtot", "rtot"};
  ui::Note Label3{this, "Label3",
                  "IN PRATICA CONOSCENDO IL PESO E IL DIAMETRO DI UN FILO COSTITUENTE UNA BOBINA O "
                  "UNA IMPEDENZA CON MOLTE SPIRE SI RISALE APPROSSIMATIVAMENTE ALLE "
                  "CARATTERISTICHE DELLA STESSA"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

 public:
  frmlunghezzafilo()
      : Window{"frmlunghezzafilo",
               "RELAZIONE TRA LUNGHEZZA SEZIONE PESO E RESISTENZA DI UN CONDUTTORE"} {
    Frame1.hide();
    arrange(ui::column(Label1, ui::form(field(Label2, txtd), field(Label4, txtgrammi)),
                       Frame1.arrange(ui::column(lblsezione, lbllunghezza, lblimax, lblrtot)),
                       Label3, ui::buttons(cmdcalcola, cmdesci)),
            76);

    txtd.on_change([this] { Frame1.hide(); });
    txtgrammi.on_change([this] { Frame1.hide(); });
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    txtd = "0.5";
    txtgrammi = "100";
    cmdcalcola.click();
  }

 private:
  void cmdcalcola_click() {
    const Real diameter_mm = txtd.number();
    const Real weight_g = txtgrammi.number();
    if (diameter_mm * weight_g <= 0) {
      refuse(txtd);
      return;
    }
    const CopperWire wire = copper_wire(diameter_mm, weight_g);
    const int current_decimals = wire.largest_current_a < 1 ? 4 : 2;
    lblsezione = "LA SEZIONE DEL FILO E'  " + fixed(wire.section_mm2, 3) + " mmq";
    lbllunghezza = "LA LUNGHEZZA DEL CONDUTTORE E'  " + fixed(wire.length_m, 2) + " metri";
    lblimax = "LA CORRENTE MASSIMA AMMESSA E'  " + fixed(wire.largest_current_a, current_decimals) +
              " Amp";
    lblrtot = " LA RESISTENZA TOTALE DEL CONDUTTORE E'  " + plain(wire.resistance_ohm) + " OHM";
    Frame1.show();
  }
};

const ui::Registration<frmlunghezzafilo> registration{"frmlunghezzafilo"};

}  // namespace

}  // namespace eterlab::materials
