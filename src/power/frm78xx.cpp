#include <optional>

#include "common/number_text.h"
#include "power/regulator_drawing.h"
#include "power/three_terminal_regulator.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::power {

namespace {

// A fixed regulator raised to a higher output by a divider on its ground pin.
class frm78xx final : public ui::Window {
  ui::Frame Frame1{this, "Frame1", "SIGLA "};
  ui::OptionArray Option1{Frame1, "Option1", {"7805", "7808", "7812", "7815", "7818", "7824"}};
  ui::Label Label1{this, "Label1", "TENSIONE DI USCITA in VOLT"};
  ui::TextBox txtvu{this, "txtvu", ui::tooltip("tensione desiderata in uscita")};
  ui::Schematic drawing{this, "drawing", regulator_drawing::columns, regulator_drawing::rows};
  ui::Label Label3{drawing, "Label3", "2.200 microF"};
  ui::Label Label4{drawing, "Label4", "220 microF"};
  ui::Label lbl78xx{drawing, "lbl78xx"};
  ui::Label lblr1{drawing, "lblr1"};
  ui::Label lblr2{drawing, "lblr2"};
  ui::Label lblvin{drawing, "lblvin"};
  ui::Label lblvout{drawing, "lblvout"};
  ui::Note Label7{this, "Label7", "USARE PER R1 E R2 I VALORI COMMERCIALI PIU' VICINI"};
  ui::Note Label12{this, "Label12",
                   "IN PRATICA CONVIENE EVITARE VARIAZIONI ECCESSIVAMENTE AMPIE RIMANENDO "
                   "NELL'AMBITO DI UNA TENSIONE STANDARD E L'ALTRA. INOLTRE IL VALORE DI R2 NON "
                   "DOVREBBE SUPERARE QUELLO DI R1"};
  ui::Note Label2{this, "Label2", "USARE IL PUNTO PER SEPARARE I DECIMALI"};
  ui::ComputeButton cmdcalcola{this, "cmdcalcola"};
  ui::ExitButton cmdesci{this, "cmdesci"};

  int nominal_v_ = 0;

 public:
  frm78xx() : Window{"frm78xx", "INTEGRATI STABILIZZATORI DELLA SERIE 78xx"} {
    draw();
    Label7.hide();
    arrange(ui::column(Frame1.arrange(ui::row(Option1[0], Option1[1], Option1[2], Option1[3],
                                              Option1[4], Option1[5])),
                       ui::form(field(Label1, txtvu)), drawing, Label7, Label12, Label2,
                       ui::buttons(cmdcalcola, cmdesci)));

    Option1.on_click([this](int index) { Option1_click(index); });
    cmdcalcola.on_click([this] { cmdcalcola_click(); });
  }

  void show_example() override {
    Option1.click(0);
    txtvu = "9";
    cmdcalcola.click();
  }

 private:
  void draw() {
    regulator_drawing::draw_supply(drawing, "GND", Label3);
    regulator_drawing::draw_divider_and_output(drawing, {lblr1, lblr2, Label4, lblvin, lblvout});
    drawing.label(lbl78xx, regulator_drawing::name_place);
  }

  void Option1_click(int index) {
    lblr1 = "R1";
    lblr2 = "R2";
    txtvu = "";
    lbl78xx = Option1[index].caption();
    nominal_v_ = fixed_regulators_v[static_cast<std::size_t>(index)];
  }

  void cmdcalcola_click() {
    const Real output_v = txtvu.number();
    const std::optional<RegulatorDesign> design = raised_fixed_regulator(nominal_v_, output_v);
    if (!design) {
      refuse(txtvu, "DATO NON CONGRUO");
      return;
    }
    lblr1 = fixed(design->r1_ohm, 0) + " Ohm";
    lblr2 = plain(design->r2_ohm) + " Ohm";
    lblvout = plain(output_v) + " Volt Out";
    lblvin = plain(design->input_v) + " Volt Input";
    Label7.show();
  }
};

const ui::Registration<frm78xx> registration{"frm78xx"};

}  // namespace

}  // namespace eterlab::power
