#include "lines/coax_cables.h"
#include "ui/ui.h"

namespace eterlab::lines {

namespace {

// The catalogue of coaxial cables.
class frmcaviRG final : public ui::Window {
  ui::Label Label9{this, "Label9", "SELEZIONA UN TIPO DI CAVO"};
  ui::ComboBox Combo1{this, "Combo1", "CAVI RG", ui::tooltip("cliccare e selezionare")};
  ui::Label label1{this, "label1", "IMPEDENZA in Ohm"};
  ui::Label label2{this, "label2", "CAPACITA'  in  pF/metro"};
  ui::Label label3{this, "label3", "DIAMETRO ESTERNO "};
  ui::Label label4{this, "label4", "PERDITA dB per 100 mt a 100 Mc"};
  ui::Label label5{this, "label5", "PERDITA dB per 100 mt a 400 Mc"};
  ui::Label label6{this, "label6", "TENSIONE MAX in kV"};
  ui::Label label7{this, "label7", "WATT MASSIMI a 100 MHz"};
  ui::Label Label8{this, "Label8", "FATTORE DI VELOCITA'"};
  ui::Result lbl1{this, "lbl1"};
  ui::Result lbl2{this, "lbl2"};
  ui::Result lbl3{this, "lbl3"};
  ui::Result lbl4{this, "lbl4"};
  ui::Result lbl5{this, "lbl5"};
  ui::Result lbl6{this, "lbl6"};
  ui::Result lbl7{this, "lbl7"};
  ui::Result lbl8{this, "lbl8"};
  ui::ExitButton cmdesci{this, "cmdesci", "C H I U D I"};

 public:
  frmcaviRG()
      : Window{"frmcaviRG",
               "CARATTERISTICHE DEI CAVI COASSIALI PER RADIOFREQUENZA  -  SERIE RG/U"} {
    arrange(ui::column(ui::form(field(Label9, Combo1), field(label1, lbl1), field(label2, lbl2),
                                field(label3, lbl3), field(label4, lbl4), field(label5, lbl5),
                                field(label6, lbl6), field(label7, lbl7), field(Label8, lbl8)),
                       ui::buttons(cmdesci)));

    Combo1.on_choose([this] { Combo1_click(); });
  }

  void load() override {
    for (const CoaxCable& cable : coax_cables()) {
      Combo1.add(cable.name);
    }
  }

  void show_example() override { Combo1.choose("RG 58"); }

 private:
  void Combo1_click() {
    const CoaxCable* cable = find_coax_cable(Combo1.content());
    if (cable == nullptr) {
      return;
    }
    lbl1 = cable->impedance_ohm;
    lbl2 = cable->capacitance_pf_per_m;
    lbl3 = cable->outer_diameter_mm;
    lbl4 = cable->loss_db_at_100_mhz;
    lbl5 = cable->loss_db_at_400_mhz;
    lbl6 = cable->max_voltage_kv;
    lbl7 = cable->max_power_w_at_100_mhz;
    if (!cable->velocity_factor.empty()) {  // else the previous cable's stays
      lbl8 = cable->velocity_factor;
    }
  }
};

const ui::Registration<frmcaviRG> registration{"frmcaviRG"};

}  // namespace

}  // namespace eterlab::lines
